#include "architecture/Exports.h"

#include <windows.h>

#include <cstring>
#include <stdexcept>

#include "support/Scratch.h"

namespace architecture {
namespace {

// The file of a library; places are told as they are in memory, where its sections lie elsewhere.
class Image {
 public:
  explicit Image(std::string bytes) : bytes_(std::move(bytes)) {
    const auto dos = At<IMAGE_DOS_HEADER>(0);
    head_ = At<IMAGE_NT_HEADERS64>(static_cast<std::size_t>(dos.e_lfanew));
    if (dos.e_magic != IMAGE_DOS_SIGNATURE || head_.Signature != IMAGE_NT_SIGNATURE) {
      throw std::runtime_error("no library");
    }
    const std::size_t sections = static_cast<std::size_t>(dos.e_lfanew) +
                                 offsetof(IMAGE_NT_HEADERS64, OptionalHeader) +
                                 head_.FileHeader.SizeOfOptionalHeader;
    for (WORD i = 0; i < head_.FileHeader.NumberOfSections; ++i) {
      sections_.push_back(
          At<IMAGE_SECTION_HEADER>(sections + i * std::size_t{sizeof(IMAGE_SECTION_HEADER)}));
    }
  }

  DWORD Exports() const {
    return head_.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT].VirtualAddress;
  }

  template <class Record>
  Record Loaded(DWORD address) const {
    return At<Record>(PlaceOf(address));
  }

  std::string LoadedText(DWORD address) const { return bytes_.c_str() + PlaceOf(address); }

 private:
  template <class Record>
  Record At(std::size_t place) const {
    Record record = {};
    if (place > bytes_.size() || bytes_.size() - place < sizeof record) {
      throw std::runtime_error("the library is cut short");
    }
    std::memcpy(&record, bytes_.data() + place, sizeof record);
    return record;
  }

  std::size_t PlaceOf(DWORD address) const {
    for (const IMAGE_SECTION_HEADER& section : sections_) {
      const DWORD offset = address - section.VirtualAddress;
      if (address >= section.VirtualAddress && offset < section.SizeOfRawData) {
        return std::size_t{section.PointerToRawData} + offset;
      }
    }
    throw std::runtime_error("the library tells of a place that it hasn't");
  }

  std::string bytes_;
  IMAGE_NT_HEADERS64 head_ = {};
  std::vector<IMAGE_SECTION_HEADER> sections_;
};

}  // namespace

std::vector<std::string> ExportsOf(const std::filesystem::path& library) {
  const Image image(zdx_test::ContentsOf(library));
  const auto exports = image.Loaded<IMAGE_EXPORT_DIRECTORY>(image.Exports());
  std::vector<std::string> symbols;
  for (DWORD i = 0; i < exports.NumberOfNames; ++i) {
    const DWORD entry = exports.AddressOfNames + i * static_cast<DWORD>(sizeof(DWORD));
    symbols.push_back(image.LoadedText(image.Loaded<DWORD>(entry)));
  }
  return symbols;
}

}  // namespace architecture
