// The main window: start-up and shutdown, the tone modes, Play and Stop, the menus.
//
// It is the program's start object and owns its life: loading it runs the whole start-up,
// unloading it is the one regular way out and ends the process.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "app/form1_controls.h"
#include "app/form8.h"
#include "app/services.h"
#include "app/tone_modes.h"
#include "base/numbers.h"
#include "display/dx_record.h"
#include "display/waveform.h"
#include "lang/texts.h"
#include "online/early_downloads.h"
#include "online/form3.h"
#include "online/links.h"
#include "platform/platform.h"
#include "program_files/form9.h"
#include "settings/main_state.h"

namespace app {

// The other windows of the program, as the main window reaches them.
struct OtherWindows {
  Form8& status;
  ui::Window& help;
  ui::Window& morse;
  ui::Window& first_run;
  ui::Window& about;
  online::Form3& news;
  online::Form7& update;
  program_files::Form9& player;

  // The captions of window `formval`; none for a number without a window.
  std::function<std::vector<lang::CaptionSlot>(std::int16_t formval)> captions;
  std::function<void()> unload;  // all of them, in the order of their numbers
};

class Form1 : public Form1Controls, public settings::SettingsDisplay, public tone::PlayScene {
 public:
  // `command_line` is what followed the program's name, its path resolved.
  Form1(platform::Platform& platform, settings::MainState& state, lang::Languages languages,
        base::ErrorReporter& errors, OtherWindows others, std::string command_line);

  settings::MainState& State() { return state_; }

  const Context& Services() const { return context_; }

  // Whether something hid the window since it began to load.
  bool StaysHidden() const { return stays_hidden_; }

  // The captions of this window, by slot of a language file.
  std::vector<lang::CaptionSlot> Captions();

  // kNone before one is chosen.
  ToneMode SelectedMode();

  // The button of a tone mode, and of all of them in their order.
  ui::OptionButton& OptionOf(ToneMode mode) { return this->*FactsOf(mode).option; }
  std::vector<ui::OptionButton*> Options();

  // Applies the language file of `language` to a window.
  void LoadCaptions(const std::string& language, std::int16_t formval);

  void Hide() override;
  void HelpRequested() override;

  // settings::SettingsDisplay
  void ShowChecked(const settings::Setting& setting, bool on) override;
  void ShowLanguage(const std::string& language) override;
  void LoadCaptions(const std::string& code) override { LoadCaptions(code, lang::kMainWindow); }
  void ShowMicrophoneLevel(std::int16_t level) override;
  void ShowFirstRun() override { others_.first_run.Show(); }
  void HideMainWindow() override { Hide(); }

  // tone::PlayScene
  bool MainWindowVisible() const override { return OnScreen(); }
  ui::WindowView& MainWindowView() override { return *View(); }
  void ShowStatus(const std::string& text) override { StatusBar1.SetCaption(text); }
  void DrawSine(std::int16_t pitch, std::int16_t mode) override;
  std::string StatusCaption() const override { return texts_.status; }

  std::int16_t mode_chosen_flag = 0;  // 1 once one of the modes 1 to 8 was chosen

 protected:
  void Form_Load() override;
  void Form_Unload() override;

 private:
  void ConnectControls();
  void ConnectMenu();

  std::vector<lang::CaptionSlot> CaptionsOf(std::int16_t formval);
  void UseTexts(const lang::LanguageFile& source, std::int16_t formval);

  // Start-up (form1_start.cpp).
  void DeleteOldLog(ExFunctions& ex_functions);
  void StartUp(Program& program, ExFunctions& ex_functions);
  void TakeCommandLine();
  void StartLog();
  void CheckSystem(Program& program, ExFunctions& ex_functions);
  void ReadSettings(Program& program);
  void BeginAhead(Program& program);
  void ShowSoundMode();
  void TestConnection(ExFunctions& ex_functions);
  void FinishStart(Program& program);
  void ShowStep(const std::string& text);

  // Tone modes (form1_modes.cpp).
  void EnableToolModes(bool enabled);  // those that DirectSound does not have
  void OptionClick(const ToneModeFacts& mode);
  void ShowMode(ToneMode mode);
  void ShowSine(Program& program, const ToneModeFacts& mode);
  void ReselectMode(Program& program);
  void HScroll1_Change();
  std::int16_t SliderPitch() const { return base::ToInt16(HScroll1.Value()); }

  // Play and Stop (form1_play.cpp).
  void Command2_Click();
  void Command3_Click();
  void Play(Program& program);
  std::int16_t TakePitch(const ToneModeFacts& mode);
  void StartHearingTest();
  void DisableForPlaying();
  void PlaySweep(Program& program, sound& tone);
  void PlayTone(Program& program, sound& tone, ToneKind kind, std::int16_t pitch);
  void Stop(Program& program);
  void RefreshStatus() { ShowStatus(texts_.status); }
  bool PlayingEnds() const { return !OnScreen() || state_.stop_flag == 1; }
  void WaitTick();

  // The microphone display (form1_microphone.cpp).
  void StartCapture();
  void StopCapture();
  void EndCapture();
  void DirectSoundRecord_GotWaveData(std::span<const std::uint8_t> block,
                                     std::int16_t bits_per_sample, std::int16_t channels);
  void Draw16(std::span<const std::uint8_t> block, bool stereo);
  void DrawWave(std::span<const std::int16_t> samples, bool stereo);
  void Draw8(std::span<const std::uint8_t> block, bool stereo);
  display::WaveView MicrophoneView(bool stereo) const;
  void ShowWave(const display::WaveDrawing& drawing);

  // Menus and the other buttons (form1_menus.cpp).
  void openfile_Click();
  void Command1_Click();
  void ChooseSoundMode(const SoundModeItem& chosen);
  void ChooseLanguage(const lang::Language& chosen);
  void Turn(const CheckMark& mark);
  void ToggleMicrophone();
  void ChangeSensitivity(base::ErrorValue error_value, int step);
  void ShowAboutBox();
  void Exit();
  std::string TestFile() const { return state_.temp_folder + "\\testcon.dat"; }
  online::Addresses Site() const { return online::SiteAddresses(platform_.environment); }
  void VisitPage(base::ErrorValue error_value, const std::string& entry,
                 const std::string& address);

  platform::Platform& platform_;
  settings::MainState& state_;
  OtherWindows others_;
  lang::Texts texts_ = DesignTexts();
  online::EarlyDownloads early_downloads_;
  display::SineAnimation sine_animation_;
  Context context_;

  std::unique_ptr<display::frmDX_Record> DirectSoundRecord;

  std::string command_line_;
  std::string command_line_file_;
  std::int16_t file_mode_flag_ = 0;
  std::int16_t start_up_flag_ = 0;
  std::int16_t connection_flag_ = 0;  // 1 = the test file could be fetched at start
  std::int16_t close_attempts_ = 0;
  std::int16_t last_close_answer_ = 0;
  bool stays_hidden_ = false;
  std::string test_file_;     // of the connection test, while it is made
  bool plays_ = false;        // a tone or a sweep, until Play is left
  bool plays_again_ = false;  // once Play is left

  // In the order of the tone modes: whether one was disabled already when a play began.
  std::array<bool, kToneModes.size()> disabled_modes_{};
};

}  // namespace app
