// The program, started with a tone program file on a simulated machine.
#pragma once

#include <algorithm>
#include <string>

#include "tests/app/fixture.h"
#include "tests/program_files/programs.h"

namespace program_files {

using namespace std::chrono_literals;
using app::kWave;
using base::ErrorCode;
using platform::simulated::Kind;
using platform::simulated::Operation;

inline constexpr char kFile[] = "C:\\My Tones\\a.tnf";
inline constexpr char kHandOver[] = "C:\\Temp\\sound.ini";
inline constexpr char kClassicCommand[] = "cmd /c \"C:\\Tonmira\\play16.exe\"";
inline const std::string kIllegal = "critical [Error] C:\\My Tones\\a.tnf is not a legal tnf file!";
inline const std::string kIncompatible =
    "exclamation [Error] Your Tonmira version is not compatible with this file!";

// The file of the lines, each with CR LF.
inline std::string FileOf(const Lines& lines) {
  std::string bytes;
  for (const std::string& line : lines) bytes += line + "\r\n";
  return bytes;
}

// Lines of a visible program: 50 ms of extra time, and the given tones.
inline Lines ProgramWith(const Tones& tones) {
  Lines lines = GoodHead();
  for (const auto& [pitch, duration] : tones) {
    lines.push_back("<" + std::to_string(pitch) + ">");
    lines.push_back("\\" + std::to_string(duration));
  }
  return lines;
}

inline Lines Invisible(Lines lines) {
  lines[4] = "{invisible}";
  return lines;
}

class PlayerTest : public app::ProgramTest {
 protected:
  PlayerTest() {
    sim.pump.journal_waits = true;
    sim.processes.become[kClassicCommand] = "tone16.dll";
    sim.processes.become["tone32.dll"] = "tone32.dll";
  }

  // Starts the program with the file. True when the program ended.
  bool Open(const std::string& bytes, const std::string& sound_mode = "256") {
    sim.files.Put(app::kSettings, app::GoodSettings(sound_mode));
    sim.files.Put(kFile, bytes);
    sim.environment.arguments = kFile;
    return Run();
  }
  bool Open(const Lines& lines, const std::string& sound_mode = "256") {
    return Open(FileOf(lines), sound_mode);
  }

  // The user does `action` to the player at a moment of the virtual clock.
  void At(std::chrono::milliseconds moment, std::function<void(Form9&)> action) {
    sim.At(moment, [this, action] { action(player()); });
  }

  Form9& player() { return program->form9; }

  // What happened from the player's loading until its load routine was through.
  Lines Journal() const {
    Lines texts;
    for (const auto& entry : sim.journal.entries()) {
      if (entry.text == "Form9 loaded") texts.clear();
      if (entry.text.ends_with("userdata.txt") && !texts.empty() &&
          texts.front() == "Form9 loaded") {
        break;
      }
      texts.push_back(entry.text);
    }
    return texts;
  }

  Lines Entries(const std::string& part) const {
    Lines found;
    for (const auto& entry : sim.journal.entries()) {
      if (entry.text.find(part) != std::string::npos) found.push_back(entry.text);
    }
    return found;
  }

  // The pitches handed over, in order.
  Lines PitchesShown() const {
    Lines pitches;
    for (const std::string& text : Entries("Form9.Label6 caption: ")) {
      if (text.size() > 22) pitches.push_back(text.substr(22));
    }
    return pitches;
  }
};

}  // namespace program_files
