#include "generate/Arguments.h"

#include <charconv>
#include <fstream>
#include <stdexcept>

namespace bench {

bool ReadCount(std::string_view text, int& count) {
  const char* const end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, count);
  return result.ec == std::errc() && result.ptr == end && count > 0;
}

bool ReadPlace(std::string_view text, Place& place) {
  place = text == "titles" ? Place::ModelSpace : Place::Block;
  return text == "titles" || text == "nested-titles";
}

void WriteBytes(const std::string& path, std::string_view bytes) {
  std::ofstream file(path, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (!file.flush()) throw std::runtime_error("can't write " + path);
}

void WriteExpected(const std::string& path, const Expected& expected) {
  std::string list;
  for (const auto& [name, value] : expected) list.append(name).append("\t").append(value) += '\n';
  WriteBytes(path + ".expected", list);
}

}  // namespace bench
