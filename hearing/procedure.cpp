#include "hearing/procedure.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace hearing {
namespace {

constexpr int kNear = 2;             // steps of the grid: as good as the result itself
constexpr int kWrongBits = 4;        // an answer that contradicts it leaves a 16th of a weight
constexpr int kTrialsPerSilent = 5;  // at most
constexpr int kGroup = 4;            // trials, of which one is silent
constexpr int kNoPlace = 0;

}  // namespace

Procedure::Procedure(int highest_hz, std::uint32_t seed)
    : asked_(static_cast<std::size_t>((highest_hz - kLowestPitch) / kPitchStep) + 2),
      contradictions_(asked_.size()),
      random_(seed) {}

void Procedure::Answer(bool heard) {
  if (verdict_ != Verdict::kNone) return;
  ++trials_;
  if (current_hz_ == kCheckPitch) {
    AnswerCheck(heard);
  } else if (current_hz_ == kSilence) {
    ++silent_;
    if (heard) ++silent_heard_;
  } else {
    TakeAnswer(heard);
  }
  if (verdict_ == Verdict::kNone) Judge();
}

void Procedure::AnswerCheck(bool heard) {
  ++checks_;
  if (!heard && checks_ == kMostChecks) verdict_ = Verdict::kNoCheckTone;
  if (heard) current_hz_ = kSilence;
}

void Procedure::TakeAnswer(bool heard) {
  Asked& asked = asked_[static_cast<std::size_t>(place_)];
  ++(heard ? asked.heard : asked.missed);
  for (int result = 0; result <= Count(); ++result) {
    if ((place_ <= result) != heard) ++contradictions_[static_cast<std::size_t>(result)];
  }
  const auto least = std::min_element(contradictions_.begin(), contradictions_.end());
  best_ = static_cast<int>(least - contradictions_.begin());
}

void Procedure::Judge() {
  if (silent_heard_ > 1) {
    verdict_ = Verdict::kSilenceHeard;
  } else if (Parted() && UncertainPlace() == kNoPlace && kTrialsPerSilent * silent_ >= trials_) {
    verdict_ = best_ == 0 ? Verdict::kNothingHeard : Verdict::kHeard;
  } else if (trials_ == kMostTrials || Contradictions(best_) > kMostContradictions) {
    verdict_ = Verdict::kContradictory;
  } else if (current_hz_ != kCheckPitch) {
    Next();
  }
}

void Procedure::Next() {
  const int uncertain = Parted() ? UncertainPlace() : PartingPlace();
  // Only silent trials are missing then.
  if (SilentNow() || uncertain == kNoPlace) {
    current_hz_ = kSilence;
    return;
  }
  place_ = uncertain;
  current_hz_ = PitchOf(place_);
}

bool Procedure::SilentNow() {
  if (place_in_four_ == 0) silent_in_four_ = Below(kGroup);
  const bool silent = place_in_four_ == silent_in_four_;
  place_in_four_ = (place_in_four_ + 1) % kGroup;
  return silent;
}

// The place that parts the weights of the results most evenly.
int Procedure::PartingPlace() const {
  std::vector<double> weights;
  weights.reserve(contradictions_.size());
  double all = 0;
  for (const int count : contradictions_) {
    weights.push_back(std::ldexp(1.0, -kWrongBits * count));
    all += weights.back();
  }
  int chosen = 1;
  double below = 0;
  double most_even = all;
  for (int place = 1; place <= Count(); ++place) {
    below += weights[static_cast<std::size_t>(place) - 1];
    const double uneven = std::abs(2 * below - all);
    if (uneven < most_even) {
      most_even = uneven;
      chosen = place;
    }
  }
  return chosen;
}

// Of the two places beside the result's border, one that was not yet answered twice as the result
// says; kNoPlace when both were.
int Procedure::UncertainPlace() const {
  const int missed = best_ + 1;
  if (best_ > 0 && asked_[static_cast<std::size_t>(best_)].heard < 2) return best_;
  if (missed <= Count() && asked_[static_cast<std::size_t>(missed)].missed < 2) return missed;
  return kNoPlace;
}

// All other results, but for those near the best one, are out of the running.
bool Procedure::Parted() const {
  const int least = Contradictions(best_);
  for (int result = 0; result <= Count(); ++result) {
    const int more = Contradictions(result) - least;
    const bool near = std::abs(result - best_) <= kNear;
    if (result != best_ && more < (near ? 1 : kMargin)) return false;
  }
  return true;
}

int Procedure::Below(int bound) {
  return static_cast<int>(random_() % static_cast<std::uint32_t>(bound));
}

}  // namespace hearing
