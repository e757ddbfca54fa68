// Stored texts: how many units, which buffer, and what becomes of them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <new>
#include <optional>

#include "properties/appinfo/AppInfoReader.h"
#include "properties/appinfo/BufferedFileReader.h"
#include "support/appinfo/AppInfoFile.h"
#include "support/scripted/ScriptedTest.h"
#include "unit/properties/appinfo/Heard.h"

namespace {

// Every allocation of this program of at least so many bytes is counted, and fails if that is set.
constexpr std::size_t kNever = static_cast<std::size_t>(-1);
std::size_t watchedSize = kNever;
bool watchedFails = false;
int watchedCount = 0;

// Watches until its scope ends.
class Watch {
 public:
  explicit Watch(std::size_t size, bool fails = false) {
    watchedCount = 0;
    watchedFails = fails;
    watchedSize = size;
  }
  ~Watch() { watchedSize = kNever; }
  Watch(const Watch&) = delete;
  Watch& operator=(const Watch&) = delete;
};

void* Allocate(std::size_t size) {
  if (size >= watchedSize) {
    ++watchedCount;
    if (watchedFails) throw std::bad_alloc();
  }
  void* const block = std::malloc(size == 0 ? 1 : size);
  if (block == nullptr) throw std::bad_alloc();
  return block;
}

}  // namespace

void* operator new(std::size_t size) { return Allocate(size); }
void* operator new[](std::size_t size) { return Allocate(size); }
void operator delete(void* block) noexcept { std::free(block); }
void operator delete[](void* block) noexcept { std::free(block); }
void operator delete(void* block, std::size_t) noexcept { std::free(block); }
void operator delete[](void* block, std::size_t) noexcept { std::free(block); }

namespace {

using appinfo::Bytes16;
using appinfo::RawText;
using appinfo::StoredText;

class StoredTexts : public scripted::ScriptedTest {
 protected:
  bool Read(const std::string& bytes) {
    world.files.contents[L"a.dwg"] = bytes;
    reader.emplace(L"a.dwg", 0);
    text = L"before";
    return reader->ReadText(text);
  }

  std::optional<ZDXEngine::BufferedFileReader> reader;
  std::wstring text;
};

TEST_F(StoredTexts, ATextEndsBeforeItsTerminator) {
  EXPECT_TRUE(Read(StoredText(u"Walls")));
  EXPECT_EQ(text, L"Walls");
}

TEST_F(StoredTexts, ATextEndsAtItsFirstTerminator) {
  EXPECT_TRUE(Read(RawText(std::u16string(u"ab\0cd\0", 6))));
  EXPECT_EQ(text, L"ab");
}

TEST_F(StoredTexts, TheUnitsBehindATerminatorAreReadPast) {
  world.files.contents[L"a.dwg"] = RawText(std::u16string(u"ab\0cd\0", 6)) + StoredText(u"next");
  reader.emplace(L"a.dwg", 0);
  reader->ReadText(text);
  EXPECT_TRUE(reader->ReadText(text));
  EXPECT_EQ(text, L"next");
}

TEST_F(StoredTexts, ATextWithoutATerminatorEndsAtItsLength) {
  EXPECT_TRUE(Read(RawText(u"abc") + "xyz"));
  EXPECT_EQ(text, L"abc");
}

TEST_F(StoredTexts, ATextOfNoUnitsIsEmpty) {
  EXPECT_TRUE(Read(Bytes16(0) + "xyz"));
  EXPECT_EQ(text, L"");
}

TEST_F(StoredTexts, UnitsAreLittleEndian) {
  EXPECT_TRUE(Read(StoredText(u"\u0142\u4E2D")));
  EXPECT_EQ(text, L"\u0142\u4E2D");
}

TEST_F(StoredTexts, APairOfSurrogatesIsOneCharacter) {
  EXPECT_TRUE(Read(StoredText(u"a\U0001F600\U0010FFFF\U00010000b")));
  EXPECT_EQ(text, L"a\U0001F600\U0010FFFF\U00010000b");
}

TEST_F(StoredTexts, ALoneSurrogateStaysAsItIs) {
  const std::u16string units = {u'a', 0xDC00, u'a', 0xD800, u'b', 0xD800};
  EXPECT_TRUE(Read(StoredText(units)));
  EXPECT_EQ(text,
            (std::wstring{L'a', wchar_t{0xDC00}, L'a', wchar_t{0xD800}, L'b', wchar_t{0xD800}}));
}

TEST_F(StoredTexts, AHalfOfAPairAtTheVeryEndStaysAlone) {
  EXPECT_TRUE(Read(RawText(std::u16string{u'a', 0xD83D})));
  EXPECT_EQ(text, (std::wstring{L'a', wchar_t{0xD83D}}));
  // The same where the unit is the last of a heap block.
  EXPECT_TRUE(Read(RawText(std::u16string(1100, u'a') + char16_t{0xD83D})));
  EXPECT_EQ(text, std::wstring(1100, L'a') + wchar_t{0xD83D});
}

TEST_F(StoredTexts, ATextCutInItsLengthLeavesTheResultAlone) {
  EXPECT_FALSE(Read("\x01"));
  EXPECT_EQ(text, L"before");
}

TEST_F(StoredTexts, ATextCutInItsUnitsLeavesTheResultAlone) {
  const std::string whole = StoredText(u"abc");
  EXPECT_FALSE(Read(whole.substr(0, whole.size() - 1)));
  EXPECT_EQ(text, L"before");
}

TEST_F(StoredTexts, TheLengthIsUnsigned) {
  EXPECT_TRUE(Read(RawText(std::u16string(0xFFFF, u'x'))));
  EXPECT_EQ(text, std::wstring(0xFFFF, L'x'));
}

TEST_F(StoredTexts, TextsOfBothBuffersComeOutWhole) {
  for (const std::size_t units : {1023u, 1024u, 1025u}) {
    std::u16string stored(units - 2, u'x');
    stored += u"y";
    EXPECT_TRUE(Read(StoredText(stored))) << units;
    EXPECT_EQ(text, std::wstring(units - 2, L'x') + L"y") << units;
  }
}

// Texts that begin with a terminator: what is allocated is for their units alone.
TEST_F(StoredTexts, ATextOf1024UnitsNeedsNoHeap) {
  world.files.contents[L"a.dwg"] = RawText(std::u16string(1024, u'\0'));
  reader.emplace(L"a.dwg", 0);
  const Watch watch(1024);
  EXPECT_TRUE(reader->ReadText(text));
  EXPECT_EQ(watchedCount, 0);
}

TEST_F(StoredTexts, ATextOf1025UnitsIsReadThroughTheHeap) {
  world.files.contents[L"a.dwg"] = RawText(std::u16string(1025, u'\0'));
  reader.emplace(L"a.dwg", 0);
  const Watch watch(1024);
  EXPECT_TRUE(reader->ReadText(text));
  EXPECT_EQ(watchedCount, 1);
}

TEST_F(StoredTexts, WithoutMemoryTheFileIsClosedAllTheSame) {
  world.files.contents[L"a.dwg"] =
      appinfo::File({.label = std::u16string(1025, u'x'), .entries = {}});
  appinfo::Heard heard;
  {
    const Watch watch(2048, true);
    EXPECT_THROW(ZDXEngine::ReadAppInfo(L"a.dwg", heard), std::bad_alloc);
  }
  EXPECT_EQ(world.Count("CloseHandle"), 2);
}

}  // namespace
