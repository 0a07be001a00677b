// The course of a hearing test: what is played next, and what the answers say.
//
// First a tone of 1000 Hz, which is to be heard before anything higher comes. Then the highest
// pitch that is heard is looked for on a grid of 100 Hz, by bisection with answers that may be
// wrong: every possible result is weighted by how many answers contradict it, and the pitch is
// asked that parts the weights in halves (M. Horstein, "Sequential transmission using noiseless
// feedback", IEEE Trans. Inf. Theory 9, 1963; R. Waeber, P. Frazier, S. Henderson, "Bisection
// search with noisy responses", SIAM J. Control Optim. 51, 2013). The test is over when every
// result further than 200 Hz away is contradicted by kMargin answers more, and the last pitch that
// is heard as well as the first one that is not were asked twice. Among the tones are trials
// without one, at a chance place in every four, at least one in five of all trials.
#pragma once

#include <cstdint>
#include <random>
#include <vector>

namespace hearing {

inline constexpr int kCheckPitch = 1000;     // Hz
inline constexpr int kLowestPitch = 8000;    // Hz
inline constexpr int kHighestPitch = 20000;  // Hz
inline constexpr int kPitchStep = 100;       // Hz
inline constexpr int kSilence = 0;           // in place of a pitch: nothing is played

enum class Verdict : std::int8_t {
  kNone,           // the test goes on
  kHeard,          // with a pitch
  kNothingHeard,   // the check tone, but no higher one
  kNoCheckTone,    // not even that
  kSilenceHeard,   // "Yes" more than once where nothing was played: not reliable
  kContradictory,  // nothing certain after kMostTrials, or too many answers against it
};

class Procedure {
 public:
  static constexpr int kMostTrials = 30;  // all of them, with the check tone and the silent ones
  static constexpr int kMostChecks = 3;
  static constexpr int kMargin = 4;
  static constexpr int kMostContradictions = 3;  // that a result may have

  // The highest pitch that is asked is the grid's last one up to `highest_hz`, which is
  // kLowestPitch or more. `seed` decides where the silent trials are.
  Procedure(int highest_hz, std::uint32_t seed);

  Verdict verdict() const { return verdict_; }

  // While the test goes on: what is to be played now, in Hz, or kSilence.
  int Current() const { return current_hz_; }
  void Answer(bool heard);

  // The highest pitch heard, in Hz, with the verdict kHeard.
  int Result() const { return PitchOf(best_); }

  int trials() const { return trials_; }  // answered ones
  int highest() const { return PitchOf(Count()); }

 private:
  // A place is a pitch of the grid, from 1 on; a result is the place of the highest pitch heard, or
  // 0 if none is.
  static int PitchOf(int place) { return kLowestPitch + (place - 1) * kPitchStep; }
  int Contradictions(int result) const { return contradictions_[static_cast<std::size_t>(result)]; }
  int Count() const { return static_cast<int>(asked_.size()) - 1; }

  struct Asked {
    int heard = 0;
    int missed = 0;
  };

  void AnswerCheck(bool heard);
  void TakeAnswer(bool heard);
  void Judge();
  void Next();
  bool SilentNow();
  int PartingPlace() const;
  int UncertainPlace() const;
  bool Parted() const;
  int Below(int bound);

  std::vector<Asked> asked_;         // by place; the first is of no use
  std::vector<int> contradictions_;  // by result
  std::minstd_rand random_;
  Verdict verdict_ = Verdict::kNone;
  int current_hz_ = kCheckPitch;
  int place_ = 0;  // of current_hz_
  int best_ = 0;   // the result with the fewest contradictions
  int trials_ = 0;
  int checks_ = 0;
  int silent_ = 0;
  int silent_heard_ = 0;
  int place_in_four_ = 0;
  int silent_in_four_ = 0;
};

}  // namespace hearing
