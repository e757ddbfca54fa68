#include <utility>

#include "BlockReport.h"
#include "JsonParts.h"
#include "ZDXEngine/Utf8.h"

namespace zdx {

namespace {

using ZDXEngine::Utf8FromWide;

Json BlockJson(const ZDXEngine::BlockInfo& block) {
  Json attributes = Json::array();
  for (const ZDXEngine::AttributeDefinitionInfo& definition : block.definitions) {
    attributes.push_back({{"tag", Utf8FromWide(definition.tag)},
                          {"prompt", Utf8FromWide(definition.prompt)},
                          {"text", Utf8FromWide(definition.text)},
                          {"constant", definition.isConstant}});
  }
  Json object = {{"name", Utf8FromWide(block.name)},
                 {"references", block.references},
                 {"variations", block.variations}};
  object["attributes"] = std::move(attributes);
  return object;
}

std::string BlocksText(const BlockReport& report) {
  std::string list = "[";
  for (const ZDXEngine::BlockInfo& block : report.blocks) {
    if (list.size() > 1) list += ',';
    list += BlockJson(block).dump();
  }
  return list + ']';
}

}  // namespace

std::string JsonOf(const std::wstring& path, const BlockReport& report) {
  Json document = JsonDocument(path, "ok");
  AddForm(document, report.diagnostics);
  return DocumentText(document, "blocks", BlocksText(report), report.diagnostics);
}

}  // namespace zdx
