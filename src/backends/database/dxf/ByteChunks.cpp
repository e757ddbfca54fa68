#include "backends/database/dxf/ByteChunks.h"

#include <string_view>

#include "backends/database/dxf/Lines.h"

namespace zdx::dxf {
namespace {

int DigitOf(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  return -1;
}

// Appends what the hexadecimal digits of `line` stand for; false if it holds anything else.
bool AppendDigits(std::string& bytes, std::string_view line) {
  if (line.size() % 2 != 0) return false;
  const std::size_t before = bytes.size();
  for (std::size_t i = 0; i < line.size(); i += 2) {
    const int high = DigitOf(line[i]);
    const int low = DigitOf(line[i + 1]);
    if (high < 0 || low < 0) {
      bytes.resize(before);
      return false;
    }
    bytes.push_back(static_cast<char>(high << 4 | low));
  }
  return true;
}

}  // namespace

bool AppendChunk(std::string& bytes, const Tag& chunk, Form form) {
  if (form == Form::kText) return AppendDigits(bytes, Trimmed(chunk.value));
  bytes += chunk.value;
  return true;
}

}  // namespace zdx::dxf
