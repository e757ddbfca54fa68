// A property's value in C++ words.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <variant>

#include "ZDXEngine/PropData.h"

namespace zdx {

// Nothing for a null text or a type that no property has; otherwise the flag, number, text or
// bytes.
using PropertyValue =
    std::variant<std::monostate, bool, double, std::wstring_view, std::span<const std::uint8_t>>;

// The value of `property`.  Texts and bytes belong to `property` and live as long.
PropertyValue ValueOf(const ZDXEngine::_PropData& property);

}  // namespace zdx
