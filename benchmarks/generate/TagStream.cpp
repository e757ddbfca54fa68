#include "generate/TagStream.h"

#include <cerrno>
#include <charconv>
#include <system_error>
#include <utility>

namespace bench {
namespace {

constexpr std::size_t kBufferSize = std::size_t{1} << 20;
constexpr int kShortWidth = 6;
constexpr int kLongWidth = 9;

[[noreturn]] void Fail(const std::string& path) {
  throw std::system_error(errno, std::generic_category(), path);
}

}  // namespace

TagStream::TagStream(const std::string& path) : path_(path), file_(std::fopen(path.c_str(), "wb")) {
  if (file_ == nullptr) Fail(path_);
  buffer_.reserve(kBufferSize + 4096);
}

TagStream::~TagStream() {
  if (file_ != nullptr) std::fclose(file_);
}

void TagStream::Close() {
  Flush();
  if (std::fclose(std::exchange(file_, nullptr)) != 0) Fail(path_);
}

void TagStream::Text(int code, std::string_view text) {
  Code(code);
  buffer_.append(text);
  EndLine();
}

void TagStream::Integer(int code, int number) {
  char digits[16];
  const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
  Code(code);
  const int fullWidth = code >= 90 && code < 100 ? kLongWidth : kShortWidth;
  for (auto width = end - digits; width < fullWidth; ++width) buffer_ += ' ';
  buffer_.append(digits, end);
  EndLine();
}

void TagStream::Real(int code, double number) {
  char digits[32];
  const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
  const std::string_view text(digits, static_cast<std::size_t>(end - digits));
  Code(code);
  buffer_.append(text);
  if (text.find_first_of(".e") == std::string_view::npos) buffer_.append(".0");
  EndLine();
}

void TagStream::Point(int code, double x, double y) {
  Real(code, x);
  Real(code + 10, y);
  Real(code + 20, 0.0);
}

void TagStream::Handle(int code, std::uint64_t handle) {
  char digits[17];
  std::snprintf(digits, sizeof digits, "%llX", static_cast<unsigned long long>(handle));
  Text(code, digits);
}

void TagStream::Code(int code) {
  if (code < 100) buffer_ += ' ';
  if (code < 10) buffer_ += ' ';
  char digits[8];
  buffer_.append(digits, std::to_chars(digits, digits + sizeof digits, code).ptr);
  EndLine();
}

void TagStream::EndLine() {
  buffer_.append("\r\n");
  if (buffer_.size() >= kBufferSize) Flush();
}

void TagStream::Flush() {
  if (std::fwrite(buffer_.data(), 1, buffer_.size(), file_) != buffer_.size()) Fail(path_);
  if (std::fflush(file_) != 0) Fail(path_);
  flushed_ += buffer_.size();
  buffer_.clear();
}

}  // namespace bench
