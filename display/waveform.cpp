#include "display/waveform.h"

#include "base/numbers.h"

namespace display {
namespace {

constexpr double kHalfHeight = 20000;  // amplitude that reaches from a trace's middle to its edge
constexpr double kFullScale8 = 256;

// The sample positions of the lines of a drawing that reaches to `n`, single precision as a whole.
std::vector<float> Positions(std::int64_t n, int width_twips) {
  std::vector<float> positions;
  const float step = static_cast<float>(n) /
                     (static_cast<float>(width_twips) / static_cast<float>(kTwipsPerPixel));
  const float last = static_cast<float>(n - 2);
  for (float t = 0; t <= last; t += step) {
    positions.push_back(t);
    if (!(t + step > t)) break;
  }
  return positions;
}

// The even position, a sample of the first channel, at or just below the nearest one.
std::size_t FirstChannelAt(float position) {
  const auto nearest = static_cast<std::size_t>(base::RoundToEven(static_cast<double>(position)));
  return nearest - nearest % 2;
}

// One trace: a line to each point from the one before.
class Trace {
 public:
  Trace(std::vector<WaveLine>& lines, WavePoint begin) : lines_(lines), at_(begin) {}

  void LineTo(WavePoint point) {
    lines_.push_back({at_, point});
    at_ = point;
  }

 private:
  std::vector<WaveLine>& lines_;
  WavePoint at_;
};

std::int64_t LastOf(std::size_t count) {
  return static_cast<std::int64_t>(count) - 1;
}

// `upper` and `lower` give the height of a trace at a sample.
template <typename Sample, typename Upper, typename Lower>
std::vector<WaveLine> StereoLines(std::span<const Sample> samples, int width_twips, double middle,
                                  const Upper& upper, const Lower& lower) {
  std::vector<WaveLine> lines;
  Trace lower_trace(lines, {0, -middle});
  Trace upper_trace(lines, {0, middle});
  for (const float t : Positions(LastOf(samples.size()) / 2, width_twips)) {
    const std::size_t j = FirstChannelAt(t);
    lower_trace.LineTo({static_cast<double>(j), lower(samples[j + 1])});
    upper_trace.LineTo({static_cast<double>(j), upper(samples[j])});
  }
  return lines;
}

template <typename Sample, typename Height>
std::vector<WaveLine> MonoLines(std::span<const Sample> samples, int width_twips,
                                const Height& height) {
  std::vector<WaveLine> lines;
  Trace trace(lines, {0, 0});
  for (const float t : Positions(LastOf(samples.size()), width_twips)) {
    const auto j = static_cast<std::size_t>(t);
    trace.LineTo({static_cast<double>(j), height(samples[j])});
  }
  return lines;
}

}  // namespace

std::vector<std::int16_t> Samples16(std::span<const std::uint8_t> block) {
  std::vector<std::int16_t> samples(block.size() / 2);
  for (std::size_t i = 0; i < samples.size(); ++i) {
    samples[i] = static_cast<std::int16_t>(block[2 * i] | block[2 * i + 1] << 8);
  }
  return samples;
}

WaveDrawing DrawSamples(std::span<const std::int16_t> samples, const WaveView& view) {
  const auto height = [&](std::int16_t sample) { return sample / kHalfHeight * view.sensitivity; };
  const auto last = static_cast<double>(LastOf(samples.size()));
  if (!view.stereo) {
    return {last, 0.5, -0.5, MonoLines(samples, view.width_twips, height)};
  }
  const auto upper = [&](std::int16_t sample) { return height(sample) + 0.5; };
  const auto lower = [&](std::int16_t sample) { return height(sample) - 0.5; };
  return {static_cast<double>(LastOf(samples.size()) / 2), 1, -1,
          StereoLines(samples, view.width_twips, 0.5, upper, lower)};
}

WaveDrawing DrawSamples8(std::span<const std::uint8_t> samples, const WaveView& view) {
  const auto upper = [&](std::uint8_t sample) {
    return static_cast<double>(sample * view.sensitivity);
  };
  if (!view.stereo) {
    return {static_cast<double>(LastOf(samples.size())), kFullScale8, -kFullScale8,
            MonoLines(samples, view.width_twips, upper)};
  }
  const auto lower = [&](std::uint8_t sample) { return upper(sample) - kFullScale8; };
  return {static_cast<double>(LastOf(samples.size()) / 2), kFullScale8, -kFullScale8,
          StereoLines(samples, view.width_twips, kFullScale8 / 2, upper, lower)};
}

}  // namespace display
