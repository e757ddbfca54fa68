#include "JsonParts.h"

#include <utility>

#include "Messages.h"
#include "ZDXEngine/Utf8.h"

namespace zdx {

namespace {

using ZDXEngine::Utf8FromWide;

// Appends a member to `document`, the text of an object that isn't empty; `value` is JSON text.
void AppendMember(std::string& document, std::string_view name, std::string_view value) {
  document.back() = ',';
  document.append("\"").append(name).append("\":").append(value).append("}");
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

// What the file doesn't tell is null.
Json TextOrNull(const std::wstring& text) {
  return text.empty() ? Json(nullptr) : Json(Utf8FromWide(text));
}

}  // namespace

Json JsonDocument(const std::wstring& path, const char* status) {
  return {{"schema", kSchema}, {"file", Utf8FromWide(path)}, {"status", status}};
}

void AddForm(Json& document, const ZDXEngine::Diagnostics& found) {
  document["format"] = TextOrNull(found.format);
  document["signature"] = TextOrNull(found.version);
  document["codePage"] = TextOrNull(found.codePage);
}

void AddPlace(Json& object, const ZDXEngine::DiagnosticPlace& place) {
  if (place.line) object["line"] = *place.line;
  if (place.offset) object["offset"] = *place.offset;
  if (place.handle) object["handle"] = HandleText(*place.handle);
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

std::string DocumentText(const Json& document, std::string_view listName, std::string_view list,
                         const ZDXEngine::Diagnostics& found) {
  std::string text = document.dump();
  AppendMember(text, listName, list);
  AppendMember(text, "warnings", WarningsJson(found).dump());
  const std::uint64_t leftOut = WarningsLeftOut(found);
  if (leftOut > 0) AppendMember(text, "warningsLeftOut", std::to_string(leftOut));
  return text + "\n";
}

}  // namespace zdx
