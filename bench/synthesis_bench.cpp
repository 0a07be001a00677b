// What one second of stereo costs: the plain formula, ours, the WAV image, and the copy of finished
// bytes that no synthesis can beat. Read the figures as ratios within one run.
#include <benchmark/benchmark.h>

#include <string>

#include "tests/tone/plain_sine.h"
#include "tone/sine.h"
#include "tone/wave_image.h"

namespace {

constexpr std::int32_t kPitchHz = 10000;

void CopyOfFinishedBytes(benchmark::State& state) {
  const std::string image = tone::WaveImage(tone::SineSecond(kPitchHz), tone::kSampleRate, 16);
  std::string copy(image.size(), ' ');
  for (auto _ : state) {
    copy.assign(image);
    benchmark::DoNotOptimize(copy.data());
  }
}
BENCHMARK(CopyOfFinishedBytes)->Unit(benchmark::kMicrosecond);

void PlainFormula(benchmark::State& state) {
  for (auto _ : state) {
    const auto samples = tone::PlainSine(kPitchHz);
    tone::SampleBuffer buffer(tone::kChannels, samples.size());
    for (std::size_t i = 0; i < samples.size(); ++i) {
      buffer.Set(0, i, samples[i]);
      buffer.Set(1, i, samples[i]);
    }
    benchmark::DoNotOptimize(buffer);
  }
}
BENCHMARK(PlainFormula)->Unit(benchmark::kMicrosecond);

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
