#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace bench {

// Writes the tags of a text drawing, with CR LF line ends, as fast as they can be made.
class TagStream {
 public:
  // Opens `path` for writing.  Throws std::system_error if that fails, as does any later write.
  explicit TagStream(const std::string& path);
  ~TagStream();
  TagStream(const TagStream&) = delete;
  TagStream& operator=(const TagStream&) = delete;

  // Closes the file with all that was written.
  void Close();

  void Text(int code, std::string_view text);
  void Integer(int code, int number);
  void Real(int code, double number);
  void Point(int code, double x, double y);
  void Handle(int code, std::uint64_t handle);

  std::uint64_t BytesWritten() const { return flushed_ + buffer_.size(); }

 private:
  void Code(int code);
  void EndLine();
  void Flush();

  std::string path_;
  std::FILE* file_;
  std::string buffer_;
  std::uint64_t flushed_ = 0;
};

}  // namespace bench
