// Records of DWG files that are damaged, or that lie with a right check.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "malformed/Cost.h"
#include "malformed/Damage.h"
#include "malformed/DwgDamage.h"

namespace {

using damage::Outcome;
using damage::ReadAtFairCost;
using damage::RecordOf;
using dwg::Link;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int64_t kHuge = 0xFFFFFFFF;

class EveryDwgRecord : public testing::TestWithParam<const char*> {
 protected:
  Outcome Read(const std::function<void(dwg::Drawing&)>& change) {
    return ReadAtFairCost(damage::DwgWith(damage::Sound(GetParam()), change));
  }

  // A name as the version stores it.
  std::string Name(std::string name) const {
    if (std::string(GetParam()) == "AC1014") {
      std::transform(name.begin(), name.end(), name.begin(), [](char c) {
        return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
      });
    }
    return name;
  }

  void ExpectLayers(const Outcome& outcome, std::vector<std::string> names) {
    for (std::string& name : names) name = Name(name);
    EXPECT_EQ(outcome.reading.Texts(L"Layer Name"), names);
  }

  // One warning, about that object.
  static void ExpectOneWarning(const Outcome& outcome, std::uint64_t handle) {
    ASSERT_EQ(outcome.reading.diagnostics.warnings.size(), 1u);
    EXPECT_EQ(outcome.reading.diagnostics.warnings[0].place.handle, handle);
  }
};

// The second of the layers behind "0".
dwg::Handle Victim(const dwg::Drawing& drawing) { return drawing.layers.at(2).handle; }

// What a dictionary begins with.
dwg::Fields DictionaryOf(const dwg::Drawing& drawing, dwg::Handle own, std::int64_t count) {
  dwg::Fields fields = drawing.NewFields(own);
  dwg::BeginObject(fields, drawing.roots.named);
  fields.BL(count);
  if (fields.IsSince(dwg::Version::AC1015)) fields.BS(1);
  fields.RC(0);
  return fields;
}

TEST_P(EveryDwgRecord, AWrongCheckIsToldAndTheRecordRead) {
  dwg::Handle handle = 0;
  const Outcome outcome = Read([&](dwg::Drawing& drawing) {
    handle = Victim(drawing);
    std::string& record = drawing.records.at(handle);
    record.back() = static_cast<char>(record.back() ^ 0x55);
  });
  ExpectLayers(outcome, {"0", "First", "Second", "Third"});
  ExpectOneWarning(outcome, handle);
}

TEST_P(EveryDwgRecord, ARecordOfAnotherObjectCostsOnlyItself) {
  dwg::Handle handle = 0;
  const Outcome outcome = Read([&](dwg::Drawing& drawing) {
    handle = Victim(drawing);
    drawing.records.at(handle) = drawing.records.at(drawing.layers.at(1).handle);
  });
  ExpectLayers(outcome, {"0", "First", "Third"});
  EXPECT_THAT(outcome.reading.Texts(L"Group Name"), ElementsAre(Name("Pair")));
  ExpectOneWarning(outcome, handle);
}

TEST_P(EveryDwgRecord, ARecordThatSaysItIsLongerThanTheFileCostsOnlyItself) {
  dwg::Handle handle = 0;
  const Outcome outcome = Read([&](dwg::Drawing& drawing) {
    handle = Victim(drawing);
    drawing.records.at(handle).replace(0, 2, "\xFF\x7F");
  });
  ExpectLayers(outcome, {"0", "First", "Third"});
  ExpectOneWarning(outcome, handle);
}

TEST_P(EveryDwgRecord, AnObjectOfAnotherTypeIsNoLayer) {
  dwg::Handle handle = 0;
  const Outcome outcome = Read([&](dwg::Drawing& drawing) {
    handle = Victim(drawing);
    drawing.records.at(handle) = RecordOf(42, DictionaryOf(drawing, handle, 0));
  });
  ExpectLayers(outcome, {"0", "First", "Third"});
  ExpectOneWarning(outcome, handle);
}

TEST_P(EveryDwgRecord, ATableWithMoreRecordsThanItCanHoldIsToldAndLosesNothingElse) {
  dwg::Handle handle = 0;
  const Outcome outcome = Read([&](dwg::Drawing& drawing) {
    handle = drawing.roots.layers;
    dwg::Fields fields = drawing.NewFields(handle);
    dwg::BeginObject(fields, 0);
    fields.BL(kHuge);
    for (const auto& layer : drawing.layers) fields.H(Link::SoftOwner, layer.handle);
    drawing.records.at(handle) = RecordOf(50, fields);
  });
  EXPECT_THAT(outcome.reading.Texts(L"Group Name"), ElementsAre(Name("Pair")));
  ExpectOneWarning(outcome, handle);
}

TEST_P(EveryDwgRecord, ATableThatHoldsItselfAndOneLayerTwiceTellsEachLayerOnce) {
  const Outcome outcome = Read([&](dwg::Drawing& drawing) {
    dwg::Fields fields = drawing.NewFields(drawing.roots.layers);
    dwg::BeginObject(fields, drawing.roots.layers);
    fields.BL(6);
    for (const auto& layer : drawing.layers) fields.H(Link::SoftOwner, layer.handle);
    fields.H(Link::SoftOwner, drawing.roots.layers);
    fields.H(Link::SoftOwner, drawing.layers.at(1).handle);
    drawing.records.at(drawing.roots.layers) = RecordOf(50, fields);
  });
  ExpectLayers(outcome, {"0", "First", "Second", "Third"});
}

TEST_P(EveryDwgRecord, ADictionaryWithMoreEntriesThanItCanHoldIsToldAndLosesNothingElse) {
  dwg::Handle handle = 0;
  const Outcome outcome = Read([&](dwg::Drawing& drawing) {
    handle = drawing.roots.groups;
    dwg::Fields fields = DictionaryOf(drawing, handle, kHuge);
    fields.T("Pair");
    fields.H(Link::SoftOwner, drawing.layers.at(0).handle);
    drawing.records.at(handle) = RecordOf(42, fields);
  });
  ExpectLayers(outcome, {"0", "First", "Second", "Third"});
  ExpectOneWarning(outcome, handle);
}

TEST_P(EveryDwgRecord, ADictionaryThatHoldsItselfIsReadOnce) {
  const Outcome outcome = Read([&](dwg::Drawing& drawing) {
    dwg::Fields fields = DictionaryOf(drawing, drawing.roots.groups, 2);
    fields.T("Self");
    fields.T("Root");
    fields.H(Link::SoftOwner, drawing.roots.groups);
    fields.H(Link::SoftOwner, drawing.roots.named);
    drawing.records.at(drawing.roots.groups) = RecordOf(42, fields);
  });
  EXPECT_THAT(outcome.reading.Texts(L"Group Name"), ElementsAre("Self", "Root"));
  ExpectLayers(outcome, {"0", "First", "Second", "Third"});
}

TEST_P(EveryDwgRecord, AnExtensionDictionaryThatIsTheRecordItselfLeadsNowhere) {
  const Outcome outcome = Read([&](dwg::Drawing& drawing) {
    const dwg::Handle handle = Victim(drawing);
    dwg::Fields fields = DictionaryOf(drawing, handle, 1);
    fields.T("SECOND");
    fields.H(Link::SoftOwner, handle);
    drawing.records.at(handle) = RecordOf(42, fields);
  });
  ExpectLayers(outcome, {"0", "First", "Third"});
}

TEST_P(EveryDwgRecord, AFreeRecordWithMoreBytesThanItHasLosesNothingElse) {
  const Outcome outcome = Read([&](dwg::Drawing& drawing) {
    for (auto& [handle, record] : drawing.records) {
      if (handle == drawing.roots.named) continue;
      dwg::Fields fields = drawing.NewFields(handle);
      dwg::BeginObject(fields, drawing.roots.named);
      fields.BL(kHuge);
      const std::string lie = RecordOf(79, fields);
      // Those that have been free records; their type is the first value of the record.
      const bool isFree = fields.IsSince(dwg::Version::AC1024)
                              ? record.substr(3, 2) == lie.substr(3, 2)
                              : record.substr(2, 1) == lie.substr(2, 1);
      if (isFree) record = lie;
    }
  });
  ExpectLayers(outcome, {"0", "First", "Second", "Third"});
}

TEST_P(EveryDwgRecord, ARootThatIsNoDictionaryCostsTheDictionariesAlone) {
  const Outcome outcome = Read([&](dwg::Drawing& drawing) {
    dwg::Fields fields = drawing.NewFields(drawing.roots.named);
    dwg::BeginObject(fields, 0);
    fields.BL(0);
    drawing.records.at(drawing.roots.named) = RecordOf(50, fields);
  });
  ExpectLayers(outcome, {"0", "First", "Second", "Third"});
  EXPECT_THAT(outcome.reading.Texts(L"Group Name"), IsEmpty());
}

TEST_P(EveryDwgRecord, WithoutItsTableALayerIsNotFound) {
  const Outcome outcome =
      Read([&](dwg::Drawing& drawing) { drawing.records.erase(drawing.roots.layers); });
  EXPECT_THAT(outcome.reading.Texts(L"Layer Name"), IsEmpty());
  EXPECT_THAT(outcome.reading.Texts(L"Group Name"), ElementsAre(Name("Pair")));
  EXPECT_GE(outcome.reading.diagnostics.warningCount, 1u);
}

INSTANTIATE_TEST_SUITE_P(Versions, EveryDwgRecord, testing::ValuesIn(damage::kDwgVersions),
                         [](const auto& info) { return std::string(info.param); });

}  // namespace
