#include "DrawingReport.h"

#include "BlockValues.h"
#include "DrawingFile.h"
#include "PropertyNames.h"
#include "PropertyValue.h"

namespace zdx {

namespace {

using ZDXEngine::FilePropertyMgr;

std::wstring DrawingTypeIn(std::span<const ZDXEngine::_PropData> properties) {
  for (const ZDXEngine::_PropData& property : properties) {
    if (!IsDrawingType(property)) continue;
    const PropertyValue value = ValueOf(property);
    const auto* const text = std::get_if<std::wstring_view>(&value);
    return text == nullptr ? std::wstring() : std::wstring(*text);
  }
  return {};
}

}  // namespace

std::variant<DrawingReport, Failure> ReadProperties(const std::wstring& path,
                                                    const Wanted& wanted) {
  return ReadFile(path, [&](const std::wstring& name) {
    DrawingReport report;
    report.blocks = wanted.blocks;
    const Selection selection = wanted.blocks.empty()
                                    ? wanted.selection
                                    : With(wanted.selection, FilePropertyMgr::BlockAttributes);
    report.properties = FilePropertyMgr::Instance().GetProperties(name, report.blocks, selection);
    report.blockValueCount = CountBlockValues(report.properties, report.blocks);
    report.drawingType = DrawingTypeIn(report.OwnProperties());
    return report;
  });
}

std::variant<DrawingReport, Failure> ReadDrawing(const std::wstring& path, const Wanted& wanted) {
  const Selection selection = With(wanted.selection, FilePropertyMgr::DrawingFlavour);
  auto result = ReadProperties(path, {selection, wanted.blocks});
  if (auto* const report = std::get_if<DrawingReport>(&result)) {
    report->drawingTypeSelected = Includes(wanted.selection, FilePropertyMgr::DrawingFlavour);
  }
  return result;
}

}  // namespace zdx
