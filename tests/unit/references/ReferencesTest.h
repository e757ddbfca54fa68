// Records of a scripted walk, and what the tests of references share.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <initializer_list>
#include <string>
#include <typeindex>
#include <vector>

#include "ZDXEngine/FileReferenceMgr.h"
#include "ZDXEngine/ZdxEngineException.h"
#include "support/scripted/ScriptedTest.h"
#include "unit/resources/ExpectedTexts.h"

namespace references {

using ZDXEngine::DependencySettings;
using ZDXEngine::DwgDependentFile;
using ZDXEngine::DwgFileType;
using ZDXEngine::FileReferenceMgr;
using ZDXEngine::ZnDwgDependentFile;

inline FileReferenceMgr& Manager() { return FileReferenceMgr::Instance(); }

// Deletes the record as the class that it is.
inline void Delete(DwgDependentFile* record) {
  if (auto* const bound = dynamic_cast<ZnDwgDependentFile*>(record)) {
    std::unique_ptr<ZnDwgDependentFile> last(bound);
  } else {
    std::unique_ptr<DwgDependentFile> last(record);
  }
}

// What a client does with a record that it has done with; null is passed over.
inline void DisposeAndDelete(DwgDependentFile* record) {
  if (record == nullptr) return;
  record->Dispose();
  Delete(record);
}

// "2A images\a.png type 2 repathable overlay", the words only where they are true.
inline std::string Shown(DwgDependentFile& record) {
  std::string words = scripted::Shown(record.GetRefId()) + " " +
                      scripted::Shown(record.GetSourcePath()) + " type " +
                      std::to_string(static_cast<int>(record.GetFileType()));
  if (record.GetSupportRePath()) words += " repathable";
  if (record.GetIsOverlay()) words += " overlay";
  if (!record.GetAbsolutePath().empty())
    words += " at " + scripted::Shown(record.GetAbsolutePath());
  if (!record.GetDestinationPath().empty()) {
    words += " to " + scripted::Shown(record.GetDestinationPath());
  }
  return words;
}

inline std::vector<std::string> Shown(const std::vector<DwgDependentFile*>& records) {
  std::vector<std::string> words;
  for (DwgDependentFile* const record : records) words.push_back(Shown(*record));
  return words;
}

// What left a call: its exact class, and its fields.
struct Thrown {
  std::type_index type = typeid(void);
  int errorCode = 0;
  std::wstring message;
};

inline Thrown Catch(const std::function<void()>& act) {
  try {
    act();
  } catch (const ZDXEngine::ZdxEngineException& error) {
    return {typeid(error), error.errorCode, error.errorMessage};
  }
  return {};
}

// The feature flag is false at the begin of each test, and what it was afterwards.
class ReferencesTest : public scripted::ScriptedTest {
 protected:
  ReferencesTest() { world.utilities.texts = expected::FailureTexts(); }
  ~ReferencesTest() override { SetFlag(before_); }

  static bool SetFlag(bool value) { return Manager().SetUseNewDwgUpdateApproachFeatureFlag(value); }
  // Deletes nodes that no record has.
  void DeleteNodes(std::initializer_list<const scripted::WalkedFile*> files) {
    for (const scripted::WalkedFile* const file : files) delete world.walker.NodeOf(*file);
  }

 private:
  bool before_ = SetFlag(false);
};

// What a walk gave; the records are given back, the root's last, when it ends.
struct Walked {
  Walked() = default;
  Walked(const Walked&) = delete;
  Walked& operator=(const Walked&) = delete;
  ~Walked() { Release(); }

  void Release() {
    for (DwgDependentFile* const record : records) DisposeAndDelete(record);
    DisposeAndDelete(root);
    records.clear();
    root = nullptr;
  }

  static ZnDbDatabase* Untouched() { return reinterpret_cast<ZnDbDatabase*>(1); }
  static constexpr DwgFileType kUntouched{99};

  std::vector<DwgDependentFile*> records;
  DwgDependentFile* root = reinterpret_cast<DwgDependentFile*>(1);
  ZnDbDatabase* database = Untouched();
  DwgFileType drawingType = kUntouched;
  bool statusFlag = true;
};

// Walks into `walked`, whose fields hold what no walk gives.
inline void WalkInto(Walked& walked, const DependencySettings& settings = {},
                     bool directOnly = false) {
  walked.records =
      Manager().GetZnDependencies(walked.database, L"C:\\a.dwg", settings, walked.statusFlag,
                                  walked.root, walked.drawingType, directOnly);
}

// A scripted walk whose first file is the drawing "root".
class WalkTest : public ReferencesTest {
 protected:
  WalkTest() { root.hasDatabase = true; }

  scripted::WalkedFile& root = world.walker.Add("root", L"C:\\a.dwg");
};

}  // namespace references
