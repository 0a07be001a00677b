// The settings file: "tonmira.ini" in the application-data folder, a line for each setting
// (settings/settings.h), whose meaning is fixed by its position. Further lines up to the eighth are
// carried along. A file of nine entries is read but never rewritten; one of ten or more is damaged.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/error_trap.h"
#include "platform/platform.h"
#include "settings/activity_log.h"
#include "settings/main_state.h"
#include "settings/usage_upload.h"

namespace settings {

// Where the file is.
std::string SettingsPath(platform::Environment& environment);

class SettingsFile {
 public:
  SettingsFile(platform::Platform& platform, MainState& state, SettingsDisplay& display,
               UsageUpload& upload, ActivityLog& log, base::ErrorReporter& errors,
               lang::Languages languages)
      : platform_(platform),
        state_(state),
        display_(display),
        upload_(upload),
        log_(log),
        errors_(errors),
        languages_(languages) {}

  // Reads, checks and applies the file; a missing or damaged one leads to NewFile. What was
  // applied before a failing entry stays applied. Error value kCheckSettings.
  void CheckSettings();

  // Replaces line `linenumber` (1 to 8) by `value`, the whole line. The file is rewritten up to
  // its first empty entry. A file of nine or more entries ends the program. Error value kWriteLine.
  void WriteLine(std::int16_t linenumber, std::string_view value);

  // The same for a setting: its whole line is made of its value.
  void Write(const Setting& setting, std::string_view value) {
    WriteLine(setting.line, Entry(setting, value));
  }

  // The first-run path: the usage data of the settings that were lost are sent where those allowed
  // it, and the first-run dialog takes the place of the main window. Error value kNewFile.
  void NewFile();

 private:
  static constexpr std::size_t kSlots = 11;

  std::string Path() const { return SettingsPath(platform_.environment); }

  // Fills the slots; returns how many entries were read, at most kSlots - 1. Nothing when there is
  // no file.
  std::optional<std::size_t> ReadEntries();

  // False at the first entry that fails its test.
  bool Apply();

  platform::Platform& platform_;
  MainState& state_;
  SettingsDisplay& display_;
  UsageUpload& upload_;
  ActivityLog& log_;
  base::ErrorReporter& errors_;
  lang::Languages languages_;
  std::array<std::string, kSlots> slots_;  // slot N holds line N
};

}  // namespace settings
