// A test of one collector on an open database.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ZDXEngine/PropData.h"
#include "platform/zndb/ZnDbDatabase.h"
#include "support/scripted/ScriptedTest.h"
#include "unit/properties/Shown.h"

namespace scripted {

class CollectorTest : public ScriptedTest {
 protected:
  CollectorTest() { world.ForgetCalls(); }

  // Runs the collector and tells what is in the list now: "Layer Name=Walls".
  template <class Collector>
  std::vector<std::string> Collected(Collector collect) {
    collect(properties, &database);
    return expected::Shown(properties);
  }

  ZnDbDatabase database{false, true};
  std::vector<ZDXEngine::_PropData> properties;
};

}  // namespace scripted
