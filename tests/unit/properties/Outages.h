// What happens when memory runs out at each possible moment.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "ZDXEngine/Automation.h"
#include "support/scripted/World.h"

namespace outages {

// Runs `act` once untroubled, in a world filled by `fill`, and then once for each call of
// `operation` that it made, with that call out of memory.  Each time the failure must come out as
// its COM error and nothing may be left behind.
inline void FailEachCall(const std::string& operation,
                         const std::function<void(scripted::World&)>& fill,
                         const std::function<void()>& act) {
  int calls = 0;
  {
    scripted::World world;
    fill(world);
    act();
    calls = world.Count(operation);
  }
  ASSERT_GT(calls, 0) << operation << " was never called";
  for (int nth = 1; nth <= calls; ++nth) {
    scripted::World world;
    fill(world);
    world.FailWithNull(operation, E_OUTOFMEMORY, nth);
    try {
      act();
      ADD_FAILURE() << operation << " " << nth << " failed and nothing was thrown";
    } catch (const _com_error& error) {
      EXPECT_EQ(error.Error(), E_OUTOFMEMORY) << operation << " " << nth;
    }
    EXPECT_THAT(world.Leftovers(), testing::IsEmpty()) << operation << " " << nth;
  }
}

// Both calls that can run out of memory while properties are collected.
inline void FailEachAllocation(const std::function<void(scripted::World&)>& fill,
                               const std::function<void()>& act) {
  FailEachCall("SysAllocString", fill, act);
  FailEachCall("VariantCopy", fill, act);
}

}  // namespace outages
