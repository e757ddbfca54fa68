// A record by itself.
#include <gtest/gtest.h>

#include <cstddef>
#include <type_traits>
#include <utility>

#include "ZDXEngine/DwgDependentFile.h"

using ZDXEngine::DwgDependentFile;
using ZDXEngine::FileType;

namespace {

const std::wstring kLong(300, L'x');

// Shows what only classes below may see.
class OpenRecord : public DwgDependentFile {
 public:
  using DwgDependentFile::DwgDependentFile;
  using DwgDependentFile::IsOverlay;
  using DwgDependentFile::IsRootFile;
  using DwgDependentFile::RefId;
  using DwgDependentFile::SetRefId;

  std::vector<const void*> Places() const {
    return {&SourcePath,    &AbsolutePath, &DestinationPath, &FileType,
            &SupportRePath, &IsRootFile,   &IsOverlay,       &RefId};
  }
};

OpenRecord Full() {
  OpenRecord record(L"source", L"destination", L"17", FileType{2}, true);
  record.SetAbsolutePath(kLong);
  record.SetIsOverlay(true);
  return record;
}

void ExpectFull(OpenRecord& record) {
  EXPECT_EQ(record.GetSourcePath(), L"source");
  EXPECT_EQ(record.GetAbsolutePath(), kLong);
  EXPECT_EQ(record.GetDestinationPath(), L"destination");
  EXPECT_EQ(record.GetRefId(), L"17");
  EXPECT_EQ(record.GetFileType(), FileType{2});
  EXPECT_TRUE(record.GetSupportRePath());
  EXPECT_TRUE(record.GetIsOverlay());
  EXPECT_TRUE(record.IsRootFile);
}

void ExpectMovedFrom(OpenRecord& record) {
  EXPECT_EQ(record.GetSourcePath(), L"");
  EXPECT_EQ(record.GetAbsolutePath(), L"");
  EXPECT_EQ(record.GetDestinationPath(), L"");
  EXPECT_EQ(record.GetRefId(), L"");
  EXPECT_EQ(record.GetFileType(), FileType{2});
  EXPECT_TRUE(record.GetSupportRePath());
  EXPECT_TRUE(record.GetIsOverlay());
  EXPECT_TRUE(record.IsRootFile);
}

TEST(Record, AFreshOneHasEmptyTexts) {
  DwgDependentFile record;
  EXPECT_EQ(record.GetSourcePath(), L"");
  EXPECT_EQ(record.GetAbsolutePath(), L"");
  EXPECT_EQ(record.GetDestinationPath(), L"");
  EXPECT_EQ(record.GetRefId(), L"");
}

TEST(Record, TakesWhatItIsMadeWith) {
  OpenRecord record(L"source", L"destination", L"17", FileType{4}, true);
  EXPECT_EQ(record.GetSourcePath(), L"source");
  EXPECT_EQ(record.GetDestinationPath(), L"destination");
  EXPECT_EQ(record.GetRefId(), L"17");
  EXPECT_EQ(record.GetFileType(), FileType{4});
  EXPECT_TRUE(record.IsRootFile);
  EXPECT_EQ(record.GetAbsolutePath(), L"");
  EXPECT_FALSE(record.GetIsOverlay());
}

TEST(Record, OfAReferenceIsNoRoot) {
  EXPECT_FALSE(OpenRecord(L"", L"", L"", FileType{4}, false).IsRootFile);
}

TEST(Record, CanBeRepathedUnlessItsFileTypeIsZero) {
  for (const int type : {-1, 1, 2, 3, 4, 10, 11, 99}) {
    DwgDependentFile record(L"", L"", L"", FileType{type}, false);
    EXPECT_TRUE(record.GetSupportRePath()) << type;
    EXPECT_EQ(record.GetFileType(), FileType{type});
  }
  EXPECT_FALSE(DwgDependentFile(L"", L"", L"", FileType{0}, true).GetSupportRePath());
}

TEST(Record, KeepsWhatTheClientSets) {
  OpenRecord record(L"source", L"", L"17", FileType{0}, false);
  record.SetAbsolutePath(L"absolute");
  record.SetDestinationPath(L"destination");
  record.SetSupportRePath(true);
  record.SetIsOverlay(true);
  record.SetRefId(L"18");
  EXPECT_EQ(record.GetAbsolutePath(), L"absolute");
  EXPECT_EQ(record.GetDestinationPath(), L"destination");
  EXPECT_TRUE(record.GetSupportRePath());
  EXPECT_TRUE(record.GetIsOverlay());
  EXPECT_EQ(record.GetRefId(), L"18");
  EXPECT_EQ(record.GetSourcePath(), L"source");
  record.SetSupportRePath(false);
  record.SetIsOverlay(false);
  EXPECT_FALSE(record.GetSupportRePath());
  EXPECT_FALSE(record.GetIsOverlay());
}

TEST(Record, GettersGiveTheFieldItself) {
  DwgDependentFile record(L"source", L"", L"17", FileType{1}, false);
  const bool& repath = record.GetSupportRePath();
  const bool& overlay = record.GetIsOverlay();
  const std::wstring& destination = record.GetDestinationPath();
  record.SetSupportRePath(false);
  record.SetIsOverlay(true);
  record.SetDestinationPath(L"there");
  EXPECT_FALSE(repath);
  EXPECT_TRUE(overlay);
  EXPECT_EQ(destination, L"there");
}

template <class Record>
concept TakesARefId = requires(Record record, const std::wstring& refId) {
  record.SetRefId(refId);
};
template <class Getter, class Value>
concept GivesAReferenceTo = std::is_same_v<Getter, const Value& (DwgDependentFile::*)()>;

TEST(Record, ItsRefIdIsReadFromAConstantRecordTooAndSetByItsOwnClassesAlone) {
  static_assert(std::is_same_v<decltype(&DwgDependentFile::GetRefId),
                               const std::wstring& (DwgDependentFile::*)() const>);
  static_assert(!TakesARefId<DwgDependentFile>);
  static_assert(TakesARefId<OpenRecord>);
}

TEST(Record, ItsOtherFieldsAreReadByReference) {
  static_assert(GivesAReferenceTo<decltype(&DwgDependentFile::GetSourcePath), std::wstring>);
  static_assert(GivesAReferenceTo<decltype(&DwgDependentFile::GetAbsolutePath), std::wstring>);
  static_assert(GivesAReferenceTo<decltype(&DwgDependentFile::GetDestinationPath), std::wstring>);
  static_assert(GivesAReferenceTo<decltype(&DwgDependentFile::GetFileType), FileType>);
  static_assert(GivesAReferenceTo<decltype(&DwgDependentFile::GetSupportRePath), bool>);
  static_assert(GivesAReferenceTo<decltype(&DwgDependentFile::GetIsOverlay), bool>);
}

TEST(Record, FieldsStandInTheirOrder) {
  const OpenRecord record(L"", L"", L"", FileType{0}, false);
  const std::vector<const void*> places = record.Places();
  EXPECT_TRUE(std::is_sorted(places.begin(), places.end(), std::less<const void*>()));
  static_assert(sizeof(FileType) == 4);
}

TEST(Record, OnlyItsDisposalIsVirtual) {
  static_assert(std::is_polymorphic_v<DwgDependentFile>);
  static_assert(!std::has_virtual_destructor_v<DwgDependentFile>);
  static_assert(std::is_destructible_v<DwgDependentFile>);
}

TEST(Record, ACopyHasAllFieldsAndLeavesTheOriginal) {
  OpenRecord original = Full();
  OpenRecord copy(original);
  ExpectFull(copy);
  ExpectFull(original);
}

TEST(Record, AnAssignedOneHasAllFieldsAndLeavesTheOriginal) {
  OpenRecord original = Full();
  OpenRecord other(L"", L"", L"", FileType{0}, false);
  EXPECT_EQ(&(other = original), &other);
  ExpectFull(other);
  ExpectFull(original);
}

TEST(Record, AssignedToItselfStaysAsItIs) {
  OpenRecord record = Full();
  OpenRecord& same = record;
  record = same;
  ExpectFull(record);
}

TEST(Record, AMovedFromOneHasEmptyTextsAndItsOtherFields) {
  OpenRecord original = Full();
  OpenRecord moved(std::move(original));
  ExpectFull(moved);
  ExpectMovedFrom(original);
}

TEST(Record, OneMovedByAssignmentHasEmptyTextsAndItsOtherFields) {
  OpenRecord original = Full();
  OpenRecord other(kLong, kLong, kLong, FileType{0}, false);
  EXPECT_EQ(&(other = std::move(original)), &other);
  ExpectFull(other);
  ExpectMovedFrom(original);
}

TEST(Record, ItsDisposalChangesNothing) {
  OpenRecord record = Full();
  record.Dispose();
  record.Dispose();
  ExpectFull(record);
}

}  // namespace
