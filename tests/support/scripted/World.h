// Everything that the engine calls, in memory and under a test's control.
//
//   scripted::World world;
//   world.drawing.layers.Add(L"0");
//   world.Fail("getKeywords", 5);
//   ... drive the engine ...
//   EXPECT_THAT(world.Calls({"loadModule"}), ElementsAre("loadModule(a.zdx, false, false)"));
//   EXPECT_THAT(world.Leftovers(), IsEmpty());
#pragma once

#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "support/scripted/CallLog.h"
#include "support/scripted/Files.h"
#include "support/scripted/Graphics.h"
#include "support/scripted/Ledger.h"
#include "support/scripted/Library.h"
#include "support/scripted/ModelDocuments.h"
#include "support/scripted/Modules.h"
#include "support/scripted/Paths.h"
#include "support/scripted/System.h"
#include "support/scripted/Utilities.h"
#include "support/scripted/Walker.h"

namespace scripted {

// Installs a stand-in for every platform interface and, when it ends, what was there before; of the
// walker library alone nothing is installed then.  There is one world at a time, and it outlives
// everything that the engine keeps.
class World {
 public:
  World();
  ~World();
  World(const World&) = delete;
  World& operator=(const World&) = delete;

 private:
  CallLog log_;
  Ledger ledger_;

 public:
  Library library;
  Utilities utilities;
  System system;
  Files files;
  Graphics graphics;
  Paths paths;
  Modules modules;
  Walker walker;
  ModelDocuments modelDocuments;
  // What the drawing holds that every opening finds.
  Drawing& drawing = library.drawing;

  // The calls named (see Script) fail with `status`; what they hand out is handed out all the same
  // where the library may do so.
  void Fail(std::string call, Zent::ErrorStatus status, int nth = kEveryCall);
  // They fail with `status` and hand out null.
  void FailWithNull(std::string call, Zent::ErrorStatus status, int nth = kEveryCall);
  // They hand out null, or answer false, and succeed otherwise.
  void ReturnNull(std::string call, int nth = kEveryCall);
  // They throw Fault.
  void Throw(std::string call, int nth = kEveryCall);

  // Calls succeed again.
  void ForgetScripts() { log_.ForgetScripts(); }

  // Gives every file a preview of `graphics`' size.
  void GivePreview(bool withPalette = true);

  // Installs host services of another component's.
  void InstallServices();

  // All calls so far, in order; those of some operations alone; and how many there were of one.
  std::vector<std::string> Calls() const;
  std::vector<std::string> Calls(std::initializer_list<std::string_view> operations) const;
  int Count(std::string_view operation) const;
  // Forgets the calls so far, not what is handed out.
  void ForgetCalls() { log_.Forget(); }
  // Puts a mark of the test's own among the calls, as an operation "note".
  void Note(const std::string& words) { log_.Record("", "note", words); }
  void MirrorTo(std::ostream& mirror) { log_.MirrorTo(mirror); }

  // How often the walker library was bound.
  int TimesBound() const { return timesBound_; }

  // What was handed out and hasn't come back, and whatever was given back wrongly.
  std::vector<std::string> Leftovers() const { return ledger_.Leftovers(); }

 private:
  static ZnDwgDepends::Provider* Bind();

  std::unique_ptr<ZnDbHostApplicationServices> foreignServices_;
  zndb::Provider* previousLibrary_ = nullptr;
  Common::Provider* previousUtilities_ = nullptr;
  os::Provider* previousSystem_ = nullptr;
  os::FileProvider* previousFiles_ = nullptr;
  os::GraphicsProvider* previousGraphics_ = nullptr;
  os::PathProvider* previousPaths_ = nullptr;
  os::ModuleProvider* previousModules_ = nullptr;
  modeldoc::Provider* previousModelDocuments_ = nullptr;
  int timesBound_ = 0;
};

}  // namespace scripted
