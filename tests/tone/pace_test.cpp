#include "tone/pace.h"

#include "tests/tone/fixture.h"

namespace tone {
namespace {

class PaceTest : public RoutesFixture {
 protected:
  std::int64_t now_ms() const { return sim.pump.now_ms(); }
};

TEST_F(PaceTest, WaitsThatAreSleptExactlyEndOneAfterTheOther) {
  Pace pace(sim.services);
  pace.Wait(75);
  EXPECT_EQ(now_ms(), 75);
  pace.Wait(20);
  EXPECT_EQ(now_ms(), 95);
}

TEST_F(PaceTest, WhatOneWaitOversleepsIsMissingFromTheNext) {
  sim.pump.oversleep_ms = 4;
  Pace pace(sim.services);
  for (const std::int64_t end_ms : {79, 99, 599, 674}) {
    pace.Wait(end_ms == 79 ? 75 : end_ms == 99 ? 20 : end_ms == 599 ? 500 : 75);
    EXPECT_EQ(now_ms(), end_ms);
  }
}

TEST_F(PaceTest, AWaitThatIsOversleptWholeTakesNoTimeAndTheWholeIsNotShort) {
  sim.pump.oversleep_ms = 30;
  Pace pace(sim.services);
  pace.Wait(75);
  pace.Wait(20);
  EXPECT_EQ(now_ms(), 105);
  pace.Wait(20);
  EXPECT_EQ(now_ms(), 145);  // 115 by its lengths, and the last wait's own lateness
}

TEST_F(PaceTest, ABeginningForgetsWhatWasOversleptBefore) {
  sim.pump.oversleep_ms = 30;
  Pace pace(sim.services);
  pace.Wait(75);
  pace.BeginAt(sim.pump.Now());
  sim.pump.oversleep_ms = 0;
  pace.Wait(20);
  EXPECT_EQ(now_ms(), 75 + 30 + 20);
}

TEST_F(PaceTest, WhatTakesItsOwnTimeMakesNoWaitShorter) {
  Pace pace(sim.services);
  pace.Wait(75);
  pace.Apart([this] { sim.pump.Sleep(1000); });
  pace.Wait(20);
  EXPECT_EQ(now_ms(), 75 + 1000 + 20);
}

TEST_F(PaceTest, ALongToneIsLateOnce) {
  sim.pump.oversleep_ms = 3;
  Pace(sim.services).Wait(98301);
  EXPECT_EQ(now_ms(), 98304);
}

TEST_F(PaceTest, NoWaitIsShorterThanNothing) {
  Pace pace(sim.services);
  pace.Wait(0);
  pace.Wait(-100);
  EXPECT_EQ(now_ms(), 0);
  pace.Wait(20);
  EXPECT_EQ(now_ms(), 20);
}

TEST_F(PaceTest, MessagesWaitMeanwhile) {
  bool handled = false;
  sim.At(10ms, [&handled] { handled = true; });
  Pace(sim.services).Wait(100);
  EXPECT_FALSE(handled);
}

}  // namespace
}  // namespace tone
