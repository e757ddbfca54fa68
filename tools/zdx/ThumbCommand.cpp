#include "ThumbCommand.h"

#include <algorithm>

#include "AsciiCase.h"
#include "DrawingReport.h"
#include "EngineSession.h"
#include "ExitCode.h"
#include "Messages.h"
#include "OutputFile.h"
#include "PropertyValue.h"
#include "ReadableText.h"
#include "ZDXEngine/Utf8.h"

namespace zdx {

namespace {

struct NamedKind {
  std::string_view ending;
  PictureKind kind;
};

constexpr NamedKind kKinds[] = {
    {".png", PictureKind::kPng}, {".bmp", PictureKind::kBmp}, {".wmf", PictureKind::kWmf}};

void ComplainAbout(const std::string& file, std::string_view sentence) {
  Complain(ReadableText(ZDXEngine::WideFromUtf8(file)) + ": " + std::string(sentence));
}

int WritePicture(const ThumbOptions& options, const ThumbnailPicture& picture) {
  const std::string bytes = PictureFile(options.kind, picture);
  if (bytes.empty()) {
    ComplainAbout(options.file, "The preview picture can't be turned into PNG.");
    return kFileFailed;
  }
  const std::optional<std::string> failure = WriteFile(options.output, bytes);
  if (!failure) return kAllFilesRead;
  ComplainAbout(options.output, *failure);
  return kOutputFailed;
}

int WritePictureOf(const ThumbOptions& options, const DrawingReport& report) {
  const auto& properties = report.properties;
  const auto found = std::find_if(properties.begin(), properties.end(), IsThumbnail);
  if (found == properties.end()) {
    ComplainAbout(options.file, "There is no preview picture.");
    return kNothingThere;
  }
  const PropertyValue value = ValueOf(*found);
  const auto* const bytes = std::get_if<std::span<const std::uint8_t>>(&value);
  const auto picture = bytes == nullptr ? std::nullopt : ReadThumbnail(*bytes);
  if (picture) return WritePicture(options, *picture);
  ComplainAbout(options.file, "The preview picture isn't a metafile that draws a bitmap.");
  return kFileFailed;
}

}  // namespace

std::optional<PictureKind> PictureKindOf(std::string_view name) {
  for (const NamedKind& entry : kKinds) {
    if (EndsInIgnoringAsciiCase(name, entry.ending)) return entry.kind;
  }
  return std::nullopt;
}

int RunThumb(const ThumbOptions& options) {
  const EngineSession session;
  const std::wstring path = ZDXEngine::WideFromUtf8(options.file);
  const auto result = ReadProperties(path, {ZDXEngine::FilePropertyMgr::Thumbnail, {}});
  if (const auto* const failure = std::get_if<Failure>(&result)) {
    ComplainAboutFailure(path, *failure);
    return kFileFailed;
  }
  const auto& report = std::get<DrawingReport>(result);
  ComplainAboutWarnings(report.diagnostics);
  return WritePictureOf(options, report);
}

}  // namespace zdx
