// The player on a simulated machine, loaded as the start of the program does it.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <memory>
#include <string>

#include "platform/simulated/simulation.h"
#include "program_files/form9.h"
#include "tests/program_files/tone_files.h"
#include "tests/tone/main_window.h"

namespace program_files {

using namespace std::chrono_literals;
using base::ErrorCode;
using platform::simulated::Kind;
using platform::simulated::Operation;

inline constexpr char kWave[] = "C:\\Temp\\tnfwinmmtmp.wav";
inline constexpr char kHandOver[] = "C:\\Temp\\sound.ini";
inline constexpr char kErrorLog[] = "C:\\Temp\\error.log";
inline constexpr char kClassicCommand[] = "cmd /c \"C:\\Tonmira\\play16.exe\"";

class PlayerTest : public testing::Test {
 protected:
  PlayerTest() {
    sim.pump.journal_waits = true;
    sim.processes.become[kClassicCommand] = "tone16.dll";
    sim.processes.become["tone32.dll"] = "tone32.dll";
  }

  // Loads kFile into a new player beside a main window that nobody sees, and lets everything happen
  // that was scheduled. True when the program ended.
  bool Load(base::SoundMode sound_mode) {
    main_window = std::make_unique<tone::NotingMainWindow>(sim.services.windows, sim.journal);
    window = std::make_unique<Form9>(
        sim.services, state, *main_window,
        Form9::Surroundings{[this] { ++news_unloaded; }, [this] { sim.processes.EndProcess(); },
                            [this](const std::string& entry) { logged.push_back(entry); }});
    loaded_entries = 0;
    return sim.Run([this, sound_mode] {
      main_window->Load();
      player().SetFilePath(kFile);
      player().SetSoundMode(sound_mode);
      player().Load();
      loaded_entries = sim.journal.entries().size();
      if (!player().Visible()) player().Show();
      sim.pump.Run();
    });
  }

  bool Open(const std::string& bytes, const std::string& sound_mode = "256") {
    sim.files.Put(kFile, bytes);
    return Load(base::SoundModeOf(sound_mode));
  }
  bool Open(const Lines& lines, const std::string& sound_mode = "256") {
    return Open(FileOf(lines), sound_mode);
  }

  // The user does `action` to the player at a moment of the virtual clock.
  void At(std::chrono::milliseconds moment, std::function<void(Form9&)> action) {
    sim.At(moment, [this, action] { action(player()); });
  }

  Form9& player() { return *window; }

  // What happened from the player's loading until its load routine was through.
  Lines Journal() const {
    Lines texts;
    std::size_t read = 0;
    for (const auto& entry : sim.journal.entries()) {
      if (++read == loaded_entries + 1 && loaded_entries > 0) break;
      if (entry.text == "Form9 loaded") texts.clear();
      texts.push_back(entry.text);
    }
    return texts;
  }

  Lines Messages() const { return sim.journal.Texts({Kind::kMessage}); }

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

  platform::simulated::Simulation sim;
  settings::MainState state;
  std::unique_ptr<tone::NotingMainWindow> main_window;
  std::unique_ptr<Form9> window;
  int news_unloaded = 0;
  Lines logged;

 private:
  std::size_t loaded_entries = 0;  // of the journal, when the load routine was through
};

}  // namespace program_files
