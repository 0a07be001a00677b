#include "tools/rtttl_writer.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>
#include <map>
#include <optional>

#include "base/text.h"
#include "tools/code_page.h"
#include "tools/diagnosis.h"
#include "tools/note_lengths.h"
#include "tools/rtttl.h"

namespace tools {
namespace {

using program_files::Tone;

constexpr std::int32_t kLowestOctave = 4;
constexpr std::int32_t kHighestOctave = 8;
constexpr std::array<const char*, 12> kNames{"c",  "c#", "d",  "d#", "e",  "f",
                                             "f#", "g",  "g#", "a",  "a#", "b"};

struct NamedNote {
  std::size_t semitone = 0;
  std::int32_t octave = 0;
  std::int16_t pitch_hz = 0;
};

// The note whose pitch is the nearest.
NamedNote NearestNote(std::int32_t pitch_hz, std::int32_t octave_of_a440) {
  NamedNote nearest;
  std::int32_t distance = std::numeric_limits<std::int32_t>::max();
  for (std::int32_t octave = kLowestOctave; octave <= kHighestOctave; ++octave) {
    for (std::size_t semitone = 0; semitone < kNames.size(); ++semitone) {
      const std::int16_t pitch =
          PitchOfNote(static_cast<std::int32_t>(semitone), octave, octave_of_a440);
      if (std::abs(pitch - pitch_hz) >= distance) continue;
      distance = std::abs(pitch - pitch_hz);
      nearest = {semitone, octave, pitch};
    }
  }
  return nearest;
}

std::string NameOf(const NamedNote& note) {
  return kNames.at(note.semitone) + std::to_string(note.octave);
}

class NoteWriter {
 public:
  NoteWriter(const program_files::ToneProgram& program, std::int32_t octave_of_a440)
      : program_(program), octave_of_a440_(octave_of_a440) {}

  RingToneText Write() {
    if (program_.tones.empty()) {
      result_.problems.push_back({Severity::kError, 8, 1, "there are no tones"});
      return std::move(result_);
    }
    FindPitches();
    FindLengths();
    if (result_.problems.empty()) WriteText();
    std::stable_sort(result_.problems.begin(), result_.problems.end(),
                     [](const Problem& a, const Problem& b) { return a.line < b.line; });
    return std::move(result_);
  }

 private:
  void FindPitches() {
    for (const Tone& tone : program_.tones) {
      if (tone.pitch_hz == kRestHz) {
        pitches_.emplace_back();
        continue;
      }
      pitches_.emplace_back(NearestNote(tone.pitch_hz, octave_of_a440_));
      if (pitches_.back()->pitch_hz != tone.pitch_hz) {
        Misfit(tone.line, std::to_string(tone.pitch_hz) + " Hz is no note; the nearest is " +
                              NameOf(*pitches_.back()) + ", " +
                              std::to_string(pitches_.back()->pitch_hz) + " Hz");
      }
    }
  }

  void FindLengths() {
    std::vector<Timed> timed;
    for (const Tone& tone : program_.tones) {
      timed.push_back({tone.duration_ms + program_.extra_time_ms, tone.pitch_hz == kRestHz});
    }
    timing_ = TimingOf(timed);
    for (const TimedNote& note : timing_.notes) {
      if (note.length) continue;
      Misfit(program_.tones[note.tone].line + 1,
             std::to_string(timed[note.tone].length_ms) + " ms is no note's length at " +
                 std::to_string(timing_.beats) + " beats a minute");
    }
  }

  void Misfit(std::int32_t line, std::string text) {
    result_.problems.push_back({Severity::kError, line, 1, std::move(text)});
  }

  void WriteText() {
    std::map<std::int32_t, int> durations;
    std::map<std::int32_t, int> octaves;
    for (const TimedNote& note : timing_.notes) {
      ++durations[note.length->duration];
      if (pitches_[note.tone]) ++octaves[pitches_[note.tone]->octave];
    }
    const std::int32_t duration = MostFrequent(durations, 4);
    const std::int32_t octave = MostFrequent(octaves, 5);
    result_.text = Name() + ":d=" + std::to_string(duration) + ",o=" + std::to_string(octave) +
                   ",b=" + std::to_string(timing_.beats) + ":";
    for (const TimedNote& note : timing_.notes) {
      if (note.tone > 0) result_.text += ',';
      WriteNote(note, duration, octave);
    }
  }

  static std::int32_t MostFrequent(const std::map<std::int32_t, int>& counts, std::int32_t none) {
    const auto most = std::max_element(counts.begin(), counts.end(),
                                       [](auto a, auto b) { return a.second < b.second; });
    return most == counts.end() ? none : most->first;
  }

  void WriteNote(const TimedNote& note, std::int32_t duration, std::int32_t octave) {
    std::string& text = result_.text;
    if (note.length->duration != duration) text += std::to_string(note.length->duration);
    const auto& pitch = pitches_[note.tone];
    text += pitch ? kNames.at(pitch->semitone) : "p";
    if (pitch && pitch->octave != octave) text += std::to_string(pitch->octave);
    if (note.length->dotted) text += '.';
  }

  // Without what the text has a meaning for.
  std::string Name() const {
    std::string name = FromCodePage(program_.name);
    for (const char marker : {'{', '}', ':'}) name = base::RemoveAll(name, marker);
    std::replace_if(
        name.begin(), name.end(), [](unsigned char c) { return c < ' '; }, ' ');
    return name;
  }

  const program_files::ToneProgram& program_;
  std::int32_t octave_of_a440_;
  std::vector<std::optional<NamedNote>> pitches_;  // nothing for a rest
  Timing timing_;
  RingToneText result_;
};

}  // namespace

RingToneText WriteRingTone(const program_files::ToneProgram& program, std::int32_t octave_of_a440) {
  return NoteWriter(program, octave_of_a440).Write();
}

}  // namespace tools
