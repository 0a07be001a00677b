// The checks of a tone program (program_files/tone_program.h) in steps, for a caller that shows
// each finding before the next step and lets other things happen between the entries:
//
//   Show(checks.CheckHead());
//   checks.BeginEntries(lines_in_file);
//   while (checks.HasEntry()) Show(checks.CheckEntry());
//
// A failed check does not end the checks: each yields a finding of its own, in file order. Nothing
// here touches a file, a window or a clock. Who has the whole file at once calls ReadToneProgram
// (program_files/program_reader.h), which is made of these steps.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/errors.h"
#include "program_files/tone_program.h"

namespace program_files {

inline constexpr std::int16_t kLastIndex = 2000;

// A table with the indices 0 to kLastIndex, of which those that nothing was stored at hold an empty
// value. Another index throws base::RuntimeError kSubscriptOutOfRange.
template <class Value>
class Table {
 public:
  Value& operator[](std::int16_t index) {
    const std::size_t at = Checked(index);
    if (at >= values_.size()) values_.resize(at + 1);
    return values_[at];
  }
  const Value& operator[](std::int16_t index) const {
    const std::size_t at = Checked(index);
    return at < values_.size() ? values_[at] : empty_;
  }

 private:
  static std::size_t Checked(std::int16_t index) {
    if (index < 0 || index > kLastIndex) {
      throw base::RuntimeError(base::ErrorCode::kSubscriptOutOfRange);
    }
    return static_cast<std::size_t>(index);
  }

  std::vector<Value> values_;
  Value empty_{};
};

// Where the checks are, and the lines that they work on.
struct ParseState {
  Table<std::string> lines;      // line n at index n; the checks store cleaned lines back
  std::int16_t position = 0;     // index of the line that is checked
  std::int16_t line_count = 0;   // lines of the file, minus 6
  std::int16_t entry_index = 0;  // number of the next tone
};

// The number of lines in the file may be another than that of the table's lines, as the file may
// have changed since they were read; lines that are not there are empty.
class ProgramChecks {
 public:
  // Works on `state`, whose lines are filled in, and fills `program`.
  ProgramChecks(ParseState& state, ToneProgram& program) : state_(state), program_(program) {}

  // Lines 1 to 7. What a step returns are its own findings; they stay until the next step.
  std::span<const Finding> CheckHead();

  // Throws base::RuntimeError kOverflow when the line count leaves 16 bits.
  void BeginEntries(std::int32_t lines_in_file);

  // The file's last line never begins an entry.
  bool HasEntry() const { return state_.position < lines_in_file_; }

  // The entry at the position, or one line that begins none. Throws base::RuntimeError
  // kSubscriptOutOfRange beyond the table.
  std::span<const Finding> CheckEntry();

  // Of all steps so far.
  std::vector<Finding> TakeFindings() { return std::move(findings_); }

 private:
  void CheckVisibility();
  void CheckEntryLines();

  // Takes the markers out of the line and returns it as it stood.
  std::string Clean(std::string_view markers);
  void ExpectText(std::string_view text, std::string_view markers, Expected expected);
  void ExpectStart(char mark, Expected expected);
  void Store(double above, std::string_view markers, Expected expected, std::int16_t& value);
  void Fail(Expected expected, std::string_view found, std::size_t column);
  const std::string& Line() const;

  ParseState& state_;
  ToneProgram& program_;
  std::int32_t lines_in_file_ = 0;
  std::vector<Finding> findings_;
};

// All the checks of lines that are filled in, for a file of `lines_in_file` lines; returns the
// failed ones in file order. Throws as the steps do.
std::vector<Finding> CheckProgram(ParseState& state, ToneProgram& program,
                                  std::int32_t lines_in_file);

}  // namespace program_files
