// Writing a file anew, so that at all times its old content or its new one is there whole.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "backends/database/file/Failure.h"

namespace zdx::file {

struct WriteError {
  Failure kind = Failure::kOther;
  // The system's number of the error.
  std::uint32_t number = 0;
};

// A new file beside the target, `NAME.zdx-0` or the next number that is free, which takes its place
// when it is complete.  Until then, and after each failure, the target is as it was; a replacement
// that isn't committed takes its file away when it goes.
//
// A target that is there hands on its permissions (POSIX) or its attributes (Windows), and nothing
// else yet: owner, extended attributes, access lists and further streams are those of a new file.
// One that is protected from writing isn't replaced.  On POSIX a link is followed, and the file
// that it leads to is replaced.
class Replacement {
 public:
  // Makes the new file beside `path`, whose wide form is turned into a file name as Utf8.h tells.
  static std::variant<Replacement, WriteError> Begin(const std::wstring& path);

  ~Replacement();
  Replacement(Replacement&& other) noexcept;
  Replacement& operator=(Replacement&& other) noexcept;

  // Adds `bytes` at the new file's end.
  std::optional<WriteError> Append(std::string_view bytes);

  // Brings what was appended to the disk, and puts the new file in the target's place.  Nothing
  // else may be called thereafter.  On Windows a target that another program has open is tried
  // again for up to a second; one that is mapped, by this process too, may be refused as
  // kNoAccess.
  std::optional<WriteError> Commit();

 private:
  class NewFile;
  explicit Replacement(std::unique_ptr<NewFile> file);

  std::unique_ptr<NewFile> file_;
};

}  // namespace zdx::file
