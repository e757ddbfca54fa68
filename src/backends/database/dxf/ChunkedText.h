// Long texts, which files keep in pieces.
#pragma once

#include <string>
#include <string_view>

#include "backends/database/dxf/TagStream.h"

namespace zdx::dxf {

// Pieces of one code, and the last of another.  They are decoded as a whole: a character may have
// been cut.
class ChunkedText {
 public:
  ChunkedText(int moreCode, int lastCode) : moreCode_(moreCode), lastCode_(lastCode) {}

  // Takes the tag's value if it is a piece.  What comes behind the last piece is none.
  void Take(const Tag& tag);
  bool Found() const { return at_ != kNowhere; }
  // Whether the last piece was there.
  bool IsComplete() const { return isComplete_; }
  const std::string& bytes() const { return bytes_; }
  // Where the first piece stands.
  std::size_t at() const { return at_; }

 private:
  int moreCode_;
  int lastCode_;
  bool isComplete_ = false;
  std::size_t at_ = kNowhere;
  std::string bytes_;
};

}  // namespace zdx::dxf
