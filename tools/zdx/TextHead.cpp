#include "TextHead.h"

#include "ReadableText.h"

namespace zdx {

std::string TextHead(const std::wstring& path, std::wstring_view drawingType,
                     const ZDXEngine::Diagnostics& found) {
  std::string text = ReadableText(path) + "\n  ";
  text += drawingType.empty() ? "Drawing" : ReadableText(drawingType) + " drawing";
  if (!found.format.empty()) text += ", " + ReadableText(found.format);
  if (!found.version.empty()) text += ", " + ReadableText(found.version);
  if (!found.codePage.empty()) text += ", code page " + ReadableText(found.codePage);
  return text + "\n";
}

}  // namespace zdx
