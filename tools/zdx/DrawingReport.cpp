#include "DrawingReport.h"

#include <algorithm>
#include <iterator>

#include "PropertyNames.h"
#include "PropertyValue.h"
#include "ZDXEngine/Utf8.h"

namespace zdx {

namespace {

using ZDXEngine::Diagnostics;
using ZDXEngine::FilePropertyMgr;

constexpr std::wstring_view kExtensions[] = {L".dwg", L".dws", L".dwt", L".dxf"};

// A failure may come before anything was opened, and the engine still tells of the file before
// then.
Diagnostics DiagnosticsOf(const std::wstring& path) {
  Diagnostics diagnostics = Diagnostics::LastOpening();
  if (diagnostics.path == path) return diagnostics;
  Diagnostics none;
  none.path = path;
  return none;
}

std::wstring DrawingTypeIn(const std::vector<ZDXEngine::_PropData>& properties) {
  for (const ZDXEngine::_PropData& property : properties) {
    if (!IsDrawingType(property)) continue;
    const PropertyValue value = ValueOf(property);
    const auto* const text = std::get_if<std::wstring_view>(&value);
    return text == nullptr ? std::wstring() : std::wstring(*text);
  }
  return {};
}

DrawingReport ReadReport(const std::wstring& path, Selection selection) {
  std::vector<ZDXEngine::BlockFilterParam> noFilters;
  DrawingReport report;
  report.properties = FilePropertyMgr::Instance().GetProperties(
      path, noFilters, With(selection, FilePropertyMgr::DrawingFlavour));
  report.drawingType = DrawingTypeIn(report.properties);
  report.drawingTypeSelected = Includes(selection, FilePropertyMgr::DrawingFlavour);
  report.diagnostics = DiagnosticsOf(path);
  return report;
}

// The engine goes by a file's extension: what follows the last dot, if that isn't the first
// character.
bool HasDrawingExtension(const std::wstring& path) {
  const std::size_t dot = path.rfind(L'.');
  if (dot == std::wstring::npos || dot == 0) return false;
  std::wstring extension = path.substr(dot);
  for (wchar_t& c : extension) {
    if (c >= L'A' && c <= L'Z') c = static_cast<wchar_t>(c - L'A' + L'a');
  }
  return std::find(std::begin(kExtensions), std::end(kExtensions), extension) !=
         std::end(kExtensions);
}

}  // namespace

std::variant<DrawingReport, Failure> ReadDrawing(const std::wstring& path, Selection selection) {
  try {
    return ReadReport(path, selection);
  } catch (...) {
    Failure failure = DescribeCurrentException();
    const Diagnostics diagnostics = DiagnosticsOf(path);
    if (!diagnostics.errors.empty()) {
      failure.reason = ZDXEngine::Utf8FromWide(diagnostics.errors.front().text);
      failure.place = diagnostics.errors.front().place;
    } else if (!HasDrawingExtension(path)) {
      failure.reason = "Its name doesn't end in .dwg, .dwt, .dws or .dxf.";
    }
    return failure;
  }
}

}  // namespace zdx
