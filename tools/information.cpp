#include "tools/information.h"

#include <algorithm>

#include "base/text.h"
#include "tools/code_page.h"
#include "tools/diagnosis.h"
#include "tools/sounding.h"

namespace tools {
namespace {

std::string Row(std::string_view title, std::string_view text) {
  constexpr std::size_t kColumn = 14;
  std::string row(title);
  row.resize(std::max(row.size() + 1, kColumn), ' ');
  row += text;
  return row + "\n";
}

// Without the braces around it, and with nothing that a terminal obeys.
std::string NameOf(const program_files::ToneProgram& program) {
  std::string name = base::RemoveAll(base::RemoveAll(program.name, '{'), '}');
  std::replace_if(
      name.begin(), name.end(), [](unsigned char c) { return c < ' ' || c == 0x7F; }, '?');
  return FromCodePage(name);
}

std::string Pitches(const Sounding& sounding) {
  if (sounding.lowest_hz == 0) return "none";
  return std::to_string(sounding.lowest_hz) + " to " + std::to_string(sounding.highest_hz) + " Hz";
}

// Of the sound modes that play by the multimedia player.
std::string PlayedLength(const Sounding& sounding) {
  if (!sounding.ends_before) return TimeText(sounding.length_ms);
  return TimeText(sounding.played_ms) + ", the play ends before line " +
         std::to_string(sounding.ends_before->line) + ": a tone of more than " +
         std::to_string(kLongestPlayedMs) + " ms";
}

}  // namespace

std::string InformationOn(std::string_view file, const program_files::ToneProgram& program) {
  const Sounding sounding = SoundingOf(program);
  const std::string played = PlayedLength(sounding);
  std::string text = Row("File", file) + Row("Name", NameOf(program)) +
                     Row("Window", program.hidden_flag == 1 ? "invisible" : "visible") +
                     Row("Extra time", std::to_string(program.extra_time_ms) + " ms") +
                     Row("Tones", std::to_string(sounding.tones)) +
                     Row("Rests", std::to_string(sounding.rests)) +
                     Row("Pitches", Pitches(sounding)) + "Length in\n" +
                     Row("  Classic", TimeText(sounding.classic_length_ms)) +
                     Row("  Sound32", TimeText(sounding.length_ms)) + Row("  DirectSound", played) +
                     Row("  Automatic", played) + Row("  Winmm", played);
  if (!sounding.mirrored.empty()) text += "Sound as another pitch, but in Classic and Sound32\n";
  for (const program_files::Tone& tone : sounding.mirrored) {
    text += Row("  line " + std::to_string(tone.line),
                std::to_string(tone.pitch_hz) + " Hz as " +
                    std::to_string(HeardPitch(tone.pitch_hz)) + " Hz");
  }
  return text;
}

}  // namespace tools
