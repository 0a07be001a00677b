// Tone programs: the text files with the extension .tnf that list tones; what one holds, and what
// is wrong with one.
//
// A file is text in the system's code page, one to 1999 lines, numbered from 1
// (docs/tone-programs.md):
//   1  "valid", with any number of "%" anywhere in it
//   2  "[info]"
//   3  format version, at most 236
//   4  anything
//   5  "visible" or "invisible", in any case
//   6  "[sound]"
//   7  extra time in ms that lengthens every tone, above 0, at most 32000
//   8, 10, 12, ...  "<" and a pitch in Hz, above 1, at most 32000
//   9, 11, 13, ...  "\" and a duration in ms, above 0, at most 32000
// Every "{" and "}" of the lines 3, 5 and 7, every "<" and ">" of a pitch and every "\" of a
// duration is taken out before the line is read. Numbers follow base::LeadingNumber, but one that
// is beyond the range of double is merely too large. They are checked as they stand and stored
// rounded, ties to even; a value that fails its check is not stored and stays 0.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace program_files {

inline constexpr std::int32_t kLatestVersion = 236;  // of the format
inline constexpr std::int32_t kLargestValue = 32000;
inline constexpr std::int16_t kMostLines = 1999;              // of a legal file
inline constexpr std::size_t kMostText = 16UL * 1024 * 1024;  // bytes; a legal file is far smaller

struct Tone {
  std::int16_t pitch_hz = 0;
  std::int16_t duration_ms = 0;
  std::int16_t line = 0;  // of the pitch; the duration stands in the next

  friend bool operator==(const Tone&, const Tone&) = default;
};

struct ToneProgram {
  std::string name;              // line 4 as it stands
  std::int16_t hidden_flag = 0;  // 1 for "invisible"
  std::int16_t extra_time_ms = 0;
  std::vector<Tone> tones;
  Tone unfinished;  // where the checks ended within an entry: its pitch

  // Tone `number`, counted from 1; where there is none, the unfinished one or 0 Hz for 0 ms.
  Tone ToneAt(std::int16_t number) const;
  std::int16_t ToneCount() const { return static_cast<std::int16_t>(tones.size()); }
};

// What the player tells its user about a failed check.
enum class Report {
  kIllegalFile,  // the file is not a tone program
  kVersion,      // the file is for a later version of this program
};

// What a check looks for.
enum class Expected {
  kValid,
  kInfo,
  kVersion,
  kVisibility,
  kSound,
  kExtraTime,
  kPitchMark,  // the "<" that begins an entry
  kPitch,
  kDurationMark,
  kDuration,
  kFewerLines,
  kLessText,
};

// For a message: "[info]", "a pitch above 1 and at most 32000 Hz".
const char* Description(Expected expected);

inline constexpr std::size_t kLongestFound = 80;

// A failed check.
struct Finding {
  std::int32_t line = 0;  // from 1
  std::int32_t column =
      0;  // from 1, in characters of the line (docs/tone-programs.md: single bytes)
  Expected expected{};
  std::string found;  // the line as it stands, cut after kLongestFound bytes
  Report report = Report::kIllegalFile;

  friend bool operator==(const Finding&, const Finding&) = default;
};

}  // namespace program_files
