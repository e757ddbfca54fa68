// Compares the JSON document on standard input, of the references below one drawing, with the list
// that the generator wrote: the document must tell the same paths of the same drawings, no more and
// no fewer, and each drawing must have been found and followed once.

#include <fstream>
#include <iostream>
#include <nlohmann/json.hpp>
#include <set>
#include <string>
#include <utility>

namespace {

// The name of the drawing that refers, and the path that it stores.
using References = std::multiset<std::pair<std::string, std::string>>;

References ReadExpected(const std::string& path) {
  References expected;
  std::ifstream file(path);
  std::string drawing;
  std::string stored;
  while (std::getline(file, drawing, '\t') && std::getline(file, stored)) {
    expected.emplace(drawing, stored);
  }
  return expected;
}

std::string LeafOf(const std::string& path) { return path.substr(path.find_last_of('/') + 1); }

struct Answer {
  References references;
  // The drawings that were found, and how often one was told to be followed.
  std::set<std::string> drawings;
  std::size_t followed = 0;
};

Answer ReadAnswer(const nlohmann::json& document) {
  Answer answer;
  for (const nlohmann::json& record : document.at("dependencies")) {
    answer.references.emplace(LeafOf(record.at("parentPath")), record.at("storedPath"));
    if (record.at("kind") != "attachedDrawing" || !record.at("exists")) continue;
    answer.drawings.insert(record.at("sourcePath").get<std::string>());
    if (!record.at("repeated")) ++answer.followed;
  }
  return answer;
}

}  // namespace

int main(int argc, char** argv) {
  const References expected = argc == 2 ? ReadExpected(argv[1]) : References();
  if (expected.empty()) {
    std::cerr << "usage: check_references LIST < DOCUMENT\n";
    return 2;
  }
  try {
    const Answer answer = ReadAnswer(nlohmann::json::parse(std::cin));
    // The walked drawing itself is referred to by others, and never followed again.
    const bool isRight = answer.references == expected && !answer.drawings.empty() &&
                         answer.followed == answer.drawings.size() - 1;
    if (!isRight) {
      std::cerr << "check_references: wrong: expected " << expected.size() << " references, "
                << answer.references.size() << " told; of " << answer.drawings.size()
                << " drawings " << answer.followed << " were followed\n";
    }
    return isRight ? 0 : 1;
  } catch (const std::exception& error) {
    std::cerr << "check_references: " << error.what() << '\n';
    return 1;
  }
}
