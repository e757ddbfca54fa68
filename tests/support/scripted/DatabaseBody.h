// What stands behind a ZnDbDatabase of a scripted world: the world's one drawing.
#pragma once

#include <memory>

#include "platform/zndb/Provider.h"
#include "support/scripted/OpenObjects.h"

namespace scripted {

// `label` names the database in the calls; it is logged when the body goes away.
std::unique_ptr<zndb::DatabaseBody> NewDatabaseBody(OpenObjects& objects, const Drawing& drawing,
                                                    std::string label);

// A summary that its caller deletes.
ZnDbDatabaseSummaryInfo* NewSummaryInfo(OpenObjects& objects, const Summary& summary);

}  // namespace scripted
