// The whole program on a simulated machine, started with a tone program file.
#pragma once

#include <string>

#include "tests/app/fixture.h"
#include "tests/program_files/tone_files.h"

namespace app {

class PlayerStartTest : public ProgramTest {
 protected:
  PlayerStartTest() {
    sim.pump.journal_waits = true;
    sim.processes.become["cmd /c \"C:\\Tonmira\\play16.exe\""] = "tone16.dll";
    sim.processes.become["tone32.dll"] = "tone32.dll";
  }

  // Starts the program with the file. True when the program ended.
  bool Open(const std::string& bytes, const std::string& sound_mode = "256") {
    sim.files.Put(kSettings, GoodSettings(sound_mode));
    sim.files.Put(program_files::kFile, bytes);
    sim.environment.arguments = program_files::kFile;
    return Run();
  }
  bool Open(const Lines& lines, const std::string& sound_mode = "256") {
    return Open(program_files::FileOf(lines), sound_mode);
  }

  // The user does `action` to the player at a moment of the virtual clock.
  void At(std::chrono::milliseconds moment, std::function<void(program_files::Form9&)> action) {
    sim.At(moment, [this, action] { action(player()); });
  }

  program_files::Form9& player() { return program->form9; }

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

}  // namespace app
