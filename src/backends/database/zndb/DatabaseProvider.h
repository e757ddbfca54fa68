// The embedded drawing database as the provider of the drawing-database library.
#pragma once

#include "platform/zndb/Provider.h"

namespace zdx::database {

// The one provider, which lives until the process ends.
::zndb::Provider* EmbeddedProvider();

}  // namespace zdx::database
