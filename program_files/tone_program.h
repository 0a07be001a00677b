// Tone programs: the text files with the extension .tnf that list tones, and their checks.
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
// rounded, ties to even; a value that fails its check is not stored.
//
// A failed check does not end the checks: each yields a report of its own, in file order. Nothing
// here touches a file, a window or a clock.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/errors.h"

namespace program_files {

inline constexpr std::int16_t kLastIndex = 2000;

// A table with the indices 0 to kLastIndex. Another index throws base::RuntimeError
// kSubscriptOutOfRange.
template <class Value>
class Table {
 public:
  Value& operator[](std::int16_t index) { return values_[Checked(index)]; }
  const Value& operator[](std::int16_t index) const { return values_[Checked(index)]; }

  friend bool operator==(const Table&, const Table&) = default;

 private:
  static std::size_t Checked(std::int16_t index) {
    if (index < 0 || index > kLastIndex) {
      throw base::RuntimeError(base::ErrorCode::kSubscriptOutOfRange);
    }
    return static_cast<std::size_t>(index);
  }

  std::vector<Value> values_ = std::vector<Value>(static_cast<std::size_t>(kLastIndex) + 1);
};

// What a failed check tells the user.
enum class Report {
  kIllegalFile,  // the file is not a tone program
  kVersion,      // the file is for a later version of this program
};

struct ToneProgram {
  Table<std::string> lines;      // UTF-8, line n at index n; the checks store cleaned lines back
  std::int16_t position = 0;     // index of the line that is checked
  std::int16_t hidden_flag = 0;  // 1 for "invisible"
  std::int16_t extra_time_ms = 0;
  std::int16_t line_count = 0;   // lines of the file, minus 6
  std::int16_t entry_index = 0;  // next free index of the two tables below
  std::int16_t tone_count = 0;
  Table<std::int16_t> pitch_hz;  // tone k at index k, from 1
  Table<std::int16_t> duration_ms;
};

// The checks in steps, for a caller that shows each report before the next step and lets other
// things happen between the entries:
//
//   Show(checks.CheckHead());
//   checks.BeginEntries(lines_in_file);
//   while (checks.HasEntry()) Show(checks.CheckEntry());
//
// The number of lines may be another than that of the table's lines, as the file may have changed
// since they were read; lines that are not there are empty.
class ProgramChecks {
 public:
  // Works on `program`, whose lines are filled in.
  explicit ProgramChecks(ToneProgram& program) : program_(program) {}

  // Lines 1 to 7.
  std::vector<Report> CheckHead();

  // Throws base::RuntimeError kOverflow when the line count leaves 16 bits.
  void BeginEntries(std::int32_t lines_in_file);

  // The file's last line never begins an entry.
  bool HasEntry() const { return program_.position < lines_in_file_; }

  // The entry at the position, or one line that begins none. Throws base::RuntimeError
  // kSubscriptOutOfRange beyond the tables.
  std::vector<Report> CheckEntry();

 private:
  std::string WithoutMarker(std::int16_t position, char marker) const;
  void Clean(std::string_view markers);
  void Expect(bool passes, Report report = Report::kIllegalFile);
  void Store(double above, std::int16_t& value);
  const std::string& Line() const { return program_.lines[program_.position]; }

  ToneProgram& program_;
  std::int32_t lines_in_file_ = 0;
  std::vector<Report> reports_;  // of the current step
};

// All the checks of a program whose lines are filled in, for a file of `lines_in_file` lines;
// returns the failed ones in file order. Throws as the steps do.
std::vector<Report> CheckProgram(ToneProgram& program, std::int32_t lines_in_file);

}  // namespace program_files
