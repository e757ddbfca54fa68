#include "JsonOutput.h"

#include <nlohmann/json.hpp>
#include <utility>

#include "Base64.h"
#include "Messages.h"
#include "PropertyNames.h"
#include "PropertyValue.h"
#include "ZDXEngine/Utf8.h"

namespace zdx {

namespace {

using Json = nlohmann::ordered_json;
using ZDXEngine::Utf8FromWide;

constexpr const char* kSchema = "zdx/1";

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

// Written one by one: a tree of a million properties would take many times their text.
std::string PropertiesText(const DrawingReport& report) {
  std::string list = "[";
  for (const ZDXEngine::_PropData& property : report.properties) {
    if (!report.drawingTypeSelected && IsDrawingType(property)) continue;
    if (list.size() > 1) list += ',';
    list += PropertyJson(property).dump();
  }
  return list + ']';
}

// Appends a member to `document`, the text of an object that isn't empty; `value` is JSON text.
void AppendMember(std::string& document, std::string_view name, std::string_view value) {
  document.back() = ',';
  document.append("\"").append(name).append("\":").append(value).append("}");
}

void AddPlace(Json& object, const ZDXEngine::DiagnosticPlace& place) {
  if (place.line) object["line"] = *place.line;
  if (place.offset) object["offset"] = *place.offset;
  if (place.handle) object["handle"] = HandleText(*place.handle);
}

Json WarningsJson(const ZDXEngine::Diagnostics& diagnostics) {
  Json list = Json::array();
  for (const ZDXEngine::DiagnosticMessage& warning : diagnostics.warnings) {
    Json entry = {{"message", Utf8FromWide(warning.text)}};
    AddPlace(entry, warning.place);
    list.push_back(std::move(entry));
  }
  return list;
}

Json ErrorJson(const Failure& failure) {
  Json error = {{"class", failure.className}, {"code", nullptr}, {"message", failure.message}};
  if (failure.code) error["code"] = *failure.code;
  Json place;
  AddPlace(place, failure.place);
  error["place"] = std::move(place);
  if (!failure.reason.empty()) error["reason"] = failure.reason;
  return error;
}

// What the file doesn't tell is null.
Json TextOrNull(const std::wstring& text) {
  return text.empty() ? Json(nullptr) : Json(Utf8FromWide(text));
}

Json Document(const std::wstring& path, const char* status) {
  return {{"schema", kSchema}, {"file", Utf8FromWide(path)}, {"status", status}};
}

}  // namespace

std::string JsonOf(const std::wstring& path, const DrawingReport& report) {
  Json document = Document(path, "ok");
  document["drawingType"] = Utf8FromWide(report.drawingType);
  document["format"] = TextOrNull(report.diagnostics.format);
  document["signature"] = TextOrNull(report.diagnostics.version);
  document["codePage"] = TextOrNull(report.diagnostics.codePage);
  std::string text = document.dump();
  AppendMember(text, "properties", PropertiesText(report));
  AppendMember(text, "warnings", WarningsJson(report.diagnostics).dump());
  const std::uint64_t leftOut = WarningsLeftOut(report.diagnostics);
  if (leftOut > 0) AppendMember(text, "warningsLeftOut", std::to_string(leftOut));
  return text + "\n";
}

std::string JsonOf(const std::wstring& path, const Failure& failure) {
  Json document = Document(path, "error");
  document["error"] = ErrorJson(failure);
  return document.dump() + "\n";
}

}  // namespace zdx
