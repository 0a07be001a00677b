#include "tools/note_lengths.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <tuple>
#include <utility>

namespace tools {
namespace {

constexpr double kToleranceMs = 1;
constexpr std::int64_t kRoundingUs = 1000;
constexpr double kTolerance = 0.005;  // of the length, where that is more
constexpr std::int32_t kLongestGapMs = 100;
constexpr std::int32_t kSlowest = 25;
constexpr std::int32_t kFastest = 900;
constexpr std::int32_t kUsual = 120;

constexpr std::array<std::int32_t, 32> kListed{
    25,  28,  31,  35,  40,  45,  50,  56,  63,  70,  80,  90,  100, 112, 125, 140,
    160, 180, 200, 225, 250, 285, 320, 355, 400, 450, 500, 565, 635, 715, 800, 900};

struct Fit {
  NoteLength note;
  std::int64_t error_us = 0;
};

std::optional<Fit> FitOf(NoteLength note, std::int32_t length_ms, std::int32_t beats) {
  const double exact_ms = kWholeNoteMs * (note.dotted ? 1.5 : 1.0) / (beats * note.duration);
  const double error_ms = std::abs(exact_ms - length_ms);
  if (error_ms > std::max(kToleranceMs, exact_ms * kTolerance)) return std::nullopt;
  return Fit{note, std::llround(error_ms * 1000)};
}

std::optional<Fit> BestFit(std::int32_t length_ms, std::int32_t beats) {
  std::optional<Fit> best;
  for (std::int32_t duration = 1; duration <= 32; duration *= 2) {
    for (const bool dotted : {false, true}) {
      const auto fit = FitOf({duration, dotted}, length_ms, beats);
      if (fit && (!best || fit->error_us < best->error_us)) best = fit;
    }
  }
  return best;
}

// What the rest of a tune costs, from one tone on.
struct Cost {
  std::int32_t misfits = 0;
  std::int32_t joined = 0;
  std::int64_t far_us = 0;  // of the errors that are more than rounding
  std::int32_t dotted = 0;
  std::int64_t near_us = 0;

  friend bool operator<(const Cost& a, const Cost& b) {
    return std::tie(a.misfits, a.joined, a.far_us, a.dotted, a.near_us) <
           std::tie(b.misfits, b.joined, b.far_us, b.dotted, b.near_us);
  }
};

// A note for what lasts `length_ms`, and its cost beside that of what follows.
TimedNote NoteFor(std::int32_t length_ms, std::int32_t beats, Cost& cost) {
  TimedNote note;
  if (const auto fit = BestFit(length_ms, beats)) {
    note.length = fit->note;
    (fit->error_us > kRoundingUs ? cost.far_us : cost.near_us) += fit->error_us;
    if (fit->note.dotted) ++cost.dotted;
  } else {
    ++cost.misfits;
  }
  return note;
}

struct Choice {
  Cost cost;
  TimedNote note;
};

bool MayJoin(std::span<const Timed> tones, std::size_t at) {
  return at + 1 < tones.size() && !tones[at].rest && tones[at + 1].rest &&
         tones[at + 1].length_ms <= kLongestGapMs;
}

// The best way to read the tones from each on, found from the last backwards.
std::vector<Choice> Choices(std::span<const Timed> tones, std::int32_t beats) {
  std::vector<Choice> choices(tones.size() + 1);
  for (std::size_t at = tones.size(); at-- > 0;) {
    Choice& choice = choices[at];
    choice.cost = choices[at + 1].cost;
    choice.note = NoteFor(tones[at].length_ms, beats, choice.cost);
    if (MayJoin(tones, at)) {
      Choice joined{choices[at + 2].cost, {}};
      ++joined.cost.joined;
      joined.note = NoteFor(tones[at].length_ms + tones[at + 1].length_ms, beats, joined.cost);
      joined.note.with_rest = true;
      if (joined.note.length && joined.cost < choice.cost) choice = joined;
    }
    choice.note.tone = at;
  }
  return choices;
}

Timing Read(std::span<const Timed> tones, std::int32_t beats) {
  const std::vector<Choice> choices = Choices(tones, beats);
  Timing timing{beats, {}};
  for (std::size_t at = 0; at < tones.size(); at += choices[at].note.with_rest ? 2 : 1) {
    timing.notes.push_back(choices[at].note);
  }
  return timing;
}

}  // namespace

Timing TimingOf(std::span<const Timed> tones) {
  using Rank = std::tuple<Cost, bool, std::int64_t, std::int32_t>;
  Rank best;
  std::int32_t best_beats = 0;
  for (std::int32_t beats = kSlowest; beats <= kFastest; ++beats) {
    const bool listed = std::binary_search(kListed.begin(), kListed.end(), beats);
    Cost cost = Choices(tones, beats).front().cost;
    // The listed ones come before what is nearer by roundings alone.
    const std::int64_t near_us = std::exchange(cost.near_us, 0);
    const Rank rank{cost, !listed, near_us, std::abs(beats - kUsual)};
    if (best_beats == 0 || rank < best) {
      best = rank;
      best_beats = beats;
    }
  }
  return Read(tones, best_beats);
}

}  // namespace tools
