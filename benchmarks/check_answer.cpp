// Compares the JSON document on standard input, of one drawing, with the list that the generator
// wrote beside the drawing: for each name of the list, the document must hold the same values in
// the same order, no more and no fewer.

#include <fstream>
#include <iostream>
#include <map>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace {

using Values = std::map<std::string, std::vector<std::string>>;

bool ReadExpected(const std::string& path, Values& expected) {
  std::ifstream file(path);
  std::string name;
  std::string value;
  while (std::getline(file, name, '\t') && std::getline(file, value)) {
    expected[name].push_back(value);
  }
  return !expected.empty();
}

Values ReadAnswer(const nlohmann::json& document) {
  Values values;
  for (const nlohmann::json& property : document.at("properties")) {
    const nlohmann::json& value = property.at("value");
    values[property.at("name")].push_back(value.is_string() ? value.get<std::string>()
                                                            : value.dump());
  }
  return values;
}

// The number of names whose values differ.
int CountDifferences(const Values& expected, const Values& answer) {
  int differences = 0;
  for (const auto& [name, values] : expected) {
    const auto found = answer.find(name);
    if (found != answer.end() && found->second == values) continue;
    std::cerr << "check_answer: wrong: " << name << ": expected " << values.size() << " values, "
              << (found == answer.end() ? 0 : found->second.size()) << " told\n";
    ++differences;
  }
  return differences;
}

}  // namespace

int main(int argc, char** argv) {
  Values expected;
  if (argc != 2 || !ReadExpected(argv[1], expected)) {
    std::cerr << "usage: check_answer LIST < DOCUMENT\n";
    return 2;
  }
  try {
    return CountDifferences(expected, ReadAnswer(nlohmann::json::parse(std::cin))) == 0 ? 0 : 1;
  } catch (const std::exception& error) {
    std::cerr << "check_answer: " << error.what() << '\n';
    return 1;
  }
}
