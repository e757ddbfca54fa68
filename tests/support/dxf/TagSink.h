#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace dxf {

// Where tags go, in one of the two forms of the file.  Values come ready: texts encoded, integers
// in the range of their code, bytes in pieces of at most kLongestBytes.
class TagSink {
 public:
  virtual ~TagSink() = default;
  virtual void Text(int code, std::string_view bytes) = 0;
  virtual void Real(int code, double number) = 0;
  virtual void Integer(int code, std::int64_t number) = 0;
  virtual void Bytes(int code, std::string_view bytes) = 0;

  static constexpr std::size_t kLongestBytes = 127;
};

// Two lines a tag, each closed by `lineEnd`.  Appends to `file`, which must outlive the sink.
class AsciiSink : public TagSink {
 public:
  AsciiSink(std::string& file, std::string lineEnd);
  void Text(int code, std::string_view bytes) override;
  void Real(int code, double number) override;
  void Integer(int code, std::int64_t number) override;
  void Bytes(int code, std::string_view bytes) override;

 private:
  std::string& file_;
  std::string lineEnd_;
};

// Group code and value as little-endian numbers.  The oldest files have codes of one byte, the
// others of two.  Appends to `file`, which must outlive the sink.
class BinarySink : public TagSink {
 public:
  enum class CodeSize { OneByte, TwoBytes };
  BinarySink(std::string& file, CodeSize codeSize);
  void Text(int code, std::string_view bytes) override;
  void Real(int code, double number) override;
  void Integer(int code, std::int64_t number) override;
  void Bytes(int code, std::string_view bytes) override;

 private:
  void Code(int code);
  void LittleEndian(std::uint64_t number, std::size_t size);

  std::string& file_;
  CodeSize codeSize_;
};

// `number` in the fewest digits that give it back, always with a point or an exponent.
std::string FormatReal(double number);

}  // namespace dxf
