#include "support/dxf/DxfMaker.h"

#include <memory>

#include "support/dxf/Drawing.h"
#include "support/dxf/Tokens.h"

namespace dxf {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr int kRemark = 999;

TextEncoder EncoderFor(const DrawingSpec& spec, Version version) {
  return HasUnicodeTexts(version) ? TextEncoder() : TextEncoder(spec.codePage);
}

std::unique_ptr<TagSink> SinkFor(const DrawingSpec& spec, Version version, std::string& file) {
  if (spec.form == Form::Ascii) return std::make_unique<AsciiSink>(file, spec.lineEnd);
  return std::make_unique<BinarySink>(file, version == Version::AC1009
                                                ? BinarySink::CodeSize::OneByte
                                                : BinarySink::CodeSize::TwoBytes);
}

// What stands before the first section.
std::string Head(const DrawingSpec& spec, const TextEncoder& encoder) {
  if (spec.form == Form::Binary) return std::string(kBinarySentinel);
  std::string head(spec.hasByteOrderMark ? kByteOrderMark : "");
  AsciiSink sink(head, spec.lineEnd);
  for (const std::string& remark : spec.remarks) sink.Text(kRemark, encoder.Encode(remark));
  return head;
}

}  // namespace

void WriteThumbnail(Drawing& drawing) {
  if (drawing.spec.thumbnail.empty()) return;
  drawing.BeginSection("THUMBNAILIMAGE");
  drawing.out.Put({{90, drawing.spec.thumbnail.size()}, {310, drawing.spec.thumbnail}});
  drawing.EndSection();
}

// The header tells a handle above all others, so it is written when they are known.
std::string Make(const DrawingSpec& spec) {
  const Version version = VersionOf(spec.version);
  const TextEncoder encoder = EncoderFor(spec, version);
  std::string sections;
  const auto sink = SinkFor(spec, version, sections);
  TagWriter writer(*sink, encoder, version);
  Drawing drawing(spec, writer);
  WriteClasses(drawing);
  WriteTables(drawing);
  WriteBlocks(drawing);
  WriteEntities(drawing);
  WriteObjects(drawing);
  WriteThumbnail(drawing);
  writer.Put({0, "EOF"});

  std::string header;
  const auto headerSink = SinkFor(spec, version, header);
  TagWriter headerWriter(*headerSink, encoder, version);
  WriteHeader(spec, headerWriter, drawing.handles.Seed());
  return Head(spec, encoder) + header + sections;
}

}  // namespace dxf
