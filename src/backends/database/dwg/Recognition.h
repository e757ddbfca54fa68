// Whether a file is a DWG drawing of a version that can be read.
#pragma once

#include <optional>
#include <string_view>

#include "backends/database/model/Report.h"
#include "backends/database/model/Version.h"

namespace zdx::dwg {

// Why a file isn't read.
enum class RefusalKind { kNotADrawing, kVersionNotKnown, kProtected, kDamaged };

struct Refusal {
  RefusalKind kind = RefusalKind::kNotADrawing;
  // A sentence without the file's name, and where in the file.
  model::Finding reason;
};

struct Recognition {
  // nullopt if the file isn't to be read.
  std::optional<model::Version> version;
  Refusal refusal;
};

// Whether `bytes` begin as DWG drawings of any version do.
bool HasMagic(std::string_view bytes);

Recognition Recognise(std::string_view bytes);

}  // namespace zdx::dwg
