// What reading a tone program of 1,999 lines (996 tones) costs: merely cutting its bytes into
// lines, the lines of the first pass, the count of the second, and the one call that reads and
// checks it all: read these figures as ratios to CutIntoLines within one run. And what rendering
// costs.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "program_files/line_reader.h"
#include "program_files/program_reader.h"
#include "program_files/tone_renderer.h"
#include "tests/program_files/bytes_file.h"

namespace {

using program_files::BytesFile;
using program_files::CountIn;
using program_files::LinesIn;
using program_files::ReadProgram;
using program_files::ReadToneProgram;
using program_files::ToneProgram;
using program_files::ToneRenderer;

constexpr std::int32_t kLines = 1999;

std::string LongestProgram() {
  std::string bytes = "%valid%\r\n[info]\r\n{236}\r\n{Long}\r\n{visible}\r\n[sound]\r\n{10}\r\n";
  for (std::int32_t line = 8; line < kLines; line += 2) {
    bytes += "<" + std::to_string(16 * line) + ">\r\n\\" + std::to_string(line) + "\r\n";
  }
  return bytes;
}

// The baseline: no copy, no check, no other line end than CR LF.
void CutIntoLines(benchmark::State& state) {
  const std::string bytes = LongestProgram();
  std::vector<std::string_view> lines;
  for (auto _ : state) {
    lines.clear();
    for (std::size_t at = 0; at < bytes.size();) {
      const std::size_t end = bytes.find("\r\n", at);
      lines.push_back(std::string_view(bytes).substr(at, end - at));
      at = end + 2;
    }
    benchmark::DoNotOptimize(lines.data());
  }
  if (lines.size() != kLines) state.SkipWithError("not 1,999 lines");
}
BENCHMARK(CutIntoLines)->Unit(benchmark::kMicrosecond);

void FirstPass(benchmark::State& state) {
  const std::string bytes = LongestProgram();
  for (auto _ : state) benchmark::DoNotOptimize(LinesIn(BytesFile(bytes)).size());
}
BENCHMARK(FirstPass)->Unit(benchmark::kMicrosecond);

void SecondPass(benchmark::State& state) {
  const std::string bytes = LongestProgram();
  std::int32_t lines = 0;
  for (auto _ : state) benchmark::DoNotOptimize(lines = CountIn(bytes, kLines + 1));
  if (lines != kLines) state.SkipWithError("not 1,999 lines");
}
BENCHMARK(SecondPass)->Unit(benchmark::kMicrosecond);

void WholeProgram(benchmark::State& state) {
  const std::string bytes = LongestProgram();
  std::size_t tones = 0;
  for (auto _ : state) {
    const ReadProgram read = ReadToneProgram(bytes);
    if (!read.findings.empty()) state.SkipWithError("a check failed");
    tones = read.program.tones.size();
  }
  if (tones != 996) state.SkipWithError("not 996 tones");
}
BENCHMARK(WholeProgram)->Unit(benchmark::kMicrosecond);

// An hour of tones of one second each, in pieces as for a pipe. "speed" is how many times faster
// than it plays that is.
void RenderAnHour(benchmark::State& state) {
  ToneProgram program;
  program.extra_time_ms = 10;
  for (std::int16_t tone = 0; tone < 3600; ++tone) {
    program.tones.push_back({static_cast<std::int16_t>(200 + tone), 990, 0});
  }
  std::vector<std::int16_t> piece(2 * 16384);
  std::int64_t frames = 0;
  for (auto _ : state) {
    ToneRenderer renderer(program);
    while (const std::size_t count = renderer.Render(piece)) {
      frames += static_cast<std::int64_t>(count);
      benchmark::DoNotOptimize(piece.data());
    }
  }
  state.counters["speed"] =
      benchmark::Counter(static_cast<double>(frames) / 44100, benchmark::Counter::kIsRate);
}
BENCHMARK(RenderAnHour)->Unit(benchmark::kMillisecond);

}  // namespace
