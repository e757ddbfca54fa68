// Texts, and the attributes of blocks and their references.
#include "backends/database/dwg/DwgDrawing.h"
#include "backends/database/dwg/Tokens.h"
#include "backends/database/dwg/records/FreeRecord.h"
#include "backends/database/dwg/records/Layouts.h"

namespace zdx::dwg {
namespace {

constexpr std::uint64_t kConstantFlag = 2;

// Groups of the record with the lines of an attribute.
constexpr int kTrueTagCode = 2;
constexpr int kPieceCode = 3;
constexpr int kLastPieceCode = 1;

}  // namespace

// The text of a field; nullopt if the record doesn't have it.
std::optional<std::wstring> DwgDrawing::TextOf(const FieldValues& fields, Key key,
                                               model::Handle handle) {
  const FieldValues::Value* const value = fields.Find(key);
  const bool isName = key == Key::kName || key == Key::kTag;
  const auto use = isName ? model::TextUse::kName : model::TextUse::kValue;
  return value == nullptr ? std::nullopt : std::optional(Text(value->bytes, use, handle));
}

std::optional<std::wstring> DwgDrawing::EntityText(model::ObjectKey entity) {
  const auto handle = static_cast<model::Handle>(entity);
  const std::optional<Object> object = Read(handle, {Key::kText});
  return object ? TextOf(object->fields, Key::kText, handle) : std::nullopt;
}

model::Attribute DwgDrawing::ReadAttribute(model::ObjectKey entity) {
  const auto handle = static_cast<model::Handle>(entity);
  const std::optional<Object> object = Read(handle);
  if (!object || (object->type != kAttributeType && object->type != kAttributeDefinitionType)) {
    return {};
  }
  const FieldValues& fields = object->fields;
  model::Attribute attribute;
  attribute.tag = TextOf(fields, Key::kTag, handle);
  attribute.prompt = TextOf(fields, Key::kPrompt, handle);
  attribute.text = TextOf(fields, Key::kText, handle);
  attribute.isConstant = (fields.Number(Key::kAttributeFlags) & kConstantFlag) != 0;
  attribute.isMultiLine = format_.version >= model::kVersion1032
                              ? (fields.Number(Key::kAttributeKind) & kMultiLineKinds) != 0
                              : ReadMultiLine(handle, fields, attribute);
  return attribute;
}

// Below AC1032 the lines stand in a free record, with the tag without its suffix: behind a group
// that begins them, in pieces.  Whether the attribute has such a record.
bool DwgDrawing::ReadMultiLine(model::Handle handle, const FieldValues& fields,
                               model::Attribute& attribute) {
  const auto entry = ExtensionEntry(handle, fields, kMultiLineKey);
  if (!entry || *entry == 0 || !IsPartOf(handle, *entry)) return false;
  const std::optional<Object> object = Read(*entry);
  const FieldValues::Value* const content =
      object && object->like == kFreeRecordType ? object->fields.Find(Key::kBytes) : nullptr;
  if (content == nullptr) return false;
  GroupReader groups(content->bytes, format_);
  bool isInLines = false;
  // Decoded as a whole: a character may have been cut.
  std::string lines;
  while (const std::optional<Group> group = groups.Next()) {
    if (!group->isText) continue;
    if (isInLines) {
      if (group->code != kPieceCode && group->code != kLastPieceCode) continue;
      lines += group->text;
      if (group->code == kPieceCode) continue;
      attribute.text = GroupText(lines, group->codePage, model::TextUse::kValue, *entry);
      return true;
    }
    if (group->code != kTrueTagCode && group->code != kLastPieceCode) continue;
    std::wstring text = GroupText(group->text, group->codePage, model::TextUse::kName, *entry);
    if (group->code == kTrueTagCode) {
      attribute.tag = std::move(text);
    } else {
      isInLines = text == kMultiLineGroup;
    }
  }
  Warn(L"The text of an attribute with many lines isn't there.", handle);
  return true;
}

}  // namespace zdx::dwg
