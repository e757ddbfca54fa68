#include "properties/appinfo/BufferedFileReader.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>

#include "base/LittleEndian.h"
#include "base/Utf16.h"
#include "properties/appinfo/SourceFile.h"

namespace ZDXEngine {
namespace {

constexpr std::uint32_t kUnitSize = 2;
// Longer texts than this are read through the heap.
constexpr std::uint16_t kLocalUnits = 1024;

// The text of `length` stored code units up to the first zero.
std::wstring WideFromUnits(const std::uint8_t* units, std::size_t length) {
  std::wstring text;
  for (std::size_t i = 0; i < length; ++i) {
    const auto unit = zdx::LittleEndian<std::uint16_t>(units + i * kUnitSize);
    if (unit == 0) break;
    zdx::AppendUtf16Unit(text, unit);
  }
  return text;
}

}  // namespace

BufferedFileReader::BufferedFileReader(const std::wstring& path, std::uint32_t offset)
    : handle_(OpenSourceFile(path)) {
  if (handle_ == os::kInvalidHandle) return;
  const std::uint32_t reached =
      os::SetFilePointer(handle_, static_cast<std::int32_t>(offset), nullptr, os::kFromBegin);
  if (reached == os::kInvalidFilePointer) Close();
}

BufferedFileReader::~BufferedFileReader() { Close(); }

void BufferedFileReader::Close() {
  if (handle_ == os::kInvalidHandle) return;
  os::CloseHandle(handle_);
  handle_ = os::kInvalidHandle;
}

void BufferedFileReader::Refill() {
  if (os::ReadFile(handle_, buffer_, kBufferSize, &filled_, nullptr) == 0) {
    filled_ = 0;
    Close();
  }
  position_ = 0;
}

bool BufferedFileReader::ReadBytes(void* destination, std::uint32_t count) {
  if (filled_ - position_ < count && handle_ == os::kInvalidHandle) return false;
  auto* next = static_cast<std::uint8_t*>(destination);
  for (;;) {
    const std::uint32_t moved = std::min(filled_ - position_, count);
    std::copy_n(buffer_ + position_, moved, next);
    position_ += moved;
    next += moved;
    count -= moved;
    if (count == 0) return true;
    Refill();
    if (filled_ == 0) return false;
  }
}

bool BufferedFileReader::ReadGuid(GUID& result) {
  std::uint8_t data1[4];
  std::uint8_t data2[2];
  std::uint8_t data3[2];
  GUID read = {};
  if (!ReadBytes(data1, sizeof data1) || !ReadBytes(data2, sizeof data2) ||
      !ReadBytes(data3, sizeof data3) || !ReadBytes(read.Data4, sizeof read.Data4)) {
    return false;
  }
  read.Data1 = zdx::LittleEndian<std::uint32_t>(data1);
  read.Data2 = zdx::LittleEndian<std::uint16_t>(data2);
  read.Data3 = zdx::LittleEndian<std::uint16_t>(data3);
  result = read;
  return true;
}

bool BufferedFileReader::ReadText(std::wstring& result) {
  std::uint8_t stored[kUnitSize];
  if (!ReadBytes(stored, sizeof stored)) return false;
  const auto length = zdx::LittleEndian<std::uint16_t>(stored);
  std::uint8_t local[kLocalUnits * kUnitSize];
  std::unique_ptr<std::uint8_t[]> heap;
  if (length > kLocalUnits) heap.reset(new std::uint8_t[std::size_t{length} * kUnitSize]);
  std::uint8_t* const units = heap == nullptr ? local : heap.get();
  if (!ReadBytes(units, length * kUnitSize)) return false;
  result = WideFromUnits(units, length);
  return true;
}

}  // namespace ZDXEngine
