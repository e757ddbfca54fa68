// Whether a file is DXF, and in which form.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "backends/database/dxf/TagStream.h"

namespace zdx::dxf {

struct Recognition {
  // nullopt if the file isn't DXF.
  std::optional<Form> form;
  // Why it isn't, as a sentence without the file's name.
  std::wstring reason;
};

Recognition Recognise(std::string_view bytes);

}  // namespace zdx::dxf
