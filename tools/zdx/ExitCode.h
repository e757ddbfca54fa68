// What the process tells the shell.
#pragma once

namespace zdx {

inline constexpr int kAllFilesRead = 0;
// All files were read, but what was asked for isn't there: a preview picture to write, in some file
// a value to print, or a file that is needed.
inline constexpr int kNothingThere = 1;
// At least one file failed; the others were told.
inline constexpr int kFileFailed = 2;
inline constexpr int kWrongUsage = 64;
// A fault of the tool itself.
inline constexpr int kInternalFault = 70;
// Standard output couldn't be written, and files that weren't told yet were left out; or a picture
// couldn't be.
inline constexpr int kOutputFailed = 74;

}  // namespace zdx
