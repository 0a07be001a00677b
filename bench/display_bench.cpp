// Drawing: a block of the microphone and a frame of the sine preview, beside clearing the same
// picture. Each benchmark's "ratio" is its time over that of the clearing.
#include <benchmark/benchmark.h>

#include <chrono>
#include <cmath>
#include <vector>

#include "display/pictures.h"
#include "display/sine_preview.h"
#include "display/twips.h"
#include "display/waveform.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kHeight = 88;  // pixels, as in the main window
constexpr int kMicrophoneWidth = 242;
constexpr int kSineWidth = 278;

std::vector<std::uint8_t> Block() {
  std::vector<std::uint8_t> block;
  for (int i = 0; i < 8820; ++i) {
    const int sample = static_cast<int>(8000 * std::sin(i * 0.07));
    block.push_back(static_cast<std::uint8_t>(sample));
    block.push_back(static_cast<std::uint8_t>(sample >> 8));
  }
  return block;
}

// Draws over and over, and clears a picture of that size as often.
template <typename Drawing>
void Compare(benchmark::State& state, int width, const Drawing& draw) {
  ui::Canvas canvas(width, kHeight);
  Clock::duration drawing{}, clearing{};
  for (auto _ : state) {
    const auto begin = Clock::now();
    canvas.Clear();
    benchmark::DoNotOptimize(canvas.pixels().data());
    benchmark::ClobberMemory();
    const auto middle = Clock::now();
    draw(canvas);
    benchmark::DoNotOptimize(canvas.pixels().data());
    benchmark::ClobberMemory();
    clearing += middle - begin;
    drawing += Clock::now() - middle;
  }
  state.counters["ratio"] =
      static_cast<double>(drawing.count()) / static_cast<double>(clearing.count());
}

void MicrophoneBlock(benchmark::State& state) {
  const std::vector<std::uint8_t> block = Block();
  const display::WaveView view{kMicrophoneWidth * display::kTwipsPerPixel, 1, true};
  Compare(state, kMicrophoneWidth, [&](ui::Canvas& canvas) {
    canvas.Clear();
    display::Draw(display::DrawSamples(display::Samples16(block), view), canvas);
  });
}
BENCHMARK(MicrophoneBlock);

void PreviewFrame(benchmark::State& state) {
  const display::TwipSize size{kSineWidth * display::kTwipsPerPixel,
                               kHeight * display::kTwipsPerPixel};
  const float step = display::AngularStep(static_cast<std::int16_t>(state.range(0)));
  std::int32_t phase = 0;
  Compare(state, kSineWidth, [&](ui::Canvas& canvas) {
    canvas.Clear();
    phase = display::NextPhase(phase);
    display::Draw(display::SineFrame(step, phase, size), size, canvas);
  });
}
BENCHMARK(PreviewFrame)->Arg(1000)->Arg(10000)->Arg(32000);

}  // namespace
