// The main window: start-up and shutdown, the tone modes, Play and Stop, the menus.
//
// It is the program's start object and owns its life: loading it runs the whole start-up,
// unloading it is the one regular way out and ends the process.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>

#include "app/form1_controls.h"
#include "app/services.h"
#include "base/main_state.h"
#include "display/dx_record.h"
#include "display/waveform.h"
#include "lang/texts.h"
#include "online/form3.h"
#include "online/links.h"
#include "platform/platform.h"
#include "program_files/form9.h"

namespace app {

// The other windows of the program, as the main window reaches them.
class OtherWindows : public WindowList,
                     public settings::ErrorScene,
                     public lang::CaptionScene,
                     public online::UpdateScene {
 public:
  virtual ui::Window& StatusWindow() = 0;  // Form8
  virtual ui::Label& StatusLabel() = 0;    // Form8.Label2
  virtual ui::Window& HelpWindow() = 0;    // Form2
  virtual ui::Window& MorseWindow() = 0;   // Form4
  virtual ui::Window& FirstRun() = 0;      // Form5
  virtual ui::Window& AboutBox() = 0;      // frmAbout
  virtual program_files::Form9& PlayerWindow() = 0;
  virtual online::Form3& NewsWindow() = 0;
  virtual settings::ErrorNotes& Errors() = 0;  // for objects that outlive a handler
};

class Form1 : public Form1Controls,
              public settings::SettingsDisplay,
              public tone::PlayScene,
              public ModeDisplay {
 public:
  // `command_line` is what followed the program's name, its path resolved.
  Form1(platform::Platform& platform, OtherWindows& others, std::string command_line);

  base::MainState& State() { return state_; }

  // Whether something hid the window since it began to load.
  bool StaysHidden() const { return stays_hidden_; }

  // The captions of this window, by slot of a language file.
  std::vector<lang::CaptionSlot> Captions();
  void UseTexts(const lang::Texts& texts, std::int16_t formval);
  const lang::Texts& MessageTexts() const { return texts_; }

  // Applies the language file of `language` to a window.
  void LoadCaptions(const std::string& language, std::int16_t formval);

  void Hide() override;
  void HelpRequested() override;

  // settings::SettingsDisplay
  void ShowAutoUpdate(bool on) override;
  void ShowLanguage(const std::string& language) override;
  void LoadCaptions(const std::string& code) override { LoadCaptions(code, lang::kMainWindow); }
  void ShowMicrophone(bool on) override;
  void ShowMicrophoneLevel(std::int16_t level) override;
  void ShowFirstRun() override { others_.FirstRun().Show(); }
  void HideMainWindow() override { Hide(); }

  // tone::PlayScene
  bool MainWindowVisible() const override { return OnScreen(); }
  ui::WindowView& MainWindowView() override { return *View(); }
  void ShowStatus(const std::string& text) override { StatusBar1.SetCaption(text); }
  void DrawSine(std::int16_t pitch, std::int16_t mode) override;
  std::string StatusCaption() const override { return texts_.status; }

  // ModeDisplay
  void ShowMode(int mode) override;

  std::int16_t mode_chosen_flag = 0;  // 1 once one of the modes 1 to 8 was chosen

 protected:
  void Form_Load() override;
  void Form_Unload() override;

 private:
  using ProgramPtr = std::shared_ptr<Program>;

  void ConnectControls();
  void ConnectMenu();

  // A handler that is interrupted by a nested one keeps the service objects that it began with.
  ProgramPtr NewProgram();
  std::shared_ptr<ExFunctions> NewExFunctions();

  // Start-up (form1_start.cpp).
  void DeleteOldLog();
  void StartUp();
  void TakeCommandLine();
  void StartLog();
  void CheckSystem();
  void ReadSettings();
  void ShowSoundMode();
  void TestConnection();
  void FinishStart();
  void ShowStep(const std::string& text);

  // Tone modes (form1_modes.cpp).
  void OptionClick(int mode);
  void ShowSine(Program& program, int mode);
  void ReselectMode(const ProgramPtr& program);
  void HScroll1_Change();
  std::int16_t SelectedPitch() const;  // of the slider, as it is shown

  // Play and Stop (form1_play.cpp).
  void Command2_Click();
  void Command3_Click();
  void Play(const ProgramPtr& program);
  std::int16_t TakePitch();
  void StartHearingTest();
  void DisableForPlaying();
  void PlaySweep(const ProgramPtr& program, sound& tone);
  void PlayTone(const ProgramPtr& program, sound& tone, std::int16_t pitch);
  void Stop(const ProgramPtr& program);
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
  void ChooseSoundMode(std::int16_t error_value, ui::MenuItem& item, const std::string& code);
  void ChooseLanguage(std::int16_t error_value, const std::string& code,
                      const std::string& setting);
  void ToggleAutoUpdate();
  void ToggleMicrophone();
  void ChangeSensitivity(std::int16_t error_value, int step);
  void ShowAboutBox();
  void Exit();
  online::Addresses Site() const { return online::SiteAddresses(platform_.environment); }
  void VisitPage(std::int16_t error_value, const std::string& entry, const std::string& address);

  platform::Platform& platform_;
  OtherWindows& others_;
  base::MainState state_;
  lang::Texts texts_;
  display::SineAnimation sine_animation_{platform_, state_, Picture1, others_.Errors()};
  Scene scene_;
  ProgramPtr program_;
  std::shared_ptr<ExFunctions> ex_functions_;

  std::unique_ptr<display::frmDX_Record> DirectSoundRecord;

  std::string command_line_;
  std::string command_line_file_;
  std::int16_t file_mode_flag_ = 0;
  std::int16_t start_up_flag_ = 0;
  std::int16_t connection_flag_ = 0;  // 1 = the test file could be fetched at start
  std::int16_t close_attempts_ = 0;
  std::int16_t last_close_answer_ = 0;
  bool stays_hidden_ = false;

  std::string mode_number_;
  std::array<std::int16_t, 10> disabled_modes_{};  // index N: mode N, 1 = disabled before a play
  std::int16_t option_index_ = 0;
};

}  // namespace app
