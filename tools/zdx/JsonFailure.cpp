#include "JsonFailure.h"

#include <utility>

#include "JsonParts.h"

namespace zdx {

namespace {

Json ErrorJson(const Failure& failure) {
  Json error = {{"class", failure.className}, {"code", nullptr}, {"message", failure.message}};
  if (failure.code) error["code"] = *failure.code;
  Json place;
  AddPlace(place, failure.place);
  error["place"] = std::move(place);
  if (!failure.reason.empty()) error["reason"] = failure.reason;
  return error;
}

}  // namespace

std::string JsonOf(const std::wstring& path, const Failure& failure) {
  Json document = JsonDocument(path, "error");
  document["error"] = ErrorJson(failure);
  return document.dump() + "\n";
}

}  // namespace zdx
