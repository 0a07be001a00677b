// Any bytes as a tone program file. What must hold whatever they are is checked here, and a process
// that breaks it ends with a message; memory, time and undefined behaviour are the sanitizers' and
// libFuzzer's business. The corpus holds plain .tnf files, so that a finding opens in an editor.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "base/errors.h"
#include "program_files/line_reader.h"
#include "program_files/tone_program.h"
#include "tests/program_files/bytes_file.h"
#include "tests/program_files/programs.h"

namespace program_files {
namespace {

constexpr std::int32_t kMostLines = 2000;  // that the player's table takes
constexpr std::int16_t kLimit = 32000;     // of pitches, durations and the extra time

void Require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "broken: %s\n", what);
  std::abort();
}

// The rule of line ends, byte by byte.
Lines PlainlySplit(std::string_view bytes) {
  Lines lines;
  bool open = false;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (!open) lines.emplace_back();
    open = bytes[i] != '\r';
    if (open) lines.back() += bytes[i];
    if (!open && i + 1 < bytes.size() && bytes[i + 1] == '\n') ++i;
  }
  return lines;
}

bool HandsOut(std::string_view bytes, std::size_t most_bytes) {
  BytesFile file(bytes);
  LineReader reader(file, most_bytes);
  try {
    while (reader.Next()) continue;
  } catch (const base::RuntimeError& error) {
    Require(error.code() == base::ErrorCode::kOutOfMemory, "too much text is an error of its own");
    return false;
  }
  return true;
}

void CheckLines(std::string_view bytes, const Lines& lines) {
  Require(lines == PlainlySplit(bytes), "the lines are those between the line ends");
  // Down to a byte, yet no endless reading.
  Require(lines == LinesIn(BytesFile(bytes, 1 + bytes.size() / 64)),
          "the lines do not depend on how the file is read");
  std::size_t text = 0;
  for (const std::string& line : lines) text += line.size();
  Require(HandsOut(bytes, text), "as much text as may be is handed out");
  Require(text == 0 || !HandsOut(bytes, text - 1), "and no more");
  const auto count = static_cast<std::int32_t>(lines.size());
  Require(CountIn(bytes, count + 1) == count, "both passes see as many lines");
  Require(CountIn(bytes, count / 2) == count / 2, "the count ends where it may end");
}

ToneProgram Filled(const Lines& lines) {
  const auto kept = std::min(lines.size(), static_cast<std::size_t>(kMostLines));
  return ProgramOf(Lines(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(kept)));
}

// Checks that ended early may leave a pitch without its tone.
void CheckTables(const ToneProgram& program, std::int16_t last_pitch) {
  Require(program.hidden_flag == 0 || program.hidden_flag == 1, "the hidden flag is 0 or 1");
  Require(program.extra_time_ms >= 0 && program.extra_time_ms <= kLimit, "extra time in limits");
  Require(program.tone_count >= 0 && program.tone_count <= kLastIndex, "tones fit their tables");
  for (std::int16_t k = 0; k <= kLastIndex; ++k) {
    const int pitch_limit = k >= 1 && k <= last_pitch ? kLimit : 0;
    const int duration_limit = k >= 1 && k <= program.tone_count ? kLimit : 0;
    Require(program.pitch_hz[k] >= 0 && program.pitch_hz[k] <= pitch_limit, "pitches in limits");
    Require(program.duration_ms[k] >= 0 && program.duration_ms[k] <= duration_limit,
            "durations in limits");
  }
}

void CheckCounts(const ToneProgram& program, std::int32_t lines,
                 const std::vector<Report>& reports) {
  Require(program.line_count == lines - 6, "line count");
  Require(program.entry_index == program.tone_count + 1, "entry index");
  Require(program.position >= 8 && program.position <= (lines < 8 ? 8 : lines + 1), "position");
  // An entry takes two lines; a line that begins none takes one and fails one check.
  const int others = program.position - 8 - 2 * program.tone_count;
  Require(others >= 0, "tones are pairs of lines");
  const auto failed = static_cast<int>(reports.size());
  Require(failed >= others && failed <= 6 + 3 * program.tone_count + others, "failed checks");
}

std::string Written(const ToneProgram& program) {
  std::string bytes = "%valid%\r\n[info]\r\n{236}\r\n\r\n";
  bytes += program.hidden_flag == 1 ? "{invisible}" : "{visible}";
  bytes += "\r\n[sound]\r\n{" + std::to_string(program.extra_time_ms) + "}\r\n";
  for (std::int16_t k = 1; k <= program.tone_count; ++k) {
    bytes += "<" + std::to_string(program.pitch_hz[k]) + ">\r\n";
    bytes += "\\" + std::to_string(program.duration_ms[k]) + "\r\n";
  }
  return bytes;
}

// Values that were above their limit and were rounded down onto it cannot be written.
bool CanBeWritten(const ToneProgram& program) {
  if (program.extra_time_ms == 0) return false;
  for (std::int16_t k = 1; k <= program.tone_count; ++k) {
    if (program.pitch_hz[k] <= 1 || program.duration_ms[k] == 0) return false;
  }
  return true;
}

void CheckLegalProgram(const ToneProgram& program, std::int32_t lines) {
  Require(lines >= 7, "a legal file has a head");
  Require(program.tone_count == (lines - 7) / 2, "a legal file is all entries");
  Require(program.extra_time_ms >= 0, "extra time");
  for (std::int16_t k = 1; k <= program.tone_count; ++k) {
    Require(program.pitch_hz[k] >= 1, "a legal file has only pitches that can sound");
  }
  if (!CanBeWritten(program)) return;
  const std::string bytes = Written(program);
  ToneProgram again = Filled(LinesIn(BytesFile(bytes)));
  Require(CheckProgram(again, CountIn(bytes, kMostLines)).empty(), "written again, it is legal");
  Require(again.hidden_flag == program.hidden_flag && again.tone_count == program.tone_count &&
              again.extra_time_ms == program.extra_time_ms && again.pitch_hz == program.pitch_hz &&
              again.duration_ms == program.duration_ms,
          "written again, it is the same program");
}

// The count of the second pass when the file has changed since the first: any number.
void CheckChangedFile(const Lines& lines, std::int32_t lines_in_file) {
  ToneProgram program = Filled(lines);
  try {
    const std::vector<Report> reports = CheckProgram(program, lines_in_file);
    CheckCounts(program, lines_in_file, reports);
    CheckTables(program, program.tone_count);
  } catch (const base::RuntimeError& error) {
    Require(lines_in_file > kMostLines, "only a file that is too long ends the checks");
    Require(error.code() == base::ErrorCode::kSubscriptOutOfRange ||
                error.code() == base::ErrorCode::kOverflow,
            "by the end of the tables, or of 16 bits");
    CheckTables(program, program.entry_index);
  }
}

// As good as any: longer, shorter, beyond the tables, beyond 16 bits.
std::int32_t OtherCount(std::int32_t count) {
  switch (count % 4) {
    case 0:
      return count / 2;
    case 1:
      return count + 8;
    case 2:
      return 50 * count;
    default:
      return 20000 * count;
  }
}

void CheckFile(std::string_view bytes) {
  const Lines lines = LinesIn(BytesFile(bytes));
  CheckLines(bytes, lines);
  const auto count = static_cast<std::int32_t>(lines.size());
  CheckChangedFile(lines, OtherCount(count));
  if (count > kMostLines) return;
  ToneProgram program = Filled(lines);
  const std::vector<Report> reports = CheckProgram(program, count);
  CheckTables(program, program.tone_count);
  CheckCounts(program, count, reports);
  if (reports.empty()) CheckLegalProgram(program, count);
}

}  // namespace
}  // namespace program_files

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(data, data + size);
  program_files::CheckFile(bytes);
  return 0;
}
