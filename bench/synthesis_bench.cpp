// What one second of stereo costs: our samples and their WAV image, beside the copy of finished
// bytes that no synthesis can beat. Read the figures as ratios within one run.
#include <benchmark/benchmark.h>

#include <string>

#include "tone/sine.h"
#include "tone/wave_image.h"

namespace {

constexpr std::int32_t kPitchHz = 10000;

void CopyOfFinishedBytes(benchmark::State& state) {
  const std::string image = tone::WaveImage(tone::SineSecond(kPitchHz), tone::kSampleRate, 16);
  for (auto _ : state) {
    std::string copy(image);
    benchmark::DoNotOptimize(copy.data());
  }
}
BENCHMARK(CopyOfFinishedBytes);

void SineSecond(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(tone::SineSecond(kPitchHz));
}
BENCHMARK(SineSecond)->Unit(benchmark::kMicrosecond);

void WaveImage(benchmark::State& state) {
  const tone::SampleBuffer samples = tone::SineSecond(kPitchHz);
  for (auto _ : state) benchmark::DoNotOptimize(tone::WaveImage(samples, tone::kSampleRate, 16));
}
BENCHMARK(WaveImage)->Unit(benchmark::kMicrosecond);

}  // namespace
