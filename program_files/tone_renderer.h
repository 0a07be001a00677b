// A tone program as samples: what the program's own synthesis plays of it (sound modes 64, 128 and
// 256), tone after tone without a pause, each as long as its duration and the extra time together.
//
// Sample n of a tone is sample n mod 44100 of tone::SineSecond: the second, looped, begins anew
// with every tone. A program without a tone is one of 0 Hz and 0 ms, silence for the extra time.
//
// A millisecond is 44.1 frames. The borders of the tones are rounded, not their lengths: the tone
// that ends t ms after the beginning of the program ends before frame t * 44.1, rounded to the
// nearest whole number, halves up. So no border, nor the end, is more than half a frame from where
// it belongs, however many tones there are. A first tone of 1 ms has 44 frames, one of 5 ms (220.5)
// has 221; ten of 1 ms have 441 together.
//
// With smooth edges each tone rises in its first 5 ms and falls in its last 5 ms by half a wave of
// a cosine (a raised-cosine ramp, the usual one for tones in hearing tests), so that none clicks; a
// tone of less than 10 ms rises and falls by halves. No border moves.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "program_files/tone_program.h"
#include "tone/sine.h"

namespace program_files {

// The number of frames in the first `time_ms` of a program.
std::int64_t FramesUntil(std::int64_t time_ms);

// Renders in pieces of any size, holding one second of one tone at most.
class ToneRenderer {
 public:
  enum class Edges { kAsPlayed, kSmooth };

  explicit ToneRenderer(const ToneProgram& program, Edges edges = Edges::kAsPlayed);

  // Of the whole program.
  std::int64_t LengthMs() const { return length_ms_; }
  std::int64_t Frames() const { return FramesUntil(length_ms_); }

  // Fills `samples` with the next frames, tone::kChannels samples each, and returns how many
  // frames it took: fewer than there is room for only at the end, 0 behind it.
  std::size_t Render(std::span<std::int16_t> samples);

 private:
  bool BeginTone();
  void Copy(std::int16_t* to, std::size_t frames) const;
  void Smooth(std::int16_t* samples, std::size_t frames) const;

  std::vector<Tone> tones_;
  std::int32_t extra_time_ms_;
  Edges edges_;
  std::int64_t length_ms_ = 0;

  std::size_t next_tone_ = 0;
  std::int64_t end_ms_ = 0;       // of the tone that is rendered
  std::int64_t at_ = 0;           // frame of the tone
  std::int64_t tone_frames_ = 0;  // of the tone
  std::int16_t pitch_hz_ = -1;    // of the second below
  tone::SampleBuffer second_{0, 0};
};

// The whole program at once.
std::vector<std::int16_t> RenderProgram(const ToneProgram& program);

}  // namespace program_files
