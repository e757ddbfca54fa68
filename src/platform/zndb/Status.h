// Statuses of the drawing-database library: plain integers, 0 for success.
#pragma once

namespace Zent {

using ErrorStatus = int;

inline constexpr ErrorStatus kOk = 0;
inline constexpr ErrorStatus kNotApplicable = 2;
inline constexpr ErrorStatus kInvalidInput = 3;
inline constexpr ErrorStatus kNullDatabase = 15;
inline constexpr ErrorStatus kKeyNotFound = 30;
inline constexpr ErrorStatus kNotOfThatClass = 31;
inline constexpr ErrorStatus kUnknownHandle = 32;
inline constexpr ErrorStatus kOutOfMemory = 40;
inline constexpr ErrorStatus kFileNotFound = 76;
inline constexpr ErrorStatus kFileAccess = 77;
inline constexpr ErrorStatus kUnknownVersion = 78;
inline constexpr ErrorStatus kDamaged = 79;
inline constexpr ErrorStatus kSharingViolation = 80;
inline constexpr ErrorStatus kNotADrawing = 314;
inline constexpr ErrorStatus kEncrypted = 1001;

}  // namespace Zent
