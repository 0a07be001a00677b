// The course of the hearing test with made-up listeners.
#include "hearing/procedure.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <map>
#include <random>
#include <vector>

namespace hearing {
namespace {

// Says whether a tone of a pitch is heard; kSilence is none.
using Listener = std::function<bool(int pitch_hz)>;

Listener HearingUpTo(int highest_hz) {
  return [highest_hz](int pitch_hz) { return pitch_hz != kSilence && pitch_hz <= highest_hz; };
}

// Gives the wrong answer once in twenty times.
Listener Forgetful(int highest_hz, std::uint32_t seed) {
  return [right = HearingUpTo(highest_hz), random = std::mt19937(seed)](int pitch_hz) mutable {
    const bool wrong = random() % 20 == 0;
    return right(pitch_hz) != wrong;
  };
}

// The pitches of all trials, in order.
std::vector<int> Listen(Procedure& procedure, const Listener& listener) {
  std::vector<int> played;
  while (procedure.verdict() == Verdict::kNone) {
    played.push_back(procedure.Current());
    procedure.Answer(listener(played.back()));
    if (played.size() > 1000) break;
  }
  return played;
}

int SilentOnes(const std::vector<int>& played) {
  return static_cast<int>(std::count(played.begin(), played.end(), kSilence));
}

TEST(Procedure, FindsWhereAListenerEndsForEveryEndAndManySeeds) {
  for (int end = kLowestPitch; end <= kHighestPitch; end += 100) {
    for (std::uint32_t seed = 1; seed <= 10; ++seed) {
      Procedure procedure(kHighestPitch, seed);
      Listen(procedure, HearingUpTo(end));
      ASSERT_EQ(procedure.verdict(), Verdict::kHeard) << end;
      ASSERT_EQ(procedure.Result(), end) << seed;
    }
  }
}

TEST(Procedure, AnEndBetweenTwoPitchesIsTheLowerOne) {
  Procedure procedure(kHighestPitch, 7);
  Listen(procedure, HearingUpTo(15372));
  EXPECT_EQ(procedure.Result(), 15300);
}

TEST(Procedure, AForgetfulListenerGetsHisPitchOrIsToldThatItIsNotReliable) {
  int right = 0;
  int not_reliable = 0;
  int wrong = 0;
  for (int end = kLowestPitch; end <= kHighestPitch; end += 500) {
    for (std::uint32_t seed = 1; seed <= 400; ++seed) {
      Procedure procedure(kHighestPitch, seed);
      Listen(procedure, Forgetful(end, seed * 100003 + static_cast<std::uint32_t>(end)));
      if (procedure.verdict() != Verdict::kHeard && procedure.verdict() != Verdict::kNothingHeard) {
        ++not_reliable;
      } else if (std::abs(procedure.Result() - end) <= 200) {
        ++right;
      } else {
        ++wrong;
      }
    }
  }
  // 10,000 tests. That five answers are wrong at the same border cannot be ruled out, only made
  // rare.
  EXPECT_EQ(right + not_reliable + wrong, 10000);
  EXPECT_LE(wrong, 5);
  EXPECT_LE(not_reliable, 800);
}

TEST(Procedure, WhoAlwaysSaysYesIsNotReliable) {
  for (std::uint32_t seed = 1; seed <= 200; ++seed) {
    Procedure procedure(kHighestPitch, seed);
    const std::vector<int> played = Listen(procedure, [](int) { return true; });
    EXPECT_EQ(procedure.verdict(), Verdict::kSilenceHeard);
    EXPECT_EQ(SilentOnes(played), 2);
    EXPECT_LE(played.size(), 9U);
  }
}

TEST(Procedure, WhoAlwaysSaysNoHearsOnlyTheCheckToneThreeTimes) {
  Procedure procedure(kHighestPitch, 1);
  EXPECT_EQ(Listen(procedure, [](int) { return false; }), (std::vector{1000, 1000, 1000}));
  EXPECT_EQ(procedure.verdict(), Verdict::kNoCheckTone);
}

TEST(Procedure, AfterTheVolumeWasTurnedUpTheTestGoesOn) {
  Procedure procedure(kHighestPitch, 1);
  int checks = 0;
  Listen(procedure, [&](int pitch_hz) {
    if (pitch_hz == kCheckPitch) return ++checks == 3;
    return HearingUpTo(12000)(pitch_hz);
  });
  EXPECT_EQ(checks, 3);
  EXPECT_EQ(procedure.verdict(), Verdict::kHeard);
  EXPECT_EQ(procedure.Result(), 12000);
}

TEST(Procedure, WhoHearsNoHighToneIsToldSo) {
  Procedure procedure(kHighestPitch, 3);
  Listen(procedure, HearingUpTo(7999));
  EXPECT_EQ(procedure.verdict(), Verdict::kNothingHeard);
}

TEST(Procedure, AnswersByChanceSeldomGetAResult) {
  int results = 0;
  for (std::uint32_t seed = 1; seed <= 1000; ++seed) {
    Procedure procedure(kHighestPitch, seed);
    std::mt19937 coin(seed);
    const std::vector<int> played =
        Listen(procedure, [&](int pitch_hz) { return pitch_hz == kCheckPitch || coin() % 2 == 0; });
    EXPECT_LE(played.size(), 30U);
    if (procedure.verdict() == Verdict::kHeard) ++results;
  }
  // Who tosses a coin says "Yes" to at most one of six silences in one test of nine.
  EXPECT_LE(results, 110);
}

TEST(Procedure, WhoSaysTheContraryWhenAskedAgainIsNotReliable) {
  for (const int end : {8000, 13400, 19900}) {
    std::map<int, int> times;
    Procedure procedure(kHighestPitch, 5);
    const std::vector<int> played = Listen(procedure, [&](int pitch_hz) {
      if (pitch_hz == kCheckPitch || pitch_hz == kSilence) return pitch_hz == kCheckPitch;
      return (pitch_hz <= end) == (times[pitch_hz]++ % 2 == 0);
    });
    EXPECT_EQ(procedure.verdict(), Verdict::kContradictory) << end;
    EXPECT_LE(played.size(), 30U);
  }
}

TEST(Procedure, ATestThatFindsNothingCertainEndsAfterThirtyTrials) {
  // He guesses between 12000 and 14000 Hz, three times of four rightly.
  int ended = 0;
  for (std::uint32_t seed = 1; seed <= 300; ++seed) {
    Procedure procedure(kHighestPitch, seed);
    std::mt19937 chance(seed);
    const std::vector<int> played = Listen(procedure, [&](int pitch_hz) {
      const bool heard = HearingUpTo(13000)(pitch_hz);
      return std::abs(pitch_hz - 13000) <= 1000 && chance() % 4 == 0 ? !heard : heard;
    });
    ASSERT_LE(played.size(), 30U);
    if (played.size() == 30 && procedure.verdict() == Verdict::kContradictory) ++ended;
  }
  EXPECT_GT(ended, 0);
}

TEST(Procedure, OneTrialInFiveIsSilentAndNoPlaceOfItIsSure) {
  std::vector<int> silent_at(30);
  constexpr int kSeeds = 1000;
  for (std::uint32_t seed = 1; seed <= kSeeds; ++seed) {
    Procedure procedure(kHighestPitch, seed);
    const std::vector<int> played = Listen(procedure, HearingUpTo(13400));
    ASSERT_GE(SilentOnes(played) * 5, static_cast<int>(played.size()));
    ASSERT_LE(played.size(), 30U);
    ASSERT_EQ(played[0], kCheckPitch);
    for (std::size_t trial = 0; trial < played.size(); ++trial) {
      if (played[trial] == kSilence) ++silent_at[trial];
    }
  }
  for (int trial = 1; trial <= 12; ++trial) {
    EXPECT_GT(silent_at[static_cast<std::size_t>(trial)], kSeeds / 8) << trial;
    EXPECT_LT(silent_at[static_cast<std::size_t>(trial)], kSeeds / 2) << trial;
  }
}

TEST(Procedure, TheLastStepsAreAskedTwice) {
  for (int end = 8000; end < kHighestPitch; end += 100) {
    Procedure procedure(kHighestPitch, 11);
    const std::vector<int> played = Listen(procedure, HearingUpTo(end));
    EXPECT_GE(std::count(played.begin(), played.end(), end), 2) << end;
    EXPECT_GE(std::count(played.begin(), played.end(), end + 100), 2) << end;
  }
}

TEST(Procedure, AForgetfulListenersLastStepsWereAnsweredTwiceAsTheResultSays) {
  int results = 0;
  for (int end = 8000; end < kHighestPitch; end += 500) {
    for (std::uint32_t seed = 1; seed <= 100; ++seed) {
      Procedure procedure(kHighestPitch, seed);
      std::map<int, int> heard;
      std::map<int, int> missed;
      Listener listener = Forgetful(end, seed * 100003 + static_cast<std::uint32_t>(end));
      Listen(procedure, [&](int pitch_hz) {
        const bool answer = listener(pitch_hz);
        ++(answer ? heard : missed)[pitch_hz];
        return answer;
      });
      const int result = procedure.Result();
      if (procedure.verdict() != Verdict::kHeard) continue;
      ++results;
      ASSERT_GE(heard[result], 2) << end << " " << seed;
      if (result == kHighestPitch) continue;
      ASSERT_GE(missed[result + 100], 2) << end << " " << seed;
    }
  }
  EXPECT_GT(results, 2000);
}

TEST(Procedure, BeginsInTheMiddle) {
  Procedure procedure(kHighestPitch, 2);
  std::vector<int> played = Listen(procedure, HearingUpTo(20000));
  std::erase(played, kSilence);
  EXPECT_EQ(played[1], 14000);
  EXPECT_NEAR(played[2], 17000, 500);
  EXPECT_NEAR(played[3], 18500, 500);
}

TEST(Procedure, NothingAboveTheDevicesHighestPitchIsAsked) {
  for (const int highest : {8000, 8100, 14400, 19800}) {
    Procedure procedure(highest, 4);
    const std::vector<int> played = Listen(procedure, HearingUpTo(20000));
    EXPECT_EQ(procedure.highest(), highest);
    EXPECT_EQ(procedure.verdict(), Verdict::kHeard);
    EXPECT_EQ(procedure.Result(), highest);
    EXPECT_EQ(*std::max_element(played.begin(), played.end()), highest);
  }
}

TEST(Procedure, AnAnswerAfterTheEndChangesNothing) {
  Procedure procedure(kHighestPitch, 1);
  Listen(procedure, [](int) { return false; });
  procedure.Answer(true);
  EXPECT_EQ(procedure.verdict(), Verdict::kNoCheckTone);
  EXPECT_EQ(procedure.trials(), 3);
}

}  // namespace
}  // namespace hearing
