#include "settings/form5.h"

#include <utility>

#include "settings/settings_file.h"

namespace settings {
namespace {

constexpr char kOldLanguageFile[] = "nl.ini";

}  // namespace

Form5::Form5(platform::Platform& platform, MainState& state, base::ErrorReporter& errors,
             lang::Languages languages, std::function<void()> unload_all)
    : ui::Window(platform.windows, {"Form5", "License agreements", 600, 280}),
      languages_(languages),
      platform_(platform),
      state_(state),
      errors_(errors),
      unload_all_(std::move(unload_all)) {
  Combo1.OnClick = [this] { Combo1_Click(); };
  Command1.OnClick = [this] { Command1_Click(); };
  Command2.OnClick = [this] { Command2_Click(); };
  SetCancelButton(&Command2);
}

void Form5::Form_Load() {
  if (loading_ == 1) return;
  loading_ = 1;
  base::TrapErrors(errors_, base::ErrorValue::kFirstRunLoad, [this] {
    std::vector<std::string> names;
    for (const lang::Language& language : languages_) names.emplace_back(language.english_name);
    Combo1.SetItems(names);
    // Left by versions that kept the language there.
    if (platform_.files.Exists(kOldLanguageFile)) platform_.files.Delete(kOldLanguageFile);
  });
  loading_ = 0;
}

void Form5::Close() {
  Handle([this] { unload_all_(); });
}

void Form5::Combo1_Click() {
  base::TrapErrors(errors_, base::ErrorValue::kFirstRunLanguage,
                   [this] { ShowTexts(ChosenLanguage().agreement); });
}

void Form5::Command1_Click() {
  base::TrapErrors(errors_, base::ErrorValue::kFirstRunAccept, [this] {
    ReadFields();
    WriteSettings();
    StartAnew();
    unload_all_();
    platform_.processes.EndProcess();
  });
}

void Form5::Command2_Click() {
  base::TrapErrors(errors_, base::ErrorValue::kFirstRunDecline, [this] { unload_all_(); });
}

const lang::Language& Form5::ChosenLanguage() const {
  const int index = Combo1.ListIndex();
  return languages_[index == ui::ComboBox::kNone ? 0 : static_cast<std::size_t>(index)];
}

void Form5::ShowTexts(const lang::AgreementTexts& texts) {
  Label1.SetCaption(texts.Sentence(texts.upload));
  Label4.SetCaption(texts.Sentence(texts.hearing));
  Label6.SetCaption(texts.Sentence(texts.copyright));
  Label7.SetCaption(std::string(texts.language));
  Check1.SetCaption(std::string(texts.refusal));
  Command1.SetCaption(std::string(texts.accept));
  Command2.SetCaption(std::string(texts.decline));
}

void Form5::WriteSettings() {
  const FirstChoices choices{ChosenLanguage().code, !Check1.Value()};
  platform_.Texts().Replace(SettingsPath(platform_.environment), FirstSettings(choices),
                            platform::Durability::kOnDisk);
  // Only what is written down counts as the user's consent.
  if (lang::IsTranslated(choices.language)) state_.language = choices.language;
  state_.SendData = choices.send_data ? 1 : 0;
}

void Form5::StartAnew() {
  platform::Environment& environment = platform_.environment;
  platform_.processes.Start('"' + environment.ProgramFolder() + "\\" + environment.ProgramName() +
                            ".exe\"");
}

}  // namespace settings
