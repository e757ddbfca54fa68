// What the drawing-database library promises, of the embedded one and of the stand-in for tests.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <optional>

#include "ZDXEngine/Utf8.h"
#include "backends/database/zndb/DatabaseProvider.h"
#include "platform/zndb/Provider.h"
#include "support/Paths.h"
#include "support/Scratch.h"
#include "support/dwg/DwgMaker.h"
#include "support/dxf/DxfMaker.h"
#include "support/scripted/World.h"

namespace database_contract {
namespace {

using testing::ElementsAre;

// A provider with a drawing of the layers "0" and "Walls", the group "Pair", the title "Plan" and
// one custom entry.
class Subject {
 public:
  virtual ~Subject() = default;
  // Reads the drawing into `database`.
  virtual Zent::ErrorStatus Read(ZnDbDatabase& database) = 0;
  // The path that it is read from.
  virtual std::wstring Path() const = 0;
};

class Scripted : public Subject {
 public:
  Scripted() {
    world_.drawing.layers.Add(L"0");
    world_.drawing.layers.Add(L"Walls");
    world_.drawing.groups.Add(L"Pair");
    world_.drawing.namedObjects.Add(L"GROUPS");
    world_.drawing.summary.title = L"Plan";
    world_.drawing.summary.custom = {{L"Client", L"Somebody"}};
    world_.drawing.settings.menu = L"menu";
    world_.drawing.originalFileName = Path();
  }
  std::wstring Path() const override { return L"/somewhere/plan.dxf"; }
  Zent::ErrorStatus Read(ZnDbDatabase& database) override {
    return database.dxfIn(Path().c_str(), nullptr);
  }

 private:
  scripted::World world_;
};

class Embedded : public Subject {
 public:
  explicit Embedded(bool asDwg)
      : asDwg_(asDwg), before_(zndb::InstallProvider(zdx::database::EmbeddedProvider())) {
    drawing::DrawingSpec spec;
    spec.layers = {"0", "Walls"};
    spec.groups = {"Pair"};
    spec.summary.title = "Plan";
    spec.customProperties = {{"Client", "Somebody"}};
    spec.settings.menu = "menu";
    file_.emplace(asDwg ? dwg::Make(spec) : dxf::Make(spec), asDwg ? ".dwg" : ".dxf");
  }
  ~Embedded() override { zndb::InstallProvider(before_); }
  std::wstring Path() const override { return zdx_test::NameOf(file_->path()); }
  Zent::ErrorStatus Read(ZnDbDatabase& database) override {
    const std::wstring path = Path();
    return asDwg_ ? database.readDwgFile(path.c_str(), 4, true, nullptr)
                  : database.dxfIn(path.c_str(), nullptr);
  }

 private:
  bool asDwg_;
  zndb::Provider* before_;
  std::optional<zdx_test::ScratchFile> file_;
};

class DatabaseContract : public testing::TestWithParam<const char*> {
 protected:
  DatabaseContract() {
    if (std::string(GetParam()) == "Scripted") {
      subject = std::make_unique<Scripted>();
    } else {
      subject = std::make_unique<Embedded>(std::string(GetParam()) == "EmbeddedDwg");
    }
    database.emplace(false, true);
    status = subject->Read(*database);
  }

  ZnDbLayerTable* Layers() {
    ZnDbLayerTable* table = nullptr;
    EXPECT_EQ(database->getSymbolTable(table, ZnDb::kForRead), Zent::kOk);
    return table;
  }

  ZnDbLayerTableRecord* Open(ZnDbObjectId id) {
    ZnDbLayerTableRecord* record = nullptr;
    EXPECT_EQ(zndbOpenObject(record, id, ZnDbLayerTableRecord::desc(), ZnDb::kForRead, false),
              Zent::kOk);
    return record;
  }

  std::unique_ptr<Subject> subject;
  std::optional<ZnDbDatabase> database;
  Zent::ErrorStatus status = -1;
};

TEST_P(DatabaseContract, ReadsTheDrawing) { EXPECT_EQ(status, Zent::kOk); }

TEST_P(DatabaseContract, KnowsTheFileThatItWasReadFrom) {
  EXPECT_EQ(database->originalFileName(), subject->Path());
}

TEST_P(DatabaseContract, IteratesOverTheRecordsInOrder) {
  ZnDbLayerTable* const table = Layers();
  ZnDbSymbolTableIterator* made = nullptr;
  ASSERT_EQ(table->newIterator(made, true, true), Zent::kOk);
  const std::unique_ptr<ZnDbSymbolTableIterator> iterator(made);
  std::vector<std::wstring> names;
  for (; !iterator->done(); iterator->step(true, true)) {
    ZnDbObjectId id;
    ASSERT_EQ(iterator->getRecordId(id), Zent::kOk);
    ZnDbLayerTableRecord* const record = Open(id);
    ZnString name;
    EXPECT_EQ(record->getName(name), Zent::kOk);
    names.emplace_back(static_cast<const wchar_t*>(name));
    record->close();
  }
  EXPECT_THAT(names, ElementsAre(L"0", L"Walls"));
  table->close();
}

TEST_P(DatabaseContract, FindsARecordWithoutRegardToCase) {
  ZnDbLayerTable* const table = Layers();
  ZnDbObjectId id;
  EXPECT_EQ(table->getIdAt(L"wALLS", id, false), Zent::kOk);
  EXPECT_FALSE(id.isNull());
  ZnDbObjectId none;
  EXPECT_NE(table->getIdAt(L"Doors", none, false), Zent::kOk);
  table->close();
}

TEST_P(DatabaseContract, AnOpenedObjectKnowsItsIdAndItsClass) {
  ZnDbLayerTable* const table = Layers();
  ZnDbObjectId id;
  ASSERT_EQ(table->getIdAt(L"0", id, false), Zent::kOk);
  ZnDbLayerTableRecord* const record = Open(id);
  EXPECT_EQ(record->objectId(), id);
  EXPECT_TRUE(record->isA()->isDerivedFrom(ZnDbSymbolTableRecord::desc()));
  record->assertReadEnabled();
  record->close();
  table->close();
}

TEST_P(DatabaseContract, AnObjectOfAnotherClassIsNotOpened) {
  ZnDbLayerTable* const table = Layers();
  ZnDbObjectId id;
  ASSERT_EQ(table->getIdAt(L"0", id, false), Zent::kOk);
  ZnDbDictionary* dictionary = nullptr;
  EXPECT_NE(zndbOpenObject(dictionary, id, ZnDbDictionary::desc(), ZnDb::kForRead, false),
            Zent::kOk);
  EXPECT_EQ(dictionary, nullptr);
  table->close();
}

TEST_P(DatabaseContract, TheNullIdOpensNothing) {
  ZnDbObject* object = nullptr;
  EXPECT_NE(zndbOpenObject(object, ZnDbObjectId(), ZnDb::kForRead, false, nullptr), Zent::kOk);
  EXPECT_EQ(object, nullptr);
}

TEST_P(DatabaseContract, GivesTheEntriesOfADictionary) {
  ZnDbDictionary* dictionary = nullptr;
  ASSERT_EQ(database->getGroupDictionary(dictionary, ZnDb::kForRead), Zent::kOk);
  const std::unique_ptr<ZnDbDictionaryIterator> iterator(dictionary->newIterator());
  std::vector<std::wstring> names;
  for (; !iterator->done(); iterator->next()) names.emplace_back(iterator->name());
  EXPECT_THAT(names, ElementsAre(L"Pair"));
  ZnDbObjectId id;
  EXPECT_EQ(dictionary->getAt(L"Pair", id), Zent::kOk);
  EXPECT_NE(dictionary->getAt(L"Trio", id), Zent::kOk);
  dictionary->close();
}

TEST_P(DatabaseContract, TheRootIsTheNamedObjectsDictionary) {
  ZnDbDictionary* root = nullptr;
  ASSERT_EQ(zndbOpenObject(root, database->namedObjectsDictionaryId(), ZnDbDictionary::desc(),
                           ZnDb::kForRead, false),
            Zent::kOk);
  EXPECT_EQ(root->objectId(), database->namedObjectsDictionaryId());
  root->close();
}

TEST_P(DatabaseContract, GivesACopyOfTheSummary) {
  ZnDbDatabaseSummaryInfo* made = nullptr;
  ASSERT_EQ(zndbGetSummaryInfo(&*database, made), Zent::kOk);
  const std::unique_ptr<ZnDbDatabaseSummaryInfo> info(made);
  ZnString title;
  EXPECT_EQ(info->getTitle(title), Zent::kOk);
  EXPECT_STREQ(title, L"Plan");
  ASSERT_EQ(info->numCustomInfo(), 1);
  ZnString key;
  ZnString value;
  EXPECT_EQ(info->getCustomSummaryInfo(0, key, value), Zent::kOk);
  EXPECT_STREQ(key, L"Client");
  EXPECT_STREQ(value, L"Somebody");
}

TEST_P(DatabaseContract, GivesTheSettings) {
  ZnString menu;
  EXPECT_EQ(database->getMenu(menu), Zent::kOk);
  EXPECT_STREQ(menu, L"menu");
  EXPECT_STREQ(database->dimpost(), L"");
}

TEST_P(DatabaseContract, CopiesATextToItsHeapAndTakesItBack) {
  wchar_t* buffer = nullptr;
  ASSERT_EQ(znutNewString(L"", buffer), Zent::kOk);
  EXPECT_STREQ(buffer, L"");
  znutDelBuffer(buffer);
  EXPECT_EQ(buffer, nullptr);
}

TEST_P(DatabaseContract, ItsRegistryHoldsADynamicLinker) {
  ZnRxObject* const entry = znrxSysRegistry()->at(L"DynamicLinker");
  ASSERT_NE(entry, nullptr);
  EXPECT_TRUE(entry->isA()->isDerivedFrom(ZnRxDynamicLinker::desc()));
  EXPECT_EQ(znrxSysRegistry()->at(L"Nothing"), nullptr);
}

TEST_P(DatabaseContract, ItsLinkerLoadsTheObjectModules) {
  auto* const linker = static_cast<ZnRxDynamicLinker*>(znrxSysRegistry()->at(L"DynamicLinker"));
  for (const wchar_t* name : {L"znismobj24.zdx", L"znGeomentObj.zdx", L"znModelDocObj.zdx"}) {
    EXPECT_TRUE(linker->loadModule(name, false, false));
    EXPECT_TRUE(linker->unloadModule(name, false));
  }
}

// A host that answers nothing.
class Host : public ZnDbHostApplicationServices {
 public:
  Host() : ZnDbHostApplicationServices(1) {}
  Zent::ErrorStatus findFile(wchar_t* /*fileOut*/, int /*bufferLength*/,
                             const wchar_t* /*fileName*/, ZnDbDatabase* /*database*/,
                             int /*hint*/) override {
    return Zent::kFileNotFound;
  }
  Zent::ErrorStatus getRoamingRootFolder(const wchar_t*& folder) override {
    folder = L"";
    return Zent::kOk;
  }
  void* workingServiceObject() const override { return nullptr; }
  const wchar_t* getHostIdentityPrimary() const override { return L""; }
  const wchar_t* getHostIdentitySecondary() const override { return L""; }
  bool substituteFontRequest(ZnFontRequest* /*request*/) override { return false; }
  bool acceptHostQuery(void* /*query*/) override { return true; }
};

TEST_P(DatabaseContract, KeepsTheInstalledServices) {
  EXPECT_EQ(zndbHostApplicationServices(), nullptr);
  Host host;
  EXPECT_EQ(zndbSetHostApplicationServices(&host), Zent::kOk);
  EXPECT_EQ(zndbHostApplicationServices(), &host);
  EXPECT_EQ(zndbSetHostApplicationServices(nullptr), Zent::kOk);
  EXPECT_EQ(zndbHostApplicationServices(), nullptr);
}

TEST_P(DatabaseContract, KeepsTheWorkingDatabase) {
  Host host;
  EXPECT_EQ(host.prodcode(), 4);
  host.setWorkingDatabase(&*database);
  EXPECT_EQ(host.workingDatabase(), &*database);
  host.setWorkingDatabase(nullptr);
  EXPECT_EQ(host.workingDatabase(), nullptr);
}

TEST_P(DatabaseContract, EntriesAreFoundWithoutRegardToCase) {
  ZnDbDictionary* dictionary = nullptr;
  ASSERT_EQ(database->getGroupDictionary(dictionary, ZnDb::kForRead), Zent::kOk);
  ZnDbObjectId id;
  EXPECT_EQ(dictionary->getAt(L"pAIR", id), Zent::kOk);
  dictionary->close();
}

// Success or not: the null id says that there is none.
TEST_P(DatabaseContract, ADrawingThatLiesNowhereHasNoLocation) {
  ZnDbLayerTable* const layers = Layers();
  ZnDbObjectId id = layers->objectId();
  zndbGetGeoDataObjId(&*database, id);
  EXPECT_TRUE(id.isNull());
  layers->close();
}

class EmbeddedDatabase : public testing::TestWithParam<bool> {
 protected:
  Embedded subject{GetParam()};
};

TEST_P(EmbeddedDatabase, DestroyedServicesAreNoLongerInstalled) {
  {
    Host host;
    zndbSetHostApplicationServices(&host);
  }
  EXPECT_EQ(zndbHostApplicationServices(), nullptr);
}

TEST_P(EmbeddedDatabase, ReadsOneFileOnly) {
  ZnDbDatabase database(false, true);
  ASSERT_EQ(subject.Read(database), Zent::kOk);
  EXPECT_NE(subject.Read(database), Zent::kOk);
}

TEST_P(EmbeddedDatabase, AnObjectIsTheSameHoweverOftenItIsClosed) {
  ZnDbDatabase database(false, true);
  ASSERT_EQ(subject.Read(database), Zent::kOk);
  ZnDbLayerTable* table = nullptr;
  ASSERT_EQ(database.getSymbolTable(table, ZnDb::kForRead), Zent::kOk);
  EXPECT_EQ(table->close(), Zent::kOk);
  EXPECT_EQ(table->close(), Zent::kOk);
  ZnDbLayerTable* again = nullptr;
  ASSERT_EQ(database.getSymbolTable(again, ZnDb::kForRead), Zent::kOk);
  EXPECT_EQ(again, table);
}

TEST_P(EmbeddedDatabase, BeforeAFileIsReadThereIsNothing) {
  ZnDbDatabase database(true, true);
  ZnDbLayerTable* table = nullptr;
  EXPECT_NE(database.getSymbolTable(table, ZnDb::kForRead), Zent::kOk);
  EXPECT_EQ(table, nullptr);
  EXPECT_TRUE(database.namedObjectsDictionaryId().isNull());
  EXPECT_EQ(database.originalFileVersion(), 0);
  EXPECT_STREQ(database.originalFileName(), L"");
  const wchar_t* name = nullptr;
  EXPECT_NE(database.getFilename(name), Zent::kOk);
  ZnDbObjectId location;
  EXPECT_NE(zndbGetGeoDataObjId(&database, location), Zent::kOk);
}

TEST_P(EmbeddedDatabase, NoDatabaseLiesAnywhere) {
  ZnDbObjectId location;
  EXPECT_NE(zndbGetGeoDataObjId(nullptr, location), Zent::kOk);
  EXPECT_TRUE(location.isNull());
}

TEST_P(EmbeddedDatabase, SavesNothingYet) {
  ZnDbDatabase database(false, true);
  ASSERT_EQ(subject.Read(database), Zent::kOk);
  EXPECT_NE(database.saveAs(L"/nowhere/a.dwg", true, 33, nullptr), Zent::kOk);
  EXPECT_NE(database.dxfOut(L"/nowhere/a.dxf", 16, 33, false), Zent::kOk);
}

INSTANTIATE_TEST_SUITE_P(Formats, EmbeddedDatabase, testing::Bool(),
                         [](const auto& info) { return info.param ? "Dwg" : "Dxf"; });

INSTANTIATE_TEST_SUITE_P(Providers, DatabaseContract,
                         testing::Values("EmbeddedDxf", "EmbeddedDwg", "Scripted"),
                         [](const auto& info) { return info.param; });

}  // namespace
}  // namespace database_contract
