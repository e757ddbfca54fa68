// Whether a file is DXF, and in which form.
#pragma once

#include <optional>
#include <string_view>

#include "backends/database/dxf/TagStream.h"
#include "backends/database/model/Report.h"

namespace zdx::dxf {

struct Recognition {
  // nullopt if the file isn't DXF.
  std::optional<Form> form;
  // Why it isn't, as a sentence without the file's name, and where: a line, counted from 1, in what
  // reads like text, an offset elsewhere.
  model::Finding refusal;
};

Recognition Recognise(std::string_view bytes);

}  // namespace zdx::dxf
