// A test in a scripted world, which must be left as it was found.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/scripted/World.h"

namespace scripted {

// Every test checks at its very end, when its own members are gone, that all that was opened was
// closed, that all that was handed over was released, and that nothing was released twice.
class ScriptedTest : public testing::Test {
 protected:
  ~ScriptedTest() override { EXPECT_THAT(world.Leftovers(), testing::IsEmpty()); }

  World world;
};

}  // namespace scripted
