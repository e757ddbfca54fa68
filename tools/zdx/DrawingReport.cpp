#include "DrawingReport.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "PropertyNames.h"
#include "PropertyValue.h"
#include "SystemNames.h"
#include "ZDXEngine/Utf8.h"

namespace zdx {

namespace {

using ZDXEngine::Diagnostics;
using ZDXEngine::FilePropertyMgr;

constexpr std::wstring_view kExtensions[] = {L".dwg", L".dws", L".dwt", L".dxf"};

// A drawing's name as it was given, and as the engine gets it.
struct Names {
  explicit Names(const std::wstring& path) : given(path), called(CallablePath(path)) {}
  std::wstring given;
  std::wstring called;
};

// A failure may come before anything was opened, and the engine still tells of the file before
// then.
Diagnostics DiagnosticsOf(const Names& names) {
  Diagnostics diagnostics = Diagnostics::LastOpening();
  if (diagnostics.path != names.called) diagnostics = {};
  diagnostics.path = names.given;
  return diagnostics;
}

// The engine's sentence with the name as it was given.
std::string WithGivenName(std::string sentence, const Names& names) {
  const std::string called = ZDXEngine::Utf8FromWide(names.called);
  const std::size_t at = names.called == names.given ? std::string::npos : sentence.find(called);
  if (at == std::string::npos) return sentence;
  return sentence.replace(at, called.size(), ZDXEngine::Utf8FromWide(names.given));
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

DrawingReport ReadReport(const Names& names, Selection selection) {
  std::vector<ZDXEngine::BlockFilterParam> noFilters;
  DrawingReport report;
  report.properties = FilePropertyMgr::Instance().GetProperties(
      names.called, noFilters, With(selection, FilePropertyMgr::DrawingFlavour));
  report.drawingType = DrawingTypeIn(report.properties);
  report.drawingTypeSelected = Includes(selection, FilePropertyMgr::DrawingFlavour);
  report.diagnostics = DiagnosticsOf(names);
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
  const Names names(path);
  try {
    return ReadReport(names, selection);
  } catch (...) {
    Failure failure = DescribeCurrentException();
    failure.message = WithGivenName(std::move(failure.message), names);
    const Diagnostics diagnostics = DiagnosticsOf(names);
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
