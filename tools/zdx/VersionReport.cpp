#include "VersionReport.h"

#include "JsonParts.h"
#include "ReadableText.h"
#include "ZDXEngine/Utf8.h"

namespace zdx {

namespace {

using ZDXEngine::Utf8FromWide;

std::string ValueText(const std::wstring& version) {
  return version.empty() ? "(none)" : ReadableText(version);
}

}  // namespace

std::string TextOf(const std::wstring& path, const VersionReport& report) {
  return ReadableText(path) + "\n  LastSavedAs  " + ValueText(report.lastSavedAs) +
         "\n  Signature    " + ValueText(report.signature) + "\n  Current      " +
         ValueText(report.current) + "\n";
}

std::string JsonOf(const std::wstring& path, const VersionReport& report) {
  Json document = JsonDocument(path, report.failure ? "error" : "ok");
  document["lastSavedAsFileVersion"] =
      report.failure ? Json(nullptr) : Json(Utf8FromWide(report.lastSavedAs));
  document["terrane3DVersion"] = Utf8FromWide(report.signature);
  document["currentVersion"] = Utf8FromWide(report.current);
  if (report.failure) document["error"] = ErrorJson(*report.failure);
  return document.dump() + "\n";
}

std::string TextOfTool(const std::wstring& current) {
  return "zdx " ZDX_VERSION "\n  Current  " + ValueText(current) + "\n";
}

std::string JsonOfTool(const std::wstring& current) {
  const Json document = {
      {"schema", kSchema}, {"zdx", ZDX_VERSION}, {"currentVersion", Utf8FromWide(current)}};
  return document.dump() + "\n";
}

}  // namespace zdx
