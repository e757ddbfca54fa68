#include "support/dwg/PlainSections.h"

#include <initializer_list>
#include <stdexcept>

#include "support/dwg/Bytes.h"
#include "support/dwg/Times.h"
#include "support/dwg/Tokens.h"

namespace dwg {
namespace {

constexpr unsigned kAppInfoVersion = 3;
constexpr const char* kAppInfoHistoryMark =
    "53DE381DEC4321CA9619E1E2171A2A673BD97FF73CBBCE08A053D8EDD28DC5C7";
constexpr std::size_t kHeadPictureSize = 80;
constexpr unsigned kHeadPicture = 1;
constexpr std::size_t kEntrySize = 9;
constexpr std::uint64_t kListedTime = 1704103200;
constexpr std::uint64_t kListedSize = 4096;

// A text with its count of characters, the zero at its end among them.
std::string WideText(std::string_view utf8) {
  const std::string text = Utf16(utf8);
  return NumberBytes(text.size() / 2 + 1, 2) + text + std::string(2, '\0');
}

std::string SummaryText(const Drawing& drawing, std::string_view utf8) {
  if (drawing.IsSince(Version::AC1021)) return WideText(utf8);
  const std::string text = drawing.encoder.Encode(utf8);
  return NumberBytes(text.size() + 1, 2) + text + '\0';
}

void AppendTime(std::string& bytes, const Moment& moment) {
  AppendNumber(bytes, moment.day, 4);
  AppendNumber(bytes, moment.millisecond, 4);
}

// The parts of an id between its hyphens, of which the first three are numbers.
std::string IdBytes(const std::string& id) {
  std::string bytes;
  for (const auto& [at, size] : {std::pair<std::size_t, std::size_t>{0, 8}, {9, 4}, {14, 4}}) {
    const std::string part = FromHex(std::string_view(id).substr(at, size));
    bytes.append(part.rbegin(), part.rend());
  }
  return bytes + FromHex(std::string_view(id).substr(19, 4)) +
         FromHex(std::string_view(id).substr(24, 12));
}

std::string AppInfoList(unsigned first, const std::string& label,
                        const std::vector<drawing::AppInfoEntry>& entries) {
  std::string bytes = NumberBytes(first, 4) + WideText(label) + NumberBytes(entries.size(), 4);
  for (const drawing::AppInfoEntry& entry : entries) {
    bytes += IdBytes(entry.id) + WideText(entry.text);
  }
  return bytes;
}

// A text of the list of files with its count of bytes, without a zero at its end.
std::string ListText(const Drawing& drawing, std::string_view utf8) {
  const bool isWide = drawing.IsSince(Version::AC1021);
  const int size = drawing.spec.fileList.characterSize.value_or(isWide ? 2 : 1);
  if (size != 1 && size != 2 && size != 4) throw std::invalid_argument("no such characters");
  if (size == 1) {
    const std::string text = drawing.encoder.Encode(utf8);
    return NumberBytes(text.size(), 4) + text;
  }
  const std::string units = Utf16(utf8);
  std::string text;
  for (std::size_t at = 0; at < units.size(); at += 2) {
    text += units.substr(at, 2);
    if (size == 4) text += std::string(2, '\0');
  }
  return NumberBytes(text.size(), 4) + text;
}

unsigned CodeOf(drawing::PreviewKind kind) {
  switch (kind) {
    case drawing::PreviewKind::Bitmap:
      return 2;
    case drawing::PreviewKind::Metafile:
      return 3;
    default:
      return 6;
  }
}

}  // namespace

std::string SummarySection(const Drawing& drawing) {
  const drawing::SummarySpec& summary = drawing.spec.summary;
  std::string bytes;
  for (const std::string* text :
       {&summary.title, &summary.subject, &summary.author, &summary.keywords, &summary.comments,
        &summary.lastSavedBy, &summary.revisionNumber, &SummaryBase(drawing.spec)}) {
    bytes += SummaryText(drawing, *text);
  }
  for (const Moment& moment : {kEditingTime, kCreated, kUpdated}) AppendTime(bytes, moment);
  AppendNumber(bytes, drawing.spec.customProperties.size(), 2);
  for (const drawing::CustomProperty& property : drawing.spec.customProperties) {
    bytes += SummaryText(drawing, property.name) + SummaryText(drawing, property.value);
  }
  return bytes + std::string(8, '\0');
}

std::string AppInfoSection(const Drawing& drawing) {
  const drawing::AppInfoSpec& info = drawing.spec.appInfo;
  if (info.entries.empty()) return {};
  return AppInfoList(kAppInfoVersion, info.label, info.entries);
}

std::string AppInfoHistorySection(const Drawing& drawing) {
  const drawing::AppInfoSpec& info = drawing.spec.appInfo;
  if (info.history.empty()) return {};
  return FromHex(kAppInfoHistoryMark) + AppInfoList(0, info.label, info.history);
}

std::string FileListSection(const Drawing& drawing) {
  const drawing::FileListSpec& list = drawing.spec.fileList;
  std::string bytes = NumberBytes(list.features.size(), 4);
  for (const std::string& feature : list.features) bytes += ListText(drawing, feature);
  AppendNumber(bytes, list.files.size(), 4);
  for (const drawing::ListedFile& file : list.files) {
    // Behind name and path no fingerprint and no version.
    for (const std::string& text : {file.name, file.path, std::string(), std::string()}) {
      bytes += ListText(drawing, text);
    }
    AppendNumber(bytes, static_cast<std::uint64_t>(file.feature), 4);
    AppendNumber(bytes, kListedTime, 4);
    AppendNumber(bytes, kListedSize, 4);
    // Shown in the drawing; one place names it.
    AppendNumber(bytes, 1, 2);
    AppendNumber(bytes, 1, 4);
  }
  return bytes;
}

// No description; metric.
std::string TemplateSection(Version version) {
  return FromHex(version < Version::AC1021 ? "00000100" : "010000000100");
}

std::string RevisionsSection() { return FromHex("00000000000000000100000000000000"); }

// Of its numbers only the times are known; the others are those of a drawing saved once.
std::string AuxHeaderSection(const Drawing& drawing) {
  const bool isWide = drawing.IsSince(Version::AC1032);
  std::string bytes(isWide ? 129 : 123, '\0');
  PutNumber(bytes, 0, 0x0177FF, 3);
  const std::size_t times = isWide ? 69 : 63;
  std::string moments;
  AppendTime(moments, kCreated);
  AppendTime(moments, kUpdated);
  bytes.replace(times, moments.size(), moments);
  return bytes;
}

std::string PreviewSection(const std::vector<drawing::PreviewSpec>& previews, std::size_t address) {
  std::vector<std::pair<unsigned, std::string>> pictures;
  if (!previews.empty()) pictures.emplace_back(kHeadPicture, std::string(kHeadPictureSize, '\0'));
  for (const drawing::PreviewSpec& preview : previews) {
    pictures.emplace_back(CodeOf(preview.kind), preview.bytes);
  }
  std::string entries = NumberBytes(pictures.size(), 1);
  std::string data;
  const std::string mark = FromHex(kPreviewMark);
  const std::size_t dataAt = address + mark.size() + 4 + 1 + kEntrySize * pictures.size();
  for (const auto& [code, picture] : pictures) {
    AppendNumber(entries, code, 1);
    AppendNumber(entries, dataAt + data.size(), 4);
    AppendNumber(entries, picture.size(), 4);
    data += picture;
  }
  return mark + NumberBytes(entries.size() + data.size(), 4) + entries + data + Inverted(mark);
}

}  // namespace dwg
