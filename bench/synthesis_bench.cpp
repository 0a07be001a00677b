// What one second of stereo costs: the plain formula, ours, the WAV image, sox (where it is
// installed), and the copy of finished bytes that no synthesis can beat. Read the figures as ratios
// within one run.
#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdlib>
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

void SineImage(benchmark::State& state) {
  tone::SineImage image;
  for (auto _ : state) benchmark::DoNotOptimize(image.Of(kPitchHz).data());
}
BENCHMARK(SineImage)->Unit(benchmark::kMicrosecond);

// The share of one second in a run of many, so that starting the program hardly counts.
void SoxSynth(benchmark::State& state) {
  constexpr double kSeconds = 200;
  for (auto _ : state) {
    const auto begin = std::chrono::steady_clock::now();
    if (std::system("sox -n -r 44100 -c 2 -b 16 -t raw - synth 200 sine 10000 >/dev/null") != 0) {
      state.SkipWithError("sox is not installed");
    }
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begin;
    state.SetIterationTime(taken.count() / kSeconds);
  }
}
BENCHMARK(SoxSynth)->Unit(benchmark::kMicrosecond)->UseManualTime()->Iterations(3);

}  // namespace
