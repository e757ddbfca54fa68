// Which services are held, what they are asked, and how their answers are listed.
#include <stdexcept>

#include "support/scripted/InFreshProcess.h"
#include "support/scripted/LeakAllowed.h"
#include "unit/references/Modules.h"
#include "unit/references/ReferencesTest.h"

using references::Catch;
using references::DwgDependentFile;
using references::Manager;
using references::Module;
using references::Shown;
using references::Walked;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using ZDXEngine::FileReferenceMgr;
using ZDXEngine::ServiceModules;
using ZDXEngine::VerticalRecord;

namespace {

// What stays until the process ends, where a tool that looks for leaks finds it.
template <class T>
std::vector<T*>& Lasting() {
  static auto& all = *new std::vector<T*>;
  return all;
}

// A manager of the test's own that begins as a copy of `original`.  Managers can't be ended.
FileReferenceMgr& CopyOf(const FileReferenceMgr& original) {
  return *Lasting<FileReferenceMgr>().emplace_back(new FileReferenceMgr(original));
}

// One without services.
FileReferenceMgr& NewManager() { return CopyOf(Manager()); }

std::vector<std::string> Held(const FileReferenceMgr::Services& services) {
  std::vector<std::string> words;
  for (const auto& [key, service] : services) {
    words.push_back(scripted::Shown(key.first) + "=" + scripted::Shown(key.second) + " " +
                    scripted::Shown(service->GetCurrentVersion()));
  }
  return words;
}

class HeldServices : public references::ReferencesTest {
 protected:
  HeldServices() {
    for (const wchar_t* const name : {L"a.zdx", L"b.zdx", L"c.zdx"}) {
      references::Export(world, name);
    }
  }
  FileReferenceMgr::Services& Request(const ServiceModules& modules) {
    return manager.GetExternalVerticalReferenceServices(modules);
  }

  FileReferenceMgr& manager = NewManager();
  Module& module = references::FreshModule();
};

TEST_F(HeldServices, AreNoneAtFirst) {
  EXPECT_THAT(Request({}), IsEmpty());
  EXPECT_THAT(world.Calls(), IsEmpty());
}

TEST_F(HeldServices, AreLoadedInTheOrderOfTheirKeys) {
  EXPECT_THAT(Held(Request({{L"2", L"a.zdx"}, {L"10", L"b.zdx"}})),
              ElementsAre("10=b.zdx 10", "2=a.zdx 2"));
  EXPECT_THAT(world.Calls({"loadModule"}),
              ElementsAre("loadModule(b.zdx, false, false)", "loadModule(a.zdx, false, false)"));
}

TEST_F(HeldServices, AreGivenAsTheyAreIfAsManyAreRequested) {
  Request({{L"1", L"a.zdx"}});
  world.ForgetCalls();
  EXPECT_THAT(Held(Request({{L"2", L"b.zdx"}})), ElementsAre("1=a.zdx 1"));
  EXPECT_THAT(world.Calls(), IsEmpty());
}

TEST_F(HeldServices, AreLoadedOnce) {
  Request({{L"1", L"a.zdx"}});
  world.ForgetCalls();
  EXPECT_THAT(Held(Request({{L"1", L"a.zdx"}, {L"2", L"b.zdx"}})),
              ElementsAre("1=a.zdx 1", "2=b.zdx 2"));
  EXPECT_THAT(world.Calls({"loadModule"}), ElementsAre("loadModule(b.zdx, false, false)"));
}

TEST_F(HeldServices, StayWhenTheyAreNotRequestedAnyMore) {
  Request({{L"1", L"a.zdx"}});
  EXPECT_THAT(Held(Request({})), ElementsAre("1=a.zdx 1"));
  EXPECT_THAT(Held(Request({{L"2", L"b.zdx"}, {L"3", L"c.zdx"}})),
              ElementsAre("1=a.zdx 1", "2=b.zdx 2", "3=c.zdx 3"));
  EXPECT_THAT(world.Calls({"unloadModule"}), IsEmpty());
}

TEST_F(HeldServices, AnotherModuleUnderAVersionIsOneMore) {
  Request({{L"1", L"a.zdx"}});
  EXPECT_THAT(Held(Request({{L"1", L"b.zdx"}, {L"2", L"c.zdx"}})),
              ElementsAre("1=a.zdx 1", "1=b.zdx 1", "2=c.zdx 2"));
}

TEST_F(HeldServices, FewerThanAreHeldAreLoadedAllTheSame) {
  Request({{L"1", L"a.zdx"}, {L"2", L"b.zdx"}});
  EXPECT_THAT(Held(Request({{L"3", L"c.zdx"}})),
              ElementsAre("1=a.zdx 1", "2=b.zdx 2", "3=c.zdx 3"));
}

TEST_F(HeldServices, OneModuleUnderTwoVersionsIsTwo) {
  FileReferenceMgr::Services& held = Request({{L"1", L"a.zdx"}, {L"2", L"a.zdx"}});
  EXPECT_THAT(Held(held), ElementsAre("1=a.zdx 1", "2=a.zdx 2"));
  EXPECT_NE(held.begin()->second, held.rbegin()->second);
  EXPECT_EQ(held.begin()->second->Get_GetDependenciesFuncPtr(),
            held.rbegin()->second->Get_GetDependenciesFuncPtr());
}

TEST_F(HeldServices, AModuleThatCannotBeUsedIsLeftOutAndTriedAgain) {
  const ServiceModules modules = {{L"1", L"a.zdx"}, {L"2", L"missing.zdx"}};
  EXPECT_THAT(Held(Request(modules)), ElementsAre("1=a.zdx 1"));
  world.ForgetCalls();
  EXPECT_THAT(Held(Request(modules)), ElementsAre("1=a.zdx 1"));
  EXPECT_THAT(world.Calls({"loadModule"}), ElementsAre("loadModule(missing.zdx, false, false)"));
}

TEST_F(HeldServices, AreTheManagersOwn) {
  EXPECT_EQ(&Request({{L"1", L"a.zdx"}}), &Request({}));
  EXPECT_THAT(NewManager().GetExternalVerticalReferenceServices({}), IsEmpty());
}

TEST_F(HeldServices, AreSharedByCopies) {
  ZDXEngine::FileReferenceService* const service = Request({{L"1", L"a.zdx"}}).begin()->second;
  EXPECT_EQ(CopyOf(manager).GetExternalVerticalReferenceServices({}).begin()->second, service);
  FileReferenceMgr& assigned = NewManager();
  assigned = manager;
  EXPECT_EQ(assigned.GetExternalVerticalReferenceServices({}).begin()->second, service);
}

// A tool that looks for leaks tells of a service that isn't freed.
TEST(HeldServicesAtExit, GoWithTheManager) {
  const scripted::Afterlife after = scripted::InFreshProcess([](scripted::World& world) {
    references::Export(world, L"a.zdx");
    Manager().GetExternalVerticalReferenceServices({{L"1", L"a.zdx"}, {L"2", L"a.zdx"}});
  });
  EXPECT_EQ(after.exitCode, 0);
  EXPECT_THAT(after.Calls({"unloadModule"}), IsEmpty());
}

// One module's answers

class AskedService : public HeldServices {
 protected:
  ~AskedService() override { Release(); }
  // The records are there until the next time.
  const std::vector<DwgDependentFile*>& Ask() {
    Release();
    records_ = manager.GetVerticalDependencies(&database, &references::AskedModule);
    return records_;
  }
  void Answer(std::vector<VerticalRecord> answer) {
    module.onGet = [answer](const ZnDbDatabase*) { return answer; };
  }

  ZnDbDatabase database{false, true};

 private:
  void Release() {
    for (DwgDependentFile* const record : records_) references::DisposeAndDelete(record);
    records_.clear();
  }

  std::vector<DwgDependentFile*> records_;
};

TEST_F(AskedService, ItsAnswersBecomeRecordsInTheirOrder) {
  Answer({{{L"RefId", L"x:2"}, {L"FilePath", L"b.ipt"}},
          {{L"RefId", L"x:1"}, {L"FilePath", L"a.ipt"}}});
  EXPECT_THAT(Shown(Ask()),
              ElementsAre("x:2 b.ipt type 10 repathable", "x:1 a.ipt type 10 repathable"));
}

TEST_F(AskedService, ItsRecordsHaveNoNode) {
  Answer({{{L"RefId", L"1"}, {L"FilePath", L"a"}}});
  EXPECT_EQ(dynamic_cast<ZDXEngine::ZnDwgDependentFile*>(Ask().at(0)), nullptr);
}

TEST_F(AskedService, ARecordThatIsDisposedOfReleasesNothing) {
  for (const bool flag : {false, true}) {
    SetFlag(flag);
    Answer({{{L"RefId", L"1"}, {L"FilePath", L"a"}}});
    DwgDependentFile& record = *Ask().at(0);
    record.Dispose();
    EXPECT_EQ(Shown(record), "1 a type 10 repathable");
  }
}

TEST_F(AskedService, TheWordFalseAloneMakesARecordRepathable) {
  const std::pair<const wchar_t*, bool> rows[] = {
      {L"false", true}, {L"False", false}, {L"true", false}, {L"", false}, {L"false ", false},
  };
  for (const auto& [value, repathable] : rows) {
    Answer({{{L"RefId", L"1"}, {L"FilePath", L"a"}, {L"IsUpdateSupported", value}}});
    EXPECT_EQ(Ask().at(0)->GetSupportRePath(), repathable) << scripted::Shown(value);
  }
}

TEST_F(AskedService, TellsAnAbsolutePath) {
  Answer({{{L"RefId", L"1"}, {L"FilePath", L"a"}, {L"AbsolutePath", L"C:\\a"}}});
  EXPECT_THAT(Shown(Ask()), ElementsAre("1 a type 10 repathable at C:\\a"));
}

TEST_F(AskedService, OtherValuesAreLeftAlone) {
  Answer(
      {{{L"RefId", L"1"}, {L"FilePath", L"a"}, {L"DestinationPath", L"b"}, {L"filepath", L"c"}}});
  EXPECT_THAT(Shown(Ask()), ElementsAre("1 a type 10 repathable"));
}

TEST_F(AskedService, WithoutAnswersGivesNoRecords) {
  Answer({});
  EXPECT_THAT(Ask(), IsEmpty());
}

TEST_F(AskedService, IsAskedForTheDrawing) {
  const ZnDbDatabase* asked = nullptr;
  module.onGet = [&](const ZnDbDatabase* drawing) {
    asked = drawing;
    return std::vector<VerticalRecord>();
  };
  Ask();
  EXPECT_EQ(asked, &database);
}

TEST_F(AskedService, IsNotAskedWithoutADrawing) {
  module.onGet = [](const ZnDbDatabase*) -> std::vector<VerticalRecord> {
    ADD_FAILURE() << "asked";
    return {};
  };
  EXPECT_THAT(manager.GetVerticalDependencies(nullptr, &references::AskedModule), IsEmpty());
  EXPECT_THAT(manager.GetVerticalDependencies(&database, nullptr), IsEmpty());
}

TEST_F(AskedService, ThatThrowsAStandardExceptionRaisesItsOwn) {
  module.onGet = [](const ZnDbDatabase*) -> std::vector<VerticalRecord> {
    throw std::logic_error("of no interest");
  };
  const references::Thrown thrown = Catch([&] { Ask(); });
  EXPECT_EQ(thrown.type, typeid(ZDXEngine::GetVerticalDependenciesError));
  EXPECT_EQ(thrown.errorCode, 303);
  EXPECT_EQ(thrown.message, L"Unable to get vertical dependencies \n");
}

TEST_F(AskedService, AnExceptionOfAnotherKindPassesThrough) {
  module.onGet = [](const ZnDbDatabase*) -> std::vector<VerticalRecord> { throw 7; };
  EXPECT_THROW(Ask(), int);
}

// Destinations

class ToldService : public HeldServices {
 protected:
  // What the module was told.  It keeps the map.
  struct Told {
    ZnDbDatabase* database = nullptr;
    VerticalRecord destinations;
  };
  ToldService() {
    module.onUpdate = [this](ZnDbDatabase* drawing, VerticalRecord& destinations) {
      told.push_back({drawing, destinations});
      Kept().push_back(&destinations);
      return std::vector<std::wstring>{L"whatever"};
    };
  }
  static std::vector<VerticalRecord*>& Kept() { return Lasting<VerticalRecord>(); }
  DwgDependentFile* AddRecord(const wchar_t* refId, const wchar_t* destination) {
    auto& record = owned_.emplace_back(std::make_unique<DwgDependentFile>(
        L"source", destination, refId, ZDXEngine::FileType{10}, false));
    records.push_back(record.get());
    return record.get();
  }
  std::vector<ZDXEngine::ErrorInfo> Tell() {
    return manager.UpdateVerticalDependencies(&database, records, &references::ToldModule);
  }

  ZnDbDatabase database{false, true};
  std::vector<DwgDependentFile*> records;
  std::vector<Told> told;

 private:
  std::vector<std::unique_ptr<DwgDependentFile>> owned_;
};

TEST_F(ToldService, GetsEachDestinationByItsRefIdAndTheAnswerIsDropped) {
  AddRecord(L"x:1", L"C:\\one");
  AddRecord(L"x:2", L"");
  EXPECT_THAT(Tell(), IsEmpty());
  ASSERT_THAT(told, SizeIs(1));
  EXPECT_EQ(told[0].database, &database);
  EXPECT_EQ(told[0].destinations, (VerticalRecord{{L"x:1", L"C:\\one"}, {L"x:2", L""}}));
}

TEST_F(ToldService, OfTwoWithOneRefIdTheFirstCounts) {
  AddRecord(L"x", L"first");
  AddRecord(L"x", L"second");
  Tell();
  EXPECT_EQ(told.at(0).destinations, (VerticalRecord{{L"x", L"first"}}));
}

TEST_F(ToldService, IsCalledWithoutRecordsToo) {
  EXPECT_THAT(Tell(), IsEmpty());
  ASSERT_THAT(told, SizeIs(1));
  EXPECT_THAT(told[0].destinations, IsEmpty());
}

TEST_F(ToldService, IsNotCalledWithoutADrawing) {
  EXPECT_THAT(manager.UpdateVerticalDependencies(nullptr, records, &references::ToldModule),
              IsEmpty());
  EXPECT_THAT(manager.UpdateVerticalDependencies(&database, records, nullptr), IsEmpty());
  EXPECT_THAT(told, IsEmpty());
}

TEST_F(ToldService, MayKeepWhatItWasTold) {
  AddRecord(L"x", L"C:\\one");
  Tell();
  records[0]->SetDestinationPath(L"C:\\two");
  Tell();
  ASSERT_GE(Kept().size(), 2u);
  EXPECT_EQ(*Kept()[Kept().size() - 2], (VerticalRecord{{L"x", L"C:\\one"}}));
  EXPECT_EQ(*Kept().back(), (VerticalRecord{{L"x", L"C:\\two"}}));
}

TEST_F(ToldService, LeavesTheRecordsAsTheyAre) {
  AddRecord(L"x", L"C:\\one");
  Tell();
  EXPECT_THAT(Shown(records), ElementsAre("x source type 10 repathable to C:\\one"));
  EXPECT_THAT(records, SizeIs(1));
}

TEST_F(ToldService, ThatThrowsAStandardExceptionRaisesItsOwn) {
  const scripted::LeakAllowed leak;
  module.onUpdate = [](ZnDbDatabase*, VerticalRecord&) -> std::vector<std::wstring> {
    throw std::logic_error("of no interest");
  };
  const references::Thrown thrown = Catch([&] { Tell(); });
  EXPECT_EQ(thrown.type, typeid(ZDXEngine::UpdateVerticalDependenciesError));
  EXPECT_EQ(thrown.errorCode, 304);
  EXPECT_EQ(thrown.message, L"Unable to update vertical dependencies \n");
}

TEST_F(ToldService, AnExceptionOfAnotherKindPassesThrough) {
  const scripted::LeakAllowed leak;
  module.onUpdate = [](ZnDbDatabase*, VerticalRecord&) -> std::vector<std::wstring> { throw 7; };
  EXPECT_THROW(Tell(), int);
}

// The drawing's references and those of the services

class AllDependencies : public HeldServices {
 protected:
  AllDependencies() {
    root.hasDatabase = true;
    module.onGet = [this](const ZnDbDatabase* drawing) {
      world.Note("asked");
      asked.push_back(drawing);
      const std::wstring id = L"x:" + std::to_wstring(asked.size());
      return std::vector<VerticalRecord>{{{L"RefId", id}, {L"FilePath", L"m.ipt"}}};
    };
  }
  void GetInto(Walked& walked, const ServiceModules& services, bool directOnly = false) {
    walked.records = manager.GetDependencies(L"C:\\a.dwg", {.WalkBit20 = true}, walked.statusFlag,
                                             walked.root, walked.drawingType, directOnly, services);
  }

  scripted::WalkedFile& root = world.walker.Add("root", L"C:\\a.dwg");
  std::vector<const ZnDbDatabase*> asked;
};

TEST_F(AllDependencies, AreTheDrawingsOwnAndThenThoseOfEachServiceInTheOrderOfKeys) {
  world.walker.Add("image", L"i.png", 2, 42);
  world.walker.Add("font", L"f.shx", 9, 41);
  Walked walked;
  GetInto(walked, {{L"2", L"a.zdx"}, {L"1", L"b.zdx"}});
  EXPECT_THAT(Shown(walked.records),
              ElementsAre("42 i.png type 2 repathable", "41 f.shx type 10 repathable",
                          "x:1 m.ipt type 10 repathable", "x:2 m.ipt type 10 repathable"));
  EXPECT_EQ(Shown(*walked.root), "0 C:\\a.dwg type 1 repathable");
  EXPECT_EQ(walked.drawingType, references::DwgFileType::Zent);
  EXPECT_FALSE(walked.statusFlag);
}

TEST_F(AllDependencies, PassOnWhatTheClientAsksFor) {
  Walked walked;
  GetInto(walked, {}, true);
  EXPECT_THAT(world.Calls({"DwgDepends"}),
              ElementsAre("DwgDepends(C:\\a.dwg, 0xbad, \"\", \"\", true, true)"));
}

TEST_F(AllDependencies, ServicesAreLoadedAndAskedAfterTheWalk) {
  Walked walked;
  GetInto(walked, {{L"1", L"a.zdx"}});
  EXPECT_THAT(world.Calls({"~DwgDepends", "loadModule", "note"}),
              ElementsAre("~DwgDepends()", "loadModule(a.zdx, false, false)", "note(asked)"));
  EXPECT_THAT(asked, ElementsAre(world.walker.NodeOf(root)->database()));
}

TEST_F(AllDependencies, HeldServicesAreAskedThoughNoneIsRequested) {
  manager.GetExternalVerticalReferenceServices({{L"1", L"a.zdx"}});
  Walked walked;
  GetInto(walked, {});
  EXPECT_THAT(Shown(walked.records), ElementsAre("x:1 m.ipt type 10 repathable"));
}

TEST_F(AllDependencies, OneModuleUnderTwoVersionsIsAskedTwice) {
  Walked walked;
  GetInto(walked, {{L"1", L"a.zdx"}, {L"2", L"a.zdx"}});
  EXPECT_THAT(asked, SizeIs(2));
}

TEST_F(AllDependencies, OneIdIsNotLookedForAmongServices) {
  world.walker.Add("image", L"i.png", 2, 42);
  module.onGet = [](const ZnDbDatabase*) {
    return std::vector<VerticalRecord>{{{L"RefId", L"42"}, {L"FilePath", L"m.ipt"}},
                                       {{L"RefId", L"42"}, {L"FilePath", L"m.ipt"}}};
  };
  Walked walked;
  GetInto(walked, {{L"1", L"a.zdx"}});
  EXPECT_THAT(Shown(walked.records),
              ElementsAre("42 i.png type 2 repathable", "42 m.ipt type 10 repathable",
                          "42 m.ipt type 10 repathable"));
}

TEST_F(AllDependencies, AServiceThatCannotBeUsedIsLeftOut) {
  world.walker.Add("image", L"i.png", 2, 42);
  Walked walked;
  GetInto(walked, {{L"1", L"missing.zdx"}});
  EXPECT_THAT(Shown(walked.records), ElementsAre("42 i.png type 2 repathable"));
}

TEST_F(AllDependencies, WithoutAnOpenDrawingServicesAreLoadedAndNotAsked) {
  root.isDwgFile = false;
  root.hasDatabase = false;
  Walked walked;
  GetInto(walked, {{L"1", L"a.zdx"}});
  EXPECT_THAT(walked.records, IsEmpty());
  EXPECT_EQ(walked.root, nullptr);
  EXPECT_EQ(world.Count("loadModule"), 1);
  EXPECT_THAT(asked, IsEmpty());
  DeleteNodes({&root});
}

TEST_F(AllDependencies, AServiceThatFailsLeavesTheRootsRecordAlone) {
  const scripted::LeakAllowed leak;
  scripted::WalkedFile& image = world.walker.Add("image", L"i.png", 2, 42);
  module.onGet = [](const ZnDbDatabase*) -> std::vector<VerticalRecord> {
    throw std::logic_error("of no interest");
  };
  Walked walked;
  EXPECT_EQ(Catch([&] {
              GetInto(walked, {{L"1", L"a.zdx"}});
            }).type,
            typeid(ZDXEngine::GetVerticalDependenciesError));
  EXPECT_EQ(Shown(*walked.root), "0 C:\\a.dwg type 1 repathable");
  EXPECT_TRUE(world.walker.IsAlive(image));
  DeleteNodes({&image});
}

TEST_F(AllDependencies, OfADrawingThatCannotBeReadAskNoService) {
  world.walker.errors = {{L"C:\\a.dwg", ZnDwgDepends::DwgDepends::kNotFound}};
  Walked walked;
  EXPECT_EQ(Catch([&] { GetInto(walked, {{L"1", L"a.zdx"}}); }).type, typeid(ZDXEngine::NotFound));
  EXPECT_EQ(world.Count("loadModule"), 0);
  DeleteNodes({&root});
}

}  // namespace
