// How versions of drawings are told to clients.
#pragma once

namespace ZDXEngine {

// The version that this engine writes.
inline constexpr int kWrittenVersion = 33;
// Stands for a version that isn't known.
inline constexpr int kUnknownVersion = 254;

// The label of a version by the drawing library's number.
const wchar_t* VersionLabel(int version);

}  // namespace ZDXEngine
