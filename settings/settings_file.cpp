#include "settings/settings_file.h"

#include "base/field_reader.h"
#include "base/numbers.h"
#include "base/text.h"
#include "settings/entries.h"

namespace settings {
namespace {

constexpr std::size_t kDamaged = 10;      // entries from which a file counts as damaged
constexpr std::size_t kNotRewritten = 9;  // entries from which a file is left alone

}  // namespace

std::string SettingsPath(platform::Environment& environment) {
  return environment.Get("APPDATA") + "\\tonmira.ini";
}

void SettingsFile::CheckSettings() {
  TrapErrors(errors_, 103, [this] {
    const auto entries = ReadEntries();
    if (!entries || *entries >= kDamaged || !Apply()) NewFile();
  });
}

void SettingsFile::WriteLine(std::int16_t linenumber, std::string_view value) {
  TrapErrors(errors_, 102, [&] {
    log_.PrintFile("> Write action, Line: " + base::SignedNumber(linenumber) +
                   ", Value: " + std::string(value));
    const auto entries = ReadEntries();
    if (!entries) throw base::RuntimeError(base::ErrorCode::kFileNotFound);
    if (*entries >= kNotRewritten) platform_.processes.EndProcess();

    std::string content;
    for (std::size_t n = 1; !slots_[n].empty(); ++n) {
      content += base::Line(n == static_cast<std::size_t>(linenumber) ? value : slots_[n]);
    }
    platform_.Texts().Replace(Path(), content, platform::Durability::kOnDisk);
  });
}

void SettingsFile::NewFile() {
  TrapErrors(errors_, 104, [this] {
    log_.PrintFile("> New file");
    if (state_.SendData == 1) upload_.SendData();
    display_.ShowFirstRun();
    display_.HideMainWindow();
  });
}

std::optional<std::size_t> SettingsFile::ReadEntries() {
  slots_.fill("");
  const auto content = platform_.Texts().Read(Path());
  if (!content) return std::nullopt;
  base::FieldReader reader(*content);
  std::size_t entries = 0;
  while (entries < kDamaged && !reader.AtEnd()) slots_[++entries] = *reader.Next();
  return entries;
}

bool SettingsFile::Apply() {
  if (!ApplyAutoUpdate()) return false;

  const auto sound_bit = SoundBitCode(slots_[2]);
  if (!sound_bit) return false;
  log_.PrintFile(slots_[2]);

  if (!ApplyLanguage()) return false;

  const auto send_data = YesNo(slots_[4], "senddata");
  if (!send_data) return false;
  log_.PrintFile(slots_[4]);

  return ApplyMicrophone(*send_data, *sound_bit);
}

bool SettingsFile::ApplyAutoUpdate() {
  const auto auto_update = YesNo(slots_[1], "autoupdate");
  if (!auto_update) return false;
  log_.PrintFile(slots_[1]);
  display_.ShowAutoUpdate(*auto_update);
  state_.AutoUpdate = *auto_update ? 1 : 0;
  return true;
}

bool SettingsFile::ApplyLanguage() {
  const auto language = LanguageCode(slots_[3]);
  if (!language) return false;
  log_.PrintFile(slots_[3]);
  state_.language = *language;
  display_.ShowLanguage(*language);
  display_.LoadCaptions(*language);
  return true;
}

bool SettingsFile::ApplyMicrophone(bool send_data, const std::string& sound_bit) {
  const auto level = MicrophoneLevel(slots_[5]);
  if (!level) return false;
  log_.PrintFile(slots_[5]);

  const auto microphone_on = YesNo(slots_[6], "microphoneon");
  if (!microphone_on) return false;
  log_.PrintFile(slots_[6]);
  state_.MicrophoneON = *microphone_on ? 1 : 0;
  display_.ShowMicrophone(*microphone_on);

  state_.Microphone = *level;
  display_.ShowMicrophoneLevel(*level);
  state_.SendData = send_data ? 1 : 0;
  state_.SoundBit = sound_bit;
  return true;
}

}  // namespace settings
