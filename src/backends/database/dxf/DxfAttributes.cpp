// Texts, attributes and their definitions, and the references that carry attributes.
#include "backends/database/dxf/DxfDrawing.h"
#include "backends/database/dxf/GroupedTags.h"
#include "backends/database/dxf/Lines.h"
#include "backends/database/dxf/Tokens.h"

namespace zdx::dxf {
namespace {

// Of an attribute's flags.
constexpr std::int64_t kConstantFlag = 2;

// What the tags of an attribute or a definition tell.
struct StoredAttribute {
  std::optional<Tag> tag;
  std::optional<Tag> prompt;
  std::optional<Tag> text;
  std::optional<Tag> flags;
  std::uint64_t extension = 0;
  // From AC1032 on a multi-line text is embedded behind the attribute's own tags.
  bool hasEmbedded = false;
  ChunkedText embedded{kMoreTextCode, kTextCode};
};

void KeepFirst(std::optional<Tag>& kept, const Tag& tag) {
  if (!kept) kept = tag;
}

bool IsAttributeMarker(std::string_view marker) {
  return marker == kAttributeMarker || marker == kAttributeDefinitionMarker;
}

StoredAttribute ReadStored(const TagStream& stream, GroupedTags& tags) {
  StoredAttribute stored;
  HeadReader head(stream.form());
  bool isBehindMarker = false;
  Tag tag;
  while (tags.Next(tag)) {
    head.Take(tags, tag);
    if (!tags.IsOwn()) continue;
    stored.hasEmbedded = stored.hasEmbedded || tag.code == kEmbeddedCode;
    if (stored.hasEmbedded) {
      stored.embedded.Take(tag);
      continue;
    }
    switch (tag.code) {
      case kSubclassCode:
        isBehindMarker = isBehindMarker || IsAttributeMarker(Trimmed(tag.value));
        break;
      case kTextCode:
        KeepFirst(stored.text, tag);
        break;
      case kNameCode:
        KeepFirst(stored.tag, tag);
        break;
      case kPromptCode:
        KeepFirst(stored.prompt, tag);
        break;
      case kFlagsCode:
        if (isBehindMarker || !head.HasMarkers()) KeepFirst(stored.flags, tag);
        break;
      default:
        break;
    }
  }
  stored.extension = head.head().extension;
  return stored;
}

}  // namespace

model::Attribute DxfDrawing::ReadAttribute(model::ObjectKey entity) {
  const ObjectStart start = StartOf(entity);
  GroupedTags tags(stream_, start.body);
  const StoredAttribute stored = ReadStored(stream_, tags);
  WarnOfDamage(tags.tags());
  const bool isLost = tags.tags().endedByDamage();
  model::Attribute attribute;
  if (stored.tag) attribute.tag = Text(*stored.tag, model::TextUse::kName);
  if (!stored.tag && !isLost) Warn(L"An attribute has no tag.", start.at);
  attribute.prompt = TextOrEmpty(stored.prompt, isLost);
  std::int64_t flags = 0;
  attribute.isConstant = stored.flags && ParseInteger(stream_.form(), stored.flags->value, flags) &&
                         (flags & kConstantFlag) != 0;
  attribute.isMultiLine = stored.hasEmbedded;
  const bool isEmbedded = stored.hasEmbedded && (stored.embedded.Found() || isLost);
  attribute.text = isEmbedded ? TextOf(stored.embedded, isLost) : TextOrEmpty(stored.text, isLost);
  if (version_ < model::kVersion1032 && !stored.hasEmbedded) {
    ReadMultiLineRecord(stored.extension, attribute);
  }
  return attribute;
}

// Below AC1032 a multi-line attribute looks like any other, and a record of its own tells what it
// is: the tag, and behind a mark the text.
void DxfDrawing::ReadMultiLineRecord(model::Handle extension, model::Attribute& attribute) {
  const std::optional<ObjectStart> record = ExtensionEntry(extension, kMultiLineKey);
  if (!record || record->type != kXrecord || !TakeExtension(*record)) return;
  attribute.isMultiLine = true;
  ChunkedText text(kMoreTextCode, kTextCode);
  std::optional<Tag> name;
  bool isBehindMark = false;
  ObjectTags tags(stream_, record->body);
  Tag tag;
  while (tags.Next(tag)) {
    if (isBehindMark) text.Take(tag);
    if (tag.code == kTextCode && Trimmed(tag.value) == kEmbeddedMark) isBehindMark = true;
    if (tag.code == kNameCode) KeepFirst(name, tag);
  }
  WarnOfDamage(tags);
  if (name) attribute.tag = Text(*name, model::TextUse::kName);
  if (text.Found()) attribute.text = TextOf(text, tags.endedByDamage());
}

std::optional<std::wstring> DxfDrawing::EntityText(model::ObjectKey entity) {
  const ObjectStart start = StartOf(entity);
  ChunkedText text(kMoreTextCode, kTextCode);
  GroupedTags tags(stream_, start.body);
  Tag tag;
  while (tags.Next(tag) && tag.code != kEmbeddedCode) {
    if (tags.IsOwn()) text.Take(tag);
  }
  WarnOfDamage(tags.tags());
  return TextOf(text, tags.tags().endedByDamage());
}

// The attributes follow their reference; a flag tells whether there are any, but not always the
// truth.
model::BlockReference DxfDrawing::ReadBlockReference(model::ObjectKey entity) {
  model::BlockReference reference;
  ObjectStart start = StartOf(entity);
  const ReferenceTags tags = ReadReference(stream_, start.body);
  const Block* const block = tags.name ? Blocks().OfName(TypeText(tags.name->value)) : nullptr;
  if (block != nullptr) reference.block = block->key;
  start = stream_.NextObject(start.body);
  for (; start.type == kAttribute; start = stream_.NextObject(start.body)) {
    reference.attributes.push_back(model::ObjectKey{start.at});
  }
  return reference;
}

std::optional<std::wstring> DxfDrawing::TextOrEmpty(const std::optional<Tag>& tag, bool isLost) {
  if (tag) return Text(*tag, model::TextUse::kValue);
  return isLost ? std::nullopt : std::optional<std::wstring>(L"");
}

std::optional<std::wstring> DxfDrawing::TextOf(const ChunkedText& chunks, bool isLost) {
  if (isLost && !chunks.IsComplete()) return std::nullopt;
  return chunks.Found() ? Text(chunks.bytes(), chunks.at(), model::TextUse::kValue) : L"";
}

}  // namespace zdx::dxf
