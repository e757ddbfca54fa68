#include "formats/dxf/HandmadeDrawing.h"

#include <algorithm>
#include <stdexcept>

#include "backends/database/dxf/GroupedTags.h"
#include "backends/database/dxf/Recognition.h"
#include "support/Paths.h"
#include "support/drawing/Tokens.h"
#include "support/dxf/TagSink.h"
#include "support/dxf/TagWriter.h"
#include "support/dxf/TextEncoder.h"
#include "support/dxf/Tokens.h"

namespace handmade_dxf {
namespace {

namespace model = zdx::model;
using model::ObjectKey;

void PutSection(dxf::TagWriter& writer, const std::string& name, const Tags& tags) {
  if (tags.empty()) return;
  writer.Put({{0, "SECTION"}, {2, name}});
  writer.Put(tags);
  writer.Put({0, "ENDSEC"});
}

void PutAll(dxf::TagWriter& writer, const Contents& contents) {
  PutSection(writer, "HEADER",
             Join({{{9, dxf::kVersionVariable}, {1, contents.version}}, contents.variables}));
  PutSection(writer, "TABLES", contents.records);
  PutSection(writer, "BLOCKS", contents.blocks);
  PutSection(writer, "ENTITIES", contents.entities);
  PutSection(writer, "OBJECTS", contents.objects);
  writer.Put({0, "EOF"});
}

}  // namespace

Tags Join(std::initializer_list<Tags> parts) {
  Tags all;
  for (const Tags& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}

std::string BytesOf(const Contents& contents, dxf::Form form) {
  const drawing::Version version = drawing::VersionOf(contents.version);
  const dxf::TextEncoder encoder =
      drawing::HasUnicodeTexts(version) ? dxf::TextEncoder() : dxf::TextEncoder("ANSI_1252");
  std::string bytes;
  if (form == dxf::Form::Ascii) {
    dxf::AsciiSink sink(bytes, "\n");
    dxf::TagWriter writer(sink, encoder, version);
    PutAll(writer, contents);
    return bytes;
  }
  using Size = dxf::BinarySink::CodeSize;
  bytes = dxf::kBinarySentinel;
  dxf::BinarySink sink(bytes, version == drawing::Version::AC1009 ? Size::OneByte : Size::TwoBytes);
  dxf::TagWriter writer(sink, encoder, version);
  PutAll(writer, contents);
  return bytes;
}

Tags Record(const std::string& handle, const std::string& name, const Tags& more) {
  return Join({{{0, "BLOCK_RECORD"}, {5, handle}, {2, name}}, more});
}

Tags BlockOf(const std::string& name, const Tags& entities, const std::string& owner) {
  Tags begin = {{0, "BLOCK"}};
  if (!owner.empty()) begin.emplace_back(330, owner);
  begin.insert(begin.end(), {{100, drawing::kEntityMarker}, {100, drawing::kBlockBeginMarker}});
  if (!name.empty()) begin.emplace_back(2, name);
  return Join({begin, entities, {{0, "ENDBLK"}}});
}

Tags Entity(const std::string& type, const std::string& handle, const std::string& owner,
            const std::string& marker, const Tags& body) {
  Tags head = {{0, type}};
  if (!handle.empty()) head.emplace_back(5, handle);
  if (!owner.empty()) head.emplace_back(330, owner);
  return Join({head, {{100, drawing::kEntityMarker}, {8, "0"}, {100, marker}}, body});
}

Tags Line(const std::string& handle, const std::string& owner, bool isOnPaper) {
  Tags tags = Entity("LINE", handle, owner, drawing::kLineMarker, {{10, 1.0}, {20, 2.0}});
  if (isOnPaper) {
    const auto layer =
        std::find_if(tags.begin(), tags.end(), [](const auto& t) { return t.code == 8; });
    tags.insert(layer, drawing::Tag(67, 1));
  }
  return tags;
}

Tags Insert(const std::string& block, const std::string& handle, const std::string& owner) {
  return Entity("INSERT", handle, owner, drawing::kBlockReferenceMarker,
                {{2, block}, {10, 1.0}, {20, 2.0}});
}

Tags Attribute(const std::string& tag, const std::string& text) {
  return {{0, "ATTRIB"}, {100, drawing::kEntityMarker},    {8, "0"}, {100, drawing::kTextMarker},
          {1, text},     {100, drawing::kAttributeMarker}, {2, tag}, {70, 0}};
}

Tags Extension(const std::string& handle) {
  return {{102, dxf::kExtensionGroup}, {360, handle}, {102, dxf::kGroupEnd}};
}

Tags Dictionary(const std::string& handle, const std::string& key, const std::string& value) {
  return {
      {0, "DICTIONARY"}, {5, handle}, {100, drawing::kDictionaryMarker}, {3, key}, {360, value}};
}

OpenDrawing::OpenDrawing(const std::string& bytes)
    : file_(bytes, ".dxf"), bytes_(bytes), report_(std::make_shared<model::Report>()) {
  const auto recognised = zdx::dxf::Recognise(bytes_);
  auto file = zdx::file::MappedFile::Open(zdx_test::NameOf(file_.path()));
  drawing_ = std::make_unique<zdx::dxf::DxfDrawing>(
      std::move(std::get<zdx::file::MappedFile>(file)), recognised.form.value(), report_);
}

std::vector<std::wstring> OpenDrawing::Warnings() const {
  std::vector<std::wstring> texts;
  for (const model::Finding& warning : report_->warnings) texts.push_back(warning.text);
  return texts;
}

std::wstring OpenDrawing::NameOf(ObjectKey block) {
  return drawing_->RecordName(model::TableKind::kBlock, block).value_or(L"-");
}

std::vector<std::wstring> OpenDrawing::BlockNames() {
  std::vector<std::wstring> names;
  for (const ObjectKey block : drawing_->TableRecords(model::TableKind::kBlock)) {
    names.push_back(NameOf(block));
  }
  return names;
}

ObjectKey OpenDrawing::BlockNamed(const std::wstring& name) {
  for (const ObjectKey block : drawing_->TableRecords(model::TableKind::kBlock)) {
    if (NameOf(block) == name) return block;
  }
  throw std::invalid_argument("there is no such block");
}

std::vector<std::string> OpenDrawing::TypesOf(const std::vector<ObjectKey>& objects) {
  const zdx::dxf::TagStream stream(bytes_, *zdx::dxf::Recognise(bytes_).form);
  std::vector<std::string> types;
  for (const ObjectKey object : objects) {
    types.emplace_back(stream.ObjectAt(static_cast<std::size_t>(object)).type);
  }
  return types;
}

std::vector<std::string> OpenDrawing::HandlesOf(const std::vector<ObjectKey>& entities) {
  const zdx::dxf::TagStream stream(bytes_, *zdx::dxf::Recognise(bytes_).form);
  std::vector<std::string> handles;
  for (const ObjectKey entity : entities) {
    zdx::dxf::ObjectTags tags(stream, stream.ObjectAt(static_cast<std::size_t>(entity)).body);
    zdx::dxf::Tag tag;
    const bool hasHandle = tags.Next(tag) && tag.code == 5;
    handles.emplace_back(hasHandle ? tag.value : "-");
  }
  return handles;
}

std::vector<std::string> OpenDrawing::ReferencesOf(const std::wstring& block) {
  return HandlesOf(drawing_->BlockReferences(BlockNamed(block)));
}

std::wstring OpenDrawing::OwnerOf(ObjectKey entity) {
  const auto owner = drawing_->OwnerBlock(entity);
  return owner ? NameOf(*owner) : L"-";
}

}  // namespace handmade_dxf
