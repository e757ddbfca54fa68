#include "architecture/LayerRules.h"

#include <sstream>
#include <stdexcept>
#include <utility>

namespace architecture {
namespace {

std::vector<std::string> Split(const std::string& path) {
  std::vector<std::string> parts;
  std::istringstream stream(path);
  for (std::string part; std::getline(stream, part, '/');) parts.push_back(part);
  return parts;
}

std::vector<std::string> QuotedIncludes(std::string_view source) {
  std::vector<std::string> names;
  std::istringstream stream{std::string(source)};
  for (std::string line; std::getline(stream, line);) {
    const std::size_t begin = line.find('"');
    const std::size_t end = begin == std::string::npos ? begin : line.find('"', begin + 1);
    if (end == std::string::npos) continue;
    std::string directive = line.substr(0, begin);
    std::erase_if(directive, [](char character) { return character == ' ' || character == '\t'; });
    if (directive == "#include") names.push_back(line.substr(begin + 1, end - begin - 1));
  }
  return names;
}

// The layer that a file of `layer` reaches into by including `name`.
std::string LayerOfInclude(const std::string& layer, const std::string& name) {
  const std::vector<std::string> parts = Split(name);
  return parts.size() < 2 ? layer : parts.front();
}

}  // namespace

LayerRules LayerRules::Parse(std::string_view table) {
  LayerRules rules;
  std::istringstream stream{std::string(table)};
  for (std::string line; std::getline(stream, line);) {
    if (line.empty() || line.front() == '#') continue;
    const std::size_t colon = line.find(':');
    if (colon == std::string::npos) throw std::invalid_argument("no colon in: " + line);
    const std::string layer = line.substr(0, colon);
    std::set<std::string> others;
    std::istringstream words(line.substr(colon + 1));
    for (std::string word; words >> word;) others.insert(word);
    if (!rules.allowed.emplace(layer, std::move(others)).second) {
      throw std::invalid_argument("named twice: " + layer);
    }
    rules.layers.push_back(layer);
  }
  return rules;
}

std::string LayerOfFile(const std::string& path) {
  const std::vector<std::string> parts = Split(path);
  if (parts.size() < 2) return path;
  const bool isRoot = parts[0] == "src" || parts[0] == "include";
  return isRoot ? parts[1] : parts[0] + "/" + parts[1];
}

std::vector<std::string> Violations(const LayerRules& rules, const std::string& path,
                                    std::string_view source) {
  const std::string layer = LayerOfFile(path);
  const auto row = rules.allowed.find(layer);
  if (row == rules.allowed.end()) return {path + ": the table has no line for " + layer};
  std::vector<std::string> violations;
  for (const std::string& name : QuotedIncludes(source)) {
    const std::string other = LayerOfInclude(layer, name);
    if (other == layer || row->second.contains(other)) continue;
    violations.push_back(path + ": " + layer + " may not include " + name);
  }
  return violations;
}

}  // namespace architecture
