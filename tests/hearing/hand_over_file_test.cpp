// Reading the hand-over file on a simulated machine.
#include "hearing/hand_over_file.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/simulated/simulation.h"

namespace hearing {
namespace {

using platform::simulated::Operation;

constexpr char kPath[] = "C:\\Temp\\testhearing.ini";

TEST(HandOverFile, IsReadAndDeleted) {
  platform::simulated::Simulation sim;
  sim.files.Put(kPath, "256\r\nnl\r\n");
  EXPECT_EQ(TakeHandOver(sim.files, "C:\\Temp"), Language::kDutch);
  EXPECT_FALSE(sim.files.Exists(kPath));
}

TEST(HandOverFile, IsDeletedWhenItIsDamaged) {
  platform::simulated::Simulation sim;
  sim.files.Put(kPath, std::string(5000, 'x'));
  EXPECT_EQ(TakeHandOver(sim.files, "C:\\Temp"), Language::kEnglish);
  EXPECT_FALSE(sim.files.Exists(kPath));
}

TEST(HandOverFile, WithoutOneTheTestIsEnglish) {
  platform::simulated::Simulation sim;
  EXPECT_EQ(TakeHandOver(sim.files, "C:\\Temp"), Language::kEnglish);
  EXPECT_EQ(TakeHandOver(sim.files, ""), Language::kEnglish);
}

TEST(HandOverFile, AFolderOfThatNameStays) {
  platform::simulated::Simulation sim;
  sim.files.AddFolder(kPath);
  EXPECT_EQ(TakeHandOver(sim.files, "C:\\Temp"), Language::kEnglish);
}

TEST(HandOverFile, OneThatCannotBeReadIsEnglish) {
  for (const Operation operation : {Operation::kOpenForReading, Operation::kRead}) {
    platform::simulated::Simulation sim;
    sim.files.Put(kPath, "128\r\nnl\r\n");
    sim.files.Fail(operation, kPath, base::ErrorCode::kPermissionDenied);
    EXPECT_EQ(TakeHandOver(sim.files, "C:\\Temp"), Language::kEnglish);
  }
}

TEST(HandOverFile, OneThatCannotBeDeletedStillTellsTheLanguage) {
  platform::simulated::Simulation sim;
  sim.files.Put(kPath, "128\r\nnl\r\n");
  sim.files.Fail(Operation::kDelete, kPath, base::ErrorCode::kPermissionDenied);
  EXPECT_EQ(TakeHandOver(sim.files, "C:\\Temp"), Language::kDutch);
}

}  // namespace
}  // namespace hearing
