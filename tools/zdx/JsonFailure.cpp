#include "JsonFailure.h"

#include "JsonParts.h"

namespace zdx {

std::string JsonOf(const std::wstring& path, const Failure& failure) {
  Json document = JsonDocument(path, "error");
  document["error"] = ErrorJson(failure);
  return document.dump() + "\n";
}

}  // namespace zdx
