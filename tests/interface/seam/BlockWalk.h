// What the drawing-database library tells of a drawing's blocks, read through its interface from
// the embedded database.
#pragma once

#include <string>
#include <vector>

namespace zdx_test {

struct WalkedDefinition {
  std::string tag;
  std::string prompt;
  std::string text;
  bool isConstant = false;
};

struct WalkedAttribute {
  std::string tag;
  std::string text;
  bool isMultiLine = false;
};

struct WalkedReference {
  // The name of the block in which it stands, or "(unknown)".
  std::string owner;
  std::vector<WalkedAttribute> attributes;
};

struct WalkedBlock {
  std::string name;
  bool isLayout = false;
  bool isDynamic = false;
  // Those that carry the block's variations.
  std::vector<std::string> copies;
  // The classes of its entities.
  std::vector<std::string> entities;
  // What its texts and multi-line texts say.
  std::vector<std::string> texts;
  std::vector<WalkedDefinition> definitions;
  // In the order in which the library tells them.
  std::vector<WalkedReference> references;
};

// The blocks in table order.  Fails the test if the drawing can't be read.
std::vector<WalkedBlock> WalkBlocks(const std::wstring& path);

// For comparisons that print well: "TAG = value" and "TAG = value (many lines)".
std::string LineOf(const WalkedAttribute& attribute);
// "owner: " and the attributes' lines.
std::string LineOf(const WalkedReference& reference);
// "TAG, prompt = value" and "TAG, prompt = value (constant)".
std::string LineOf(const WalkedDefinition& definition);

template <typename Item>
std::vector<std::string> LinesOf(const std::vector<Item>& items) {
  std::vector<std::string> lines;
  for (const Item& item : items) lines.push_back(LineOf(item));
  return lines;
}

}  // namespace zdx_test
