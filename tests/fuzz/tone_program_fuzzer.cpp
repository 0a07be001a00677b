// Any bytes as a tone program file. The corpus holds plain .tnf files, so that a finding opens in
// an editor.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/errors.h"
#include "program_files/program_reader.h"
#include "program_files/tone_renderer.h"
#include "tests/fuzz/require.h"
#include "tests/program_files/bytes_file.h"

namespace program_files {
namespace {

using fuzz::Require;
using Lines = std::vector<std::string_view>;

constexpr std::int32_t kTableLines = 2000;

// The rule of line ends, byte by byte.
Lines PlainlySplit(std::string_view bytes) {
  Lines lines;
  for (std::size_t begin = 0, at = 0; at < bytes.size(); begin = at) {
    while (at < bytes.size() && bytes[at] != '\r') ++at;
    lines.push_back(bytes.substr(begin, at - begin));
    if (at < bytes.size()) ++at;
    if (at > begin && bytes[at - 1] == '\r' && at < bytes.size() && bytes[at] == '\n') ++at;
  }
  return lines;
}

std::size_t TextOf(const Lines& lines) {
  std::size_t text = 0;
  for (const std::string_view line : lines) text += line.size();
  return text;
}

// Reads with one byte less than all the text may be: every line but one that holds the last byte.
void CheckLimit(std::string_view bytes, const Lines& lines) {
  const std::size_t text = TextOf(lines);
  if (text == 0) return;
  BytesFile file(bytes);
  LineReader reader(file, text - 1);
  auto line = lines.begin();
  try {
    while (const auto next = reader.Next()) {
      Require(line != lines.end() && *next == *line, "the lines are those between the line ends");
      ++line;
    }
    Require(false, "no more text than may be");
  } catch (const base::RuntimeError& error) {
    Require(error.code() == base::ErrorCode::kOutOfMemory, "too much text is an error of its own");
  }
  Require(TextOf(Lines(line + 1, lines.end())) == 0, "as much text as may be");
}

void CheckCounting(std::string_view bytes, const Lines& lines) {
  const auto count = static_cast<std::int32_t>(lines.size());
  base::BytesInMemory again(bytes);
  Require(SecondPass(again) == count, "both passes see as many lines");
  Require(CountIn(bytes, count / 2) == count / 2, "the count ends where it may end");
}

void CheckTone(const Tone& tone) {
  Require(tone.pitch_hz >= 0 && tone.pitch_hz <= kLargestValue, "pitches in limits");
  Require(tone.duration_ms >= 0 && tone.duration_ms <= kLargestValue, "durations in limits");
}

void CheckProgramItself(const ToneProgram& program) {
  Require(program.hidden_flag == 0 || program.hidden_flag == 1, "the hidden flag is 0 or 1");
  Require(program.extra_time_ms >= 0 && program.extra_time_ms <= kLargestValue,
          "extra time in limits");
  std::int16_t last_line = 6;
  for (const Tone& tone : program.tones) {
    CheckTone(tone);
    Require(tone.line >= last_line + 2, "an entry has two lines of its own");
    last_line = tone.line;
  }
  CheckTone(program.unfinished);
}

void CheckCounts(const ParseState& state, const ToneProgram& program, std::int32_t lines,
                 std::size_t findings) {
  const int tones = program.ToneCount();
  Require(state.line_count == lines - 6, "line count");
  Require(state.entry_index == tones + 1, "entry index");
  Require(state.position >= 8 && state.position <= (lines < 8 ? 8 : lines + 1), "position");
  Require(program.unfinished == Tone{}, "no entry is left unfinished");
  // An entry takes two lines; a line that begins none takes one and fails one check.
  const int others = state.position - 8 - 2 * tones;
  Require(others >= 0, "tones are pairs of lines");
  const auto failed = static_cast<int>(findings);
  Require(failed >= others && failed <= 6 + 3 * tones + others, "failed checks");
}

void CheckFindings(const std::vector<Finding>& findings, const Lines& lines) {
  std::int32_t last_line = 0;
  for (const Finding& finding : findings) {
    Require((finding.expected == Expected::kVersion) == (finding.report == Report::kVersion),
            "only the version has a report of its own");
    const bool counts_lines = finding.expected == Expected::kFewerLines;
    Require(counts_lines ? finding.line == kTableLines : finding.line >= last_line, "file order");
    if (!counts_lines) last_line = finding.line;
    const auto index = static_cast<std::size_t>(finding.line) - 1;
    const std::string_view line = index < lines.size() ? lines[index] : std::string_view();
    Require(finding.found == line.substr(0, kLongestFound), "what stands there");
    Require(finding.column >= 1 && finding.column <= std::ssize(line) + 1, "a column of the line");
    Require(*Description(finding.expected) != '\0', "what was expected has a name");
  }
}

// The number of a line that holds nothing but markers and one to nine digits.
std::optional<std::int32_t> PlainNumber(std::string_view line, std::string_view markers) {
  std::string digits;
  for (const char c : line) {
    if (markers.find(c) == std::string_view::npos) digits += c;
  }
  const bool plain =
      std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; });
  if (digits.empty() || digits.size() > 9 || !plain) return std::nullopt;
  return std::stoi(digits);
}

void CheckValue(std::string_view line, std::string_view markers, std::int32_t above,
                std::int16_t value) {
  const auto number = PlainNumber(line, markers);
  if (!number) return;
  const bool passes = *number > above && *number <= kLargestValue;
  Require(value == (passes ? *number : 0), "a plain number within its limits is the value");
}

void CheckValues(const ToneProgram& program, const Lines& lines) {
  if (lines.size() >= 7) CheckValue(lines[6], "{}", 0, program.extra_time_ms);
  for (const Tone& tone : program.tones) {
    const auto index = static_cast<std::size_t>(tone.line) - 1;
    Require(index + 1 < lines.size(), "a tone has its lines");
    Require(lines[index].starts_with('<'), "a pitch begins with its mark");
    CheckValue(lines[index], "<>", 1, tone.pitch_hz);
    CheckValue(lines[index + 1], "\\", 0, tone.duration_ms);
  }
}

std::string Written(const ToneProgram& program) {
  std::string bytes = "%valid%\r\n[info]\r\n{236}\r\n\r\n";
  bytes += program.hidden_flag == 1 ? "{invisible}" : "{visible}";
  bytes += "\r\n[sound]\r\n{" + std::to_string(program.extra_time_ms) + "}\r\n";
  for (const Tone& tone : program.tones) {
    bytes += "<" + std::to_string(tone.pitch_hz) + ">\r\n";
    bytes += "\\" + std::to_string(tone.duration_ms) + "\r\n";
  }
  return bytes;
}

// Values that were above their limit and were rounded down onto it cannot be written.
bool CanBeWritten(const ToneProgram& program) {
  return program.extra_time_ms != 0 &&
         std::all_of(program.tones.begin(), program.tones.end(),
                     [](const Tone& tone) { return tone.pitch_hz > 1 && tone.duration_ms != 0; });
}

void CheckLegalProgram(const ToneProgram& program, std::int32_t lines) {
  Require(lines >= 7 && lines < kTableLines, "a legal file has a head and an end");
  Require(program.ToneCount() == (lines - 7) / 2, "a legal file is all entries");
  for (const Tone& tone : program.tones) Require(tone.pitch_hz >= 1, "every pitch can sound");
  if (!CanBeWritten(program)) return;
  const ReadProgram again = ReadToneProgram(Written(program));
  Require(again.findings.empty(), "written again, it is legal");
  Require(again.program.hidden_flag == program.hidden_flag &&
              again.program.extra_time_ms == program.extra_time_ms &&
              again.program.tones == program.tones,
          "written again, it is the same program");
}

void CheckLength(const ToneProgram& program) {
  std::int64_t length_ms = program.tones.empty() ? program.extra_time_ms : 0;
  for (const Tone& tone : program.tones) length_ms += tone.duration_ms + program.extra_time_ms;
  const std::int64_t frames = ToneRenderer(program).Frames();
  Require(std::abs(10 * frames - 441 * length_ms) <= 5, "within half a frame of its length");
}

// The first pass in pieces, down to a byte, yet no endless reading.
ParseState ReadInPieces(std::string_view bytes, const Lines& lines) {
  ParseState state;
  BytesFile file(bytes, 1 + bytes.size() / 64);
  FirstPass pass(file, state.lines);
  while (pass.ReadLine().progress == FirstPass::Progress::kGoesOn) continue;
  Require(pass.LinesRead() == std::min<std::ptrdiff_t>(std::ssize(lines), kTableLines),
          "the lines do not depend on the reads' size");
  const Table<std::string>& table = state.lines;
  for (std::int16_t index = 1; index <= pass.LinesRead(); ++index) {
    Require(table[index] == lines[static_cast<std::size_t>(index) - 1], "nor does their text");
  }
  return state;
}

// The steps, for a file that has any number of lines by the second pass.
void CheckChangedFile(std::string_view bytes, const Lines& lines, std::int32_t lines_in_file) {
  ParseState state = ReadInPieces(bytes, lines);
  ToneProgram program;
  try {
    const std::vector<Finding> findings = CheckProgram(state, program, lines_in_file);
    CheckCounts(state, program, lines_in_file, findings.size());
    CheckFindings(findings, lines);
  } catch (const base::RuntimeError& error) {
    Require(lines_in_file > kTableLines, "only a file that is too long ends the checks");
    Require(error.code() == base::ErrorCode::kSubscriptOutOfRange ||
                error.code() == base::ErrorCode::kOverflow,
            "by the end of the tables, or of 16 bits");
  }
  CheckProgramItself(program);
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

// The steps of a file that has not changed, beside the one call.
void CheckAgreement(std::string_view bytes, const Lines& lines, const ReadProgram& read) {
  ParseState state = ReadInPieces(bytes, lines);
  ToneProgram program;
  const auto count = static_cast<std::int32_t>(lines.size());
  std::vector<Finding> findings = CheckProgram(state, program, count);
  CheckCounts(state, program, count, findings.size());
  if (count == kTableLines) findings.insert(findings.begin(), read.findings.at(0));
  Require(findings == read.findings, "the steps find what the one call finds");
  Require(program.tones == read.program.tones && program.name == read.program.name &&
              program.extra_time_ms == read.program.extra_time_ms &&
              program.hidden_flag == read.program.hidden_flag,
          "the steps read what the one call reads");
}

// Reading a file once more takes as long as reading it does, so that is done with every second
// file, in one of these ways: its bytes say which, and every mutation changes some of them.
enum class Turn { kLimit, kChangedFile, kAgreement, kOthers };

Turn TurnOf(std::string_view bytes) {
  const auto sum = std::accumulate(bytes.begin(), bytes.end(), bytes.size(), [](auto all, char c) {
    return all + static_cast<unsigned char>(c);
  });
  return static_cast<Turn>(std::min<std::size_t>(sum % 6, 3));
}

void CheckOnceMore(std::string_view bytes, const Lines& lines, const ReadProgram& read) {
  switch (TurnOf(bytes)) {
    case Turn::kLimit:
      CheckLimit(bytes, lines);
      break;
    case Turn::kAgreement:
      // What is given up has no checks to compare.
      if (!read.given_up) CheckAgreement(bytes, lines, read);
      break;
    case Turn::kChangedFile:
      CheckChangedFile(bytes, lines, OtherCount(static_cast<std::int32_t>(lines.size())));
      break;
    case Turn::kOthers:
      break;
  }
}

void CheckFile(std::string_view bytes) {
  const Lines lines = PlainlySplit(bytes);
  CheckCounting(bytes, lines);
  const ReadProgram read = ReadToneProgram(bytes);
  CheckFindings(read.findings, lines);
  CheckProgramItself(read.program);
  CheckLength(read.program);
  if (!read.given_up) CheckValues(read.program, lines);
  const auto count = static_cast<std::int32_t>(lines.size());
  Require(read.lines == std::min(count, kTableLines), "lines that were read");
  Require(read.given_up == (count > kTableLines), "too many lines are given up");
  Require(!read.ignored_line || *read.ignored_line == lines.back(), "the last line as it stands");
  CheckOnceMore(bytes, lines, read);
  if (read.findings.empty()) CheckLegalProgram(read.program, count);
}

}  // namespace
}  // namespace program_files

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(data, data + size);
  program_files::CheckFile(bytes);
  return 0;
}
