#include "settings/settings_file.h"

#include "base/field_reader.h"
#include "base/numbers.h"
#include "base/text.h"

namespace settings {
namespace {

constexpr std::size_t kDamaged = 10;      // entries from which a file counts as damaged
constexpr std::size_t kNotRewritten = 9;  // entries from which a file is left alone

}  // namespace

std::string SettingsPath(platform::Environment& environment) {
  return environment.Get("APPDATA") + "\\tonmira.ini";
}

void SettingsFile::CheckSettings() {
  base::TrapErrors(errors_, base::ErrorValue::kCheckSettings, [this] {
    const auto entries = ReadEntries();
    if (!entries || *entries >= kDamaged || !Apply()) NewFile();
  });
}

void SettingsFile::WriteLine(std::int16_t linenumber, std::string_view value) {
  base::TrapErrors(errors_, base::ErrorValue::kWriteLine, [&] {
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
  base::TrapErrors(errors_, base::ErrorValue::kNewFile, [this] {
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
  Settings read;
  for (const Setting* setting : kAllSettings) {
    const std::string& entry = slots_[static_cast<std::size_t>(setting->line)];
    if (!ReadEntry(*setting, entry, languages_, read)) return false;
    log_.PrintFile(entry);
    if (setting->applied == Applied::kAtOnce) setting->apply(*setting, read, state_, display_);
  }
  for (auto at = std::rbegin(kAllSettings); at != std::rend(kAllSettings); ++at) {
    if ((*at)->applied == Applied::kWhenAllAreRead) {
      (*at)->apply(**at, read, state_, display_);
    }
  }
  return true;
}

}  // namespace settings
