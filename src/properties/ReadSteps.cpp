#include "properties/ReadSteps.h"

#include "properties/appinfo/CreatorProperties.h"
#include "properties/read/BlockAttributes.h"
#include "properties/read/DatabaseProperties.h"
#include "properties/read/DrawingFlavour.h"
#include "properties/read/GeoProperties.h"
#include "properties/read/NamedObjects.h"
#include "properties/read/SummaryProperties.h"
#include "properties/read/ThumbnailProperty.h"

namespace ZDXEngine {
namespace {

// A step that needs nothing but the database.
template <void (*collect)(std::vector<_PropData>&, ZnDbDatabase*)>
void FromDatabase(std::vector<_PropData>& properties, const ReadRequest& request) {
  collect(properties, request.database);
}

// The one step that works on the file and not on the database.
void FromFile(std::vector<_PropData>& properties, const ReadRequest& request) {
  CollectCreatorProperties(properties, request.path);
}

// The one step that works on the filters: without any it doesn't run.
void FromBlocks(std::vector<_PropData>& properties, const ReadRequest& request) {
  if (!request.filters.empty()) {
    GetBlockAttributes(request.filters, properties, request.database);
  }
}

// No step depends on an earlier one, but clients rely on the order of the records.
constexpr ReadStep kSteps[] = {
    {FilePropertyMgr::SummaryInfo, FromDatabase<CollectSummaryProperties>},
    {FilePropertyMgr::CustomSummary, FromDatabase<CollectCustomSummaryProperties>},
    {FilePropertyMgr::Thumbnail, FromDatabase<CollectThumbnailProperty>},
    {FilePropertyMgr::CreatorInfo, FromFile},
    {FilePropertyMgr::DrawingFlavour, FromDatabase<CollectDrawingFlavour>},
    {FilePropertyMgr::DatabaseSettings, FromDatabase<CollectDatabaseProperties>},
    {FilePropertyMgr::GeoLocation, FromDatabase<CollectGeoProperties>},
    {FilePropertyMgr::NamedObjects, FromDatabase<ListDictionaries>},
    {FilePropertyMgr::SymbolTables, FromDatabase<ListSymbolTables>},
    {FilePropertyMgr::BlockAttributes, FromBlocks},
};

}  // namespace

std::span<const ReadStep> ReadSteps() { return kSteps; }

}  // namespace ZDXEngine
