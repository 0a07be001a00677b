// The settings room on a simulated machine, with a main window that only takes notes.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

#include "platform/simulated/simulation.h"
#include "settings/activity_log.h"
#include "settings/error_notes.h"
#include "settings/form6.h"
#include "settings/settings_file.h"

namespace settings {

using namespace std::chrono_literals;
using Lines = std::vector<std::string>;

inline const std::string kPath = "C:\\Users\\Tom\\AppData\\Roaming\\tonmira.ini";
inline const std::string kLogPath = "C:\\Temp\\userdata.txt";
inline const std::string kErrorPath = "C:\\Temp\\error.log";
inline const std::string kGood =
    "AutoUpdate=y\r\nSoundbit=128\r\nLanguage=EN\r\nSendData=n\r\nMicrophone=1\r\n"
    "MicrophoneON=y\r\n";

class NotingDisplay : public SettingsDisplay {
 public:
  Lines calls;

  void ShowChecked(const Setting& setting, bool on) override {
    const std::string name = setting.line == 1 ? "auto update" : "microphone";
    calls.push_back(name + (on ? " on" : " off"));
  }
  void ShowLanguage(const std::string& language) override {
    calls.push_back("language " + language);
  }
  void LoadCaptions(const std::string& language) override {
    calls.push_back("captions " + language);
  }
  void ShowMicrophoneLevel(std::int16_t level) override {
    calls.push_back("level " + std::to_string(level));
  }
  void ShowFirstRun() override { calls.push_back("first run shown"); }
  void HideMainWindow() override { calls.push_back("main window hidden"); }
};

class CountingUpload : public UsageUpload {
 public:
  int sent = 0;

  void SendData() override { ++sent; }
};

class NotingScene : public ErrorScene {
 public:
  explicit NotingScene(Form6& dialog) : dialog_(dialog) {}

  int hidden = 0;

  Form6& ErrorDialog() override { return dialog_; }
  void HideOtherWindows() override { ++hidden; }

 private:
  Form6& dialog_;
};

class NotingUpload : public LogUpload {
 public:
  Lines sent;

  void FTPSend(const std::string& LocalFileName, const std::string& FileName) override {
    sent.push_back(LocalFileName + " as " + FileName);
  }
};

class SettingsFixture : public testing::Test {
 protected:
  SettingsFixture() { sim.files.Put(kLogPath, "20-11-2026\r\n14:30\r\n"); }

  void Put(const std::string& content) { sim.files.Put(kPath, content); }

  void LeaveTheErrorDialogAt(std::chrono::milliseconds moment) {
    sim.At(moment, [this] { dialog.Command1.Click(); });
  }

  // The log without its date, time and empty line.
  Lines LogEntries() const {
    Lines lines = sim.Lines(kLogPath);
    lines.erase(lines.begin(), lines.begin() + std::min<std::ptrdiff_t>(3, std::ssize(lines)));
    return lines;
  }

  platform::simulated::Simulation sim;
  settings::MainState state;
  NotingDisplay display;
  int unloads = 0;
  int visits = 0;
  Form6 dialog{sim.services.windows, [this] { ++unloads; }, [this] { ++visits; }};
  NotingScene scene{dialog};
  NotingUpload upload;
  ErrorNotes errors{sim.services, state, scene, upload};
  ActivityLog log{sim.services, errors};
  CountingUpload usage;
  SettingsFile file{sim.services, state, display, usage, log, errors, lang::ShippedLanguages()};
};

}  // namespace settings
