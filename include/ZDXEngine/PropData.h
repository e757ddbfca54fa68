// One property of a drawing, as FilePropertyMgr hands it to the client.
#pragma once

#include <cstdint>
#include <string>

#include "ZDXEngine/Automation.h"
#include "ZDXEngine/Export.h"

namespace ZDXEngine {

// The values of _PropData::typeCode.
inline constexpr std::int32_t kTypeFlag = 0;    // VT_BOOL
inline constexpr std::int32_t kTypeNumber = 1;  // VT_R8
inline constexpr std::int32_t kTypeText = 2;    // VT_BSTR, whose pointer may be null
inline constexpr std::int32_t kTypeBinary = 4;  // VT_ARRAY | VT_UI1

// One property value.  The record owns its strings and its variant; copying it copies all of them
// and throws _com_error if the variant can't be copied.  A client reads the variant and leaves it
// as it is: where the system has no automation library, only the engine can make and release one.
class ZDXENGINE_API _PropData {
 public:
  _PropData();
  _PropData(const _PropData& other);
  // Takes the value over: so a list grows without copying its texts.  `other` is left with no
  // value, or by the assignment with the one that stood here.
  _PropData(_PropData&& other) noexcept;
  _PropData& operator=(const _PropData& other);
  _PropData& operator=(_PropData&& other) noexcept;
  ~_PropData();

  // The property set, as braced upper-case text of its format id.
  std::wstring formatId;
  // The property's name within the set, or its number as decimal text.
  std::wstring name;
  VARIANT value;
  std::int32_t typeCode = 0;
};

}  // namespace ZDXEngine
