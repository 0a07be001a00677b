// In each scenario every call of every service fails once, is denied once, and the program is
// killed at it.
//
// A plain run tries one call in kStride; TONMIRA_EVERY_FAULT=1 tries all and prints how many.
#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>
#include <map>
#include <string>

#include "tests/app/faults/promises.h"

namespace app::faults {
namespace {

constexpr int kStride = 11;
constexpr std::pair<Fault, const char*> kFaults[] = {
    {Fault::kFails, "fails"}, {Fault::kDenied, "is denied"}, {Fault::kKilled, "is the last"}};

class EverythingFailsOnce : public testing::TestWithParam<Scenario> {
 protected:
  void Try(int n, Fault fault, const char* how) {
    const Outcome outcome = Scene(scenario_, n, fault).Run();
    std::string wrong = Wrong(scenario_, normal_, outcome, fault);
    if (wrong.empty()) wrong = NextStart(outcome);
    if (!wrong.empty()) {
      wrong_.push_back("call " + std::to_string(n) + ", " + outcome.hit + ", " + how + ": " +
                       wrong);
    }
    ++points_;
  }

  // The logs are of the run that is over: their content changes nothing.
  std::string NextStart(const Outcome& outcome) {
    auto disk = outcome.disk;
    for (const char* log : {kLog, kErrorLog}) {
      if (disk.contains(log)) disk[log] = "old\r\n";
    }
    const auto known = next_starts_.find(disk);
    if (known != next_starts_.end()) return known->second;
    return next_starts_[disk] = WrongNextStart(normal_, disk);
  }

  const Scenario scenario_ = GetParam();
  const Normal normal_ = RunNormally(scenario_);
  std::map<std::map<std::string, std::string>, std::string> next_starts_;
  Lines wrong_;
  int points_ = 0;
};

TEST_P(EverythingFailsOnce, AndTheProgramKeepsItsPromises) {
  ASSERT_EQ(normal_.outcome.end, "ended");
  EXPECT_EQ(normal_.outcome.error_dialogs, scenario_.reports ? 1 : 0);
  const bool all = std::getenv("TONMIRA_EVERY_FAULT") != nullptr;
  int first = all ? 1 : 1 + static_cast<int>(scenario_.name.size()) % kStride;
  for (const auto& [fault, how] : kFaults) {
    for (int n = first; n <= normal_.outcome.calls; n += all ? 1 : kStride) Try(n, fault, how);
    if (!all) first = 1 + (first + 3) % kStride;
  }
  if (all) std::cout << scenario_.name << ": " << points_ << " points\n";
  EXPECT_GT(points_, 0);
  EXPECT_EQ(wrong_, Lines{});
}

INSTANTIATE_TEST_SUITE_P(Scenarios, EverythingFailsOnce, testing::ValuesIn(AllScenarios()),
                         [](const auto& tested) {
                           std::string name = tested.param.name;
                           for (char& letter : name) {
                             if (letter == ' ') letter = '_';
                           }
                           return name;
                         });

}  // namespace
}  // namespace app::faults
