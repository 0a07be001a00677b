#include "helpers/device_watch.h"

#include <gtest/gtest.h>

#include <vector>

namespace helpers {
namespace {

TEST(DeviceWatch, TriesAtOnceAndThenEverySecond) {
  DeviceWatch watch;
  std::vector<unsigned> tried_at;
  for (unsigned now_ms = 5000; now_ms <= 9000; now_ms += 50) {
    if (watch.Due(now_ms)) tried_at.push_back(now_ms);
  }
  EXPECT_EQ(tried_at, (std::vector<unsigned>{5000, 6000, 7000, 8000, 9000}));
}

TEST(DeviceWatch, TriesAtOnceWhenALongTimeHasPassed) {
  DeviceWatch watch;
  EXPECT_TRUE(watch.Due(0));
  EXPECT_TRUE(watch.Due(100000));
  EXPECT_FALSE(watch.Due(100999));
  EXPECT_TRUE(watch.Due(101000));
}

TEST(DeviceWatch, ADeviceThatTakesBuffersIsNotStalled) {
  DeviceWatch watch;
  for (unsigned now_ms = 0; now_ms < 10000; now_ms += 50) {
    EXPECT_FALSE(watch.Stalled(now_ms % 100 == 0 ? 1 : 0, now_ms));
  }
}

TEST(DeviceWatch, OneThatTakesNoneForTwoSecondsIs) {
  DeviceWatch watch;
  EXPECT_FALSE(watch.Stalled(4, 1000));
  unsigned now_ms = 1100;
  while (!watch.Stalled(0, now_ms)) now_ms += 100;
  EXPECT_EQ(now_ms, 3100u);
}

TEST(DeviceWatch, ANewDeviceHasItsOwnTwoSeconds) {
  DeviceWatch watch;
  EXPECT_TRUE(watch.Due(0));
  EXPECT_FALSE(watch.Stalled(0, 0));
  EXPECT_TRUE(watch.Stalled(0, 2000));
  EXPECT_TRUE(watch.Due(2000));
  EXPECT_FALSE(watch.Stalled(0, 2100));
  EXPECT_FALSE(watch.Stalled(0, 4099));
  EXPECT_TRUE(watch.Stalled(0, 4100));
}

TEST(DeviceWatch, TheClockMayWrapAround) {
  DeviceWatch watch;
  EXPECT_TRUE(watch.Due(0xFFFFFF00u));
  EXPECT_FALSE(watch.Due(0x00000010u));
  EXPECT_TRUE(watch.Due(0x00000300u));
}

}  // namespace
}  // namespace helpers
