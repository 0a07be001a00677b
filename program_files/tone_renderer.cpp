#include "program_files/tone_renderer.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace program_files {
namespace {

constexpr std::int64_t kEdgeFrames = 220;  // 5 ms

}  // namespace

std::int64_t FramesUntil(std::int64_t time_ms) {
  static_assert(tone::kSampleRate == 44100);
  return (441 * time_ms + 5) / 10;
}

ToneRenderer::ToneRenderer(const ToneProgram& program, Edges edges)
    : tones_(program.tones), extra_time_ms_(program.extra_time_ms), edges_(edges) {
  if (tones_.empty()) tones_.push_back(program.unfinished);
  for (const Tone& tone : tones_) length_ms_ += tone.duration_ms + extra_time_ms_;
}

std::size_t ToneRenderer::Render(std::span<std::int16_t> samples) {
  const std::size_t room = samples.size() / tone::kChannels;
  std::size_t done = 0;
  while (done < room && (at_ < tone_frames_ || BeginTone())) {
    const std::int64_t in_second = at_ % tone::kSampleRate;
    const std::int64_t frames = std::min({static_cast<std::int64_t>(room - done),
                                          tone_frames_ - at_, tone::kSampleRate - in_second});
    std::int16_t* const to = samples.data() + done * tone::kChannels;
    Copy(to, static_cast<std::size_t>(frames));
    if (edges_ == Edges::kSmooth) Smooth(to, static_cast<std::size_t>(frames));
    at_ += frames;
    done += static_cast<std::size_t>(frames);
  }
  return done;
}

// Goes on to the next tone that has a frame; false when there is none.
bool ToneRenderer::BeginTone() {
  at_ = tone_frames_ = 0;
  while (next_tone_ < tones_.size() && tone_frames_ == 0) {
    const Tone& tone = tones_[next_tone_++];
    const std::int64_t begin_ms = end_ms_;
    end_ms_ += tone.duration_ms + extra_time_ms_;
    tone_frames_ = FramesUntil(end_ms_) - FramesUntil(begin_ms);
    if (tone_frames_ == 0 || tone.pitch_hz == pitch_hz_) continue;
    second_ = tone::SineSecond(tone.pitch_hz);
    pitch_hz_ = tone.pitch_hz;
  }
  return tone_frames_ > 0;
}

void ToneRenderer::Copy(std::int16_t* to, std::size_t frames) const {
  const auto first = static_cast<std::size_t>(at_ % tone::kSampleRate);
  const std::int32_t* from = second_.Frame(first);
  for (std::size_t i = 0; i < frames * tone::kChannels; ++i) {
    to[i] = static_cast<std::int16_t>(from[i]);
  }
}

// The gain is that at the middle of the frame, so a tone that is all edge is still heard.
void ToneRenderer::Smooth(std::int16_t* samples, std::size_t frames) const {
  const std::int64_t edge = std::min(kEdgeFrames, tone_frames_ / 2);
  for (std::size_t i = 0; i < frames; ++i) {
    const std::int64_t frame = at_ + static_cast<std::int64_t>(i);
    const std::int64_t from_border = std::min(frame, tone_frames_ - 1 - frame);
    if (from_border >= edge) continue;
    const double way = (static_cast<double>(from_border) + 0.5) / static_cast<double>(edge);
    const double gain = 0.5 - 0.5 * std::cos(std::numbers::pi * way);
    for (std::size_t channel = 0; channel < tone::kChannels; ++channel) {
      std::int16_t& sample = samples[i * tone::kChannels + channel];
      sample = static_cast<std::int16_t>(std::lround(gain * sample));
    }
  }
}

std::vector<std::int16_t> RenderProgram(const ToneProgram& program) {
  ToneRenderer renderer(program);
  std::vector<std::int16_t> samples(static_cast<std::size_t>(renderer.Frames()) * tone::kChannels);
  renderer.Render(samples);
  return samples;
}

}  // namespace program_files
