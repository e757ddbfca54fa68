#include "JsonOutput.h"

#include "Base64.h"
#include "JsonParts.h"
#include "PropertyNames.h"
#include "PropertyValue.h"
#include "ZDXEngine/Utf8.h"

namespace zdx {

namespace {

using ZDXEngine::Utf8FromWide;

struct MakeValue {
  Json operator()(std::monostate) const { return nullptr; }
  Json operator()(bool flag) const { return flag; }
  Json operator()(double number) const { return number; }
  Json operator()(std::wstring_view text) const { return Utf8FromWide(text); }
  Json operator()(std::span<const std::uint8_t> bytes) const { return Base64(bytes); }
};

// Filled in place: a braced list would be copied, and a drawing may have thousands of properties.
Json PropertyJson(const ZDXEngine::_PropData& property) {
  Json object = Json::object();
  auto& members = object.get_ref<Json::object_t&>();
  members.reserve(4);
  members.emplace("formatId", Utf8FromWide(property.formatId));
  members.emplace("name", Utf8FromWide(property.name));
  members.emplace("typeCode", property.typeCode);
  members.emplace("value", std::visit(MakeValue{}, ValueOf(property)));
  return object;
}

void AppendProperty(std::string& list, const ZDXEngine::_PropData& property) {
  if (list.size() > 1) list += ',';
  list += PropertyJson(property).dump();
}

std::string PropertiesText(const DrawingReport& report) {
  std::string list = "[";
  for (const ZDXEngine::_PropData& property : report.OwnProperties()) {
    if (report.drawingTypeSelected || !IsDrawingType(property)) AppendProperty(list, property);
  }
  for (const ZDXEngine::_PropData& property : report.BlockProperties()) {
    AppendProperty(list, property);
  }
  return list + ']';
}

}  // namespace

std::string JsonOf(const std::wstring& path, const DrawingReport& report) {
  Json document = JsonDocument(path, "ok");
  document["drawingType"] = Utf8FromWide(report.drawingType);
  AddForm(document, report.diagnostics);
  return DocumentText(document, "properties", PropertiesText(report), report.diagnostics);
}

}  // namespace zdx
