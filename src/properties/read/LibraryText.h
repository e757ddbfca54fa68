// Texts that objects of the drawing library give.
#pragma once

#include <optional>
#include <string>

#include "platform/zndb/Status.h"
#include "platform/zndb/ZnString.h"

namespace ZDXEngine {

// What `get` gives; nullopt if it fails.
template <class Object, class Class>
std::optional<std::wstring> ReadText(const Object& object,
                                     Zent::ErrorStatus (Class::*get)(ZnString& text) const) {
  ZnString text;
  if ((object.*get)(text) != Zent::kOk) return std::nullopt;
  return std::wstring(text);
}

}  // namespace ZDXEngine
