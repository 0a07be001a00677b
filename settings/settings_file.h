// The settings file: "tonmira.ini" in the application-data folder, six lines whose meaning is
// fixed by their position:
//   1 AutoUpdate=y|n   2 SoundBit=16|32|64|128|256   3 Language=EN|NL
//   4 SendData=y|n     5 Microphone=1..20            6 MicrophoneON=y|n
// Lines 7 and 8 are carried along. A file of nine entries is read but never rewritten; one of ten
// or more is damaged.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/main_state.h"
#include "platform/platform.h"
#include "settings/activity_log.h"
#include "settings/error_notes.h"
#include "settings/usage_upload.h"

namespace settings {

// Where the file is.
std::string SettingsPath(platform::Environment& environment);

// What applying settings does to the main window.
class SettingsDisplay {
 public:
  virtual ~SettingsDisplay() = default;

  virtual void ShowAutoUpdate(bool on) = 0;
  virtual void ShowLanguage(const std::string& language) = 0;
  virtual void LoadCaptions(const std::string& language) = 0;
  virtual void ShowMicrophone(bool on) = 0;
  virtual void ShowMicrophoneLevel(std::int16_t level) = 0;
  virtual void ShowFirstRun() = 0;  // the dialog for a user without settings
  virtual void HideMainWindow() = 0;
};

class SettingsFile {
 public:
  SettingsFile(platform::Platform& platform, base::MainState& state, SettingsDisplay& display,
               UsageUpload& upload, ActivityLog& log, ErrorNotes& errors)
      : platform_(platform),
        state_(state),
        display_(display),
        upload_(upload),
        log_(log),
        errors_(errors) {}

  // Reads, checks and applies the file; a missing or damaged one leads to NewFile. What was
  // applied before a failing entry stays applied. Error value 103.
  void CheckSettings();

  // Replaces line `linenumber` (1 to 8) by `value`, the whole line. The file is rewritten up to
  // its first empty entry. A file of nine or more entries ends the program. Error value 102.
  void WriteLine(std::int16_t linenumber, std::string_view value);

  // The first-run path: the usage data of the settings that were lost are sent where those allowed
  // it, and the first-run dialog takes the place of the main window. Error value 104.
  void NewFile();

 private:
  static constexpr std::size_t kSlots = 11;

  std::string Path() const { return SettingsPath(platform_.environment); }

  // Fills the slots; returns how many entries were read, at most kSlots - 1. Nothing when there is
  // no file.
  std::optional<std::size_t> ReadEntries();

  // Each returns false at the first entry that fails its test.
  bool Apply();
  bool ApplyAutoUpdate();
  bool ApplyLanguage();
  bool ApplyMicrophone(bool send_data, const std::string& sound_bit);

  platform::Platform& platform_;
  base::MainState& state_;
  SettingsDisplay& display_;
  UsageUpload& upload_;
  ActivityLog& log_;
  ErrorNotes& errors_;
  std::array<std::string, kSlots> slots_;  // slot N holds line N
};

}  // namespace settings
