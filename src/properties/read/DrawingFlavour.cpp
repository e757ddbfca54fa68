#include "properties/read/DrawingFlavour.h"

#include <cstddef>
#include <iterator>
#include <string>

#include "errors/Throw.h"
#include "platform/common/CommonUtils.h"
#include "properties/read/OpenObject.h"
#include "properties/record/AddProperty.h"
#include "resources/Constants.h"

namespace ZDXEngine {
namespace {

constexpr const wchar_t* kZneBlock = L"wd_m";
constexpr const wchar_t* kPartonicEntry = L"IDW_DICT_ROOT";
constexpr const wchar_t* kZnmEntry = L"ZNME_SCOPE_NAME";
constexpr const wchar_t* kZmtEntry = L"ZNASGREF_MASTER";
constexpr const wchar_t* kTerrane3DEntry = L"Root";
constexpr const wchar_t* kTerrane3DClass = L"TerrDbTreeNode";

// By the value of DwgFileType.
constexpr const wchar_t* kFlavourTexts[] = {
    L"eUnrecognized", L"Zent", L"Zent", L"Zne", L"Partonic", L"Znm", L"Zmt", L"Terrane3D",
};
static_assert(std::size(kFlavourTexts) == static_cast<std::size_t>(DwgFileType::Terrane3D) + 1);

bool HasBlock(ZnDbDatabase* database, const wchar_t* name) {
  ZnDbBlockTable* opened = nullptr;
  const Zent::ErrorStatus status =
      database == nullptr ? Zent::kNullDatabase : database->getSymbolTable(opened, ZnDb::kForRead);
  ThrowForStatus(status, kEmptyText);
  const ReleasedObject<ZnDbBlockTable> table(opened);
  table->assertReadEnabled();
  ZnDbObjectId id;
  return table->getIdAt(name, id, false) == Zent::kOk;
}

// Opens the root dictionary for this one look-up.  One that doesn't open has no entries.
bool FindEntry(ZnDbObjectId root, const wchar_t* name, ZnDbObjectId& id) {
  const ClosedObject<ZnDbDictionary> dictionary(OpenForRead<ZnDbDictionary>(root));
  return dictionary != nullptr && dictionary->getAt(name, id) == Zent::kOk;
}

bool HasEntry(ZnDbObjectId root, const wchar_t* name) {
  ZnDbObjectId id;
  return FindEntry(root, name, id);
}

// The name of an object's class, or of the class that a proxy stands for; null if it has none.
const wchar_t* ClassName(const ZnDbObject& object) {
  const ZnRxClass* const type = object.isA();
  if (type == nullptr) return nullptr;
  if (!type->isDerivedFrom(ZnDbProxyObject::desc())) return type->name();
  return static_cast<const ZnDbProxyObject&>(object).proxiedClassName();
}

bool LeadsToTerrane3D(ZnDbObjectId id) {
  ZnDbObject* opened = nullptr;
  if (zndbOpenObject(opened, id, ZnDb::kForRead, false, nullptr) != Zent::kOk) return false;
  const ReleasedObject<ZnDbObject> object(opened);
  const wchar_t* const name = ClassName(*object);
  return name != nullptr &&
         Common::StringUtils::Order(name, kTerrane3DClass, Common::StringOrder{0},
                                    Common::StringCase{1}) == 0;
}

}  // namespace

// The order of the look-ups decides between flavours.
DwgFileType GetDrawingFlavour(ZnDbDatabase* database) {
  if (HasBlock(database, kZneBlock)) return DwgFileType::Zne;
  const ZnDbObjectId root = database->namedObjectsDictionaryId();
  if (HasEntry(root, kPartonicEntry)) return DwgFileType::Partonic;
  if (HasEntry(root, kZnmEntry)) {
    return HasEntry(root, kZmtEntry) ? DwgFileType::Zmt : DwgFileType::Znm;
  }
  ZnDbObjectId id;
  if (!FindEntry(root, kTerrane3DEntry, id)) return DwgFileType::Zent;
  return LeadsToTerrane3D(id) ? DwgFileType::Terrane3D : DwgFileType::Zent;
}

const wchar_t* DrawingFlavourText(DwgFileType type) {
  const auto at = static_cast<std::size_t>(type);
  return at < std::size(kFlavourTexts) ? kFlavourTexts[at] : kFlavourTexts[0];
}

void CollectDrawingFlavour(std::vector<_PropData>& properties, ZnDbDatabase* database) {
  AddText(properties, DrawingFlavourText(GetDrawingFlavour(database)), L"DWG Type", FMTID_Storage,
          kNamedProperty);
}

}  // namespace ZDXEngine
