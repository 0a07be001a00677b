// The whole program on a simulated machine.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "app/application.h"
#include "platform/simulated/simulation.h"

namespace app {

using namespace std::chrono_literals;
using platform::simulated::Kind;
using Lines = std::vector<std::string>;

inline constexpr char kLog[] = "C:\\Temp\\userdata.txt";
inline constexpr char kErrorLog[] = "C:\\Temp\\error.log";
inline constexpr char kSettings[] = "C:\\Users\\Tom\\AppData\\Roaming\\tonmira.ini";
inline constexpr char kWave[] = "C:\\Temp\\tnfwinmmtmp.wav";

inline std::string GoodSettings(const std::string& sound_bit = "128") {
  return "AutoUpdate=n\r\nSoundBit=" + sound_bit +
         "\r\nLanguage=EN\r\nSendData=n\r\nMicrophone=1\r\nMicrophoneON=n\r\n";
}

class ProgramTest : public testing::Test {
 protected:
  ProgramTest() { sim.files.Put(kSettings, GoodSettings()); }

  // Starts the program and lets everything happen that was scheduled. True when it ended.
  bool Run() {
    program = std::make_unique<Application>(sim.services);
    return sim.Run([this] { program->Run(); });
  }

  // The user does `action` at a moment of the virtual clock.
  void At(std::chrono::milliseconds moment, std::function<void(Form1&)> action) {
    sim.At(moment, [this, action] { action(program->form1); });
  }

  Form1& main() { return program->form1; }

  // Calls Terminate with a state of its own. True when it ended the program.
  bool RunTerminate(settings::MainState& state) {
    const Context& all = main().Services();
    const Context context{
        all.platform, state,         all.errors,          all.languages,     main(),
        main(),       all.sine,      all.early_downloads, all.update_dialog, all.texts,
        all.captions, all.show_mode, all.windows};
    return sim.Run([&] { Program(context).Terminate(); });
  }

  Lines Messages() const { return sim.journal.Texts({Kind::kMessage}); }

  // The log without its date, time and empty line.
  Lines LogEntries() const {
    Lines lines = sim.Lines(kLog);
    lines.erase(lines.begin(), lines.begin() + std::min<std::ptrdiff_t>(3, std::ssize(lines)));
    return lines;
  }

  platform::simulated::Simulation sim;
  std::unique_ptr<Application> program;
};

}  // namespace app
