#include "support/dxf/DxfMaker.h"

#include <algorithm>
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

std::unique_ptr<TagSink> SinkFor(const Writing& writing, Version version, std::string& file) {
  if (writing.form == Form::Ascii) return std::make_unique<AsciiSink>(file, writing.lineEnd);
  return std::make_unique<BinarySink>(file, version == Version::AC1009
                                                ? BinarySink::CodeSize::OneByte
                                                : BinarySink::CodeSize::TwoBytes);
}

// What stands before the first section.
std::string Head(const Writing& writing, const TextEncoder& encoder) {
  if (writing.form == Form::Binary) return std::string(kBinarySentinel);
  std::string head(writing.hasByteOrderMark ? kByteOrderMark : "");
  AsciiSink sink(head, writing.lineEnd);
  for (const std::string& remark : writing.remarks) sink.Text(kRemark, encoder.Encode(remark));
  return head;
}

}  // namespace

void WriteThumbnail(Drawing& drawing) {
  const std::vector<PreviewSpec>& previews = drawing.spec.previews;
  const auto bitmap =
      std::find_if(previews.begin(), previews.end(), [](const PreviewSpec& preview) {
        return preview.kind == PreviewKind::Bitmap;
      });
  if (bitmap == previews.end()) return;
  drawing.BeginSection("THUMBNAILIMAGE");
  drawing.out.Put({{90, bitmap->bytes.size()}, {310, bitmap->bytes}});
  drawing.EndSection();
}

// The header tells a handle above all others, so it is written when they are known.
std::string Make(const DrawingSpec& spec, const Writing& writing) {
  const Version version = VersionOf(spec.version);
  const TextEncoder encoder = EncoderFor(spec, version);
  std::string sections;
  const auto sink = SinkFor(writing, version, sections);
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
  const auto headerSink = SinkFor(writing, version, header);
  TagWriter headerWriter(*headerSink, encoder, version);
  WriteHeader(spec, headerWriter, drawing.handles.Seed());
  return Head(writing, encoder) + header + sections;
}

}  // namespace dxf
