#include "support/dwg/Drawing.h"

#include <stdexcept>

namespace dwg {
namespace {

drawing::PageEncoder EncoderFor(const DrawingSpec& spec, Version version) {
  if (drawing::HasUnicodeTexts(version)) return drawing::PageEncoder();
  return drawing::PageEncoder(spec.codePage);
}

Version CheckedVersion(const DrawingSpec& spec) {
  const Version version = drawing::VersionOf(spec.version);
  if (version < Version::AC1014) {
    throw std::invalid_argument("the maker writes AC1014 and later, not " + spec.version);
  }
  return version;
}

Handle Found(const std::vector<NamedHandle>& list, const std::string& name, Handle otherwise) {
  for (const NamedHandle& entry : list) {
    if (entry.name == name) return entry.handle;
  }
  return otherwise;
}

}  // namespace

Drawing::Drawing(const DrawingSpec& drawingSpec, const Writing& fileWriting)
    : spec(drawingSpec),
      writing(fileWriting),
      version(CheckedVersion(drawingSpec)),
      encoder(EncoderFor(drawingSpec, version)),
      codePage(CodePageNumber(drawingSpec.codePage)),
      handles_(drawingSpec) {
  classes = NumberedClasses(spec, version);
  PlanRecords(*this);
}

Handle Drawing::NextHandle(const std::string& chosen) {
  return std::stoull(handles_.Or(chosen), nullptr, kHexadecimal);
}

Handle Drawing::HandleSeed() const { return std::stoull(handles_.Seed(), nullptr, kHexadecimal); }

Fields Drawing::NewFields(Handle own) const {
  return Fields(version, encoder, writing.textsEndWithZero, Fields::References::Apart, own);
}

Fields Drawing::NewSection() const {
  return Fields(version, encoder, writing.textsEndWithZero, Fields::References::AmongTheRest);
}

std::string Drawing::FreeText(std::string_view utf8, std::size_t countSize) const {
  std::string mark(countSize == 1 ? 2 : 1, '\0');
  mark.back() = static_cast<char>(codePage);
  return CountedText(utf8, version, encoder, mark, countSize);
}

void Drawing::Add(const RecordHead& head, const Fields& fields) {
  records[fields.Own()] = AssembleRecord(head, fields);
}

void Drawing::Add(Type type, const Fields& fields) {
  Add(RecordHead{static_cast<unsigned>(type)}, fields);
}

void Drawing::AddEntity(Type type, const Fields& fields) {
  Add(RecordHead{static_cast<unsigned>(type), true}, fields);
}

unsigned Drawing::ClassNumber(const std::string& type) const {
  for (const NumberedClass& known : classes) {
    if (known.spec.type == type) return known.number;
  }
  throw std::invalid_argument("no such class: " + type);
}

Handle Drawing::LayerHandle(const std::string& name) const {
  return Found(layers, name, layers.empty() ? 0 : layers.front().handle);
}

Handle Drawing::LinetypeHandle(const std::string& name) const {
  return Found(linetypes, name, roots.continuous);
}

Handle Drawing::ApplicationHandle(const std::string& name) const {
  return Found(applications, name, 0);
}

PlannedBlock* Drawing::BlockNamed(std::string_view name) {
  for (PlannedBlock& block : blocks) {
    if (drawing::IsSameName(block.name, name)) return &block;
  }
  return nullptr;
}

}  // namespace dwg
