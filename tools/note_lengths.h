// Which lengths of tones are notes, at which tempo.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace tools {

inline constexpr double kWholeNoteMs = 240000;  // at one beat a minute

struct NoteLength {
  std::int32_t duration = 4;  // 1 for a whole note to 32
  bool dotted = false;

  friend bool operator==(const NoteLength&, const NoteLength&) = default;
};

struct Timed {
  std::int32_t length_ms = 0;
  bool rest = false;
};

// A note of one tone, or of a tone and the rest behind it.
struct TimedNote {
  std::size_t tone = 0;  // its index
  bool with_rest = false;
  std::optional<NoteLength> length;  // nothing where none fits
};

struct Timing {
  std::int32_t beats = 0;  // a minute
  std::vector<TimedNote> notes;
};

// The tempo, of 25 to 900 beats, at which the fewest tones do not fit; of several the one that
// needs the fewest rests joined to notes, then the nearest to the lengths beside their rounding,
// then the one with the fewest dots, then one that the ring tone text's definition lists, then the
// nearest to 120. A length fits that is at most 1 ms or half a percent from a note's. Of `tones`
// there is at least one.
Timing TimingOf(std::span<const Timed> tones);

}  // namespace tools
