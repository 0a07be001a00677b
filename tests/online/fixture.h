// The online room on a simulated machine: its services, the error dialog, and a main window that is
// only there to be seen.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <string>
#include <vector>

#include "online/upload_hand_over.h"
#include "platform/simulated/simulation.h"
#include "settings/activity_log.h"
#include "settings/error_notes.h"
#include "settings/form6.h"
#include "tests/settings/fixture.h"

namespace online {

using namespace std::chrono_literals;
using base::ErrorCode;
using platform::simulated::Kind;
using platform::simulated::Operation;
using settings::kErrorPath;
using settings::kLogPath;
using Lines = std::vector<std::string>;

inline const std::string kUpdateAddress = "https://www.tonmira.example/updatetonmira.txt";
inline constexpr char kUpdateFile[] = "C:\\Temp\\updatetonmira.txt";
inline constexpr char kHandOver[] = "C:\\Temp\\snd.ini";

class OnlineTest : public testing::Test {
 protected:
  OnlineTest() { StartLog(); }

  // The log as it stands when the program has just begun.
  void StartLog() { sim.files.Put(kLogPath, "20-11-2026\r\n14:30\r\n"); }

  void Answer(const std::string& address, const std::string& content,
              std::chrono::milliseconds after = 0ms) {
    sim.downloader.answers[address] = {content, after};
  }

  void BeSilent(const std::string& address) {
    sim.downloader.answers[address] = {std::nullopt, 0ms, true};
  }

  bool Logged(const std::string& entry) const {
    const Lines entries = sim.Lines(kLogPath);
    return std::find(entries.begin(), entries.end(), entry) != entries.end();
  }

  // Whether a window of this name was on the screen.
  bool WasShown(const std::string& window) const {
    const Lines texts = sim.journal.Texts({Kind::kWindow});
    return std::find(texts.begin(), texts.end(), window + " shown") != texts.end();
  }

  Lines Started() const { return sim.journal.Texts({Kind::kProcess}); }
  Lines Messages() const { return sim.journal.Texts({Kind::kMessage}); }
  ui::Window& main() { return main_window; }

  void LeaveTheErrorDialogAt(std::chrono::milliseconds moment) {
    sim.At(moment, [this] { error_dialog.Command1.Click(); });
  }

  platform::simulated::Simulation sim;
  settings::MainState state;
  ui::Window main_window{sim.services.windows, {"Form1", "Tonmira", 600, 400}};
  // Leaving it unloads every window, which ends the program.
  settings::Form6 error_dialog{sim.services.windows, [this] { sim.processes.EndProcess(); }, [] {}};
  settings::NotingScene scene{error_dialog};
  settings::NotingUpload error_upload;
  settings::ErrorNotes errors{sim.services, state, scene, error_upload};
  settings::ActivityLog log{sim.services, errors};
};

}  // namespace online
