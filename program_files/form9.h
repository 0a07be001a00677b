// The player: plays the tone program file that the program was started with, through the sound mode
// that was current then.
//
// Its load routine does everything: it reads and checks the file, shows the window unless the file
// is marked invisible, and plays. Play returns when the last tone is over or after Stop; the user's
// input is handled before and after each tone, so a stop takes effect when the tone that sounds is
// over. A tone that cannot be played ends the play: the window then shows how far it came.
// Unloading the window ends the program. Handlers and procedures trap their errors and end quietly.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <utility>

#include "base/sound_mode.h"
#include "platform/platform.h"
#include "program_files/program_checks.h"
#include "program_files/tone_program.h"
#include "settings/main_state.h"
#include "tone/awake.h"
#include "tone/helper_programs.h"
#include "tone/route_support.h"
#include "tone/winmm_routes.h"
#include "ui/progress_bar.h"
#include "ui/window.h"

namespace program_files {

class Form9 : public ui::Window {
 public:
  // What the player does to the program around it.
  struct Surroundings {
    std::function<void()> unload_news_window;
    std::function<void()> unload_every_window;  // the main one among them, which ends the program
    std::function<void(const std::string& entry)> log;  // an entry of the activity log
  };

  Form9(platform::Platform& platform, settings::MainState& state, tone::PlayScene& play_scene,
        Surroundings around);

  // Both are set before the window is loaded.
  void SetFilePath(std::string path) { file_path_ = std::move(path); }
  void SetSoundMode(base::SoundMode mode) { sound_mode_ = mode; }

  ui::Label Label3{*this, 100, "Label3", {16, 16, 70, 18}, "Playing:"};
  ui::Label Label4{*this, 101, "Label4", {90, 16, 374, 18}, "", ui::Label::Style::kPath};
  ui::Label Label1{*this, 102, "Label1", {16, 48, 40, 18}, "0"};
  ui::ProgressBar ProgressBar1{*this, 103, "ProgressBar1", {60, 48, 360, 18}};
  ui::Label Label2{*this, 104, "Label2", {428, 48, 40, 18}, ""};
  ui::Label Label5{*this, 105, "Label5", {16, 80, 70, 18}, "Pitch:"};
  ui::Label Label6{*this, 106, "Label6", {90, 80, 90, 18}, ""};
  ui::Label Label7{*this, 107, "Label7", {240, 80, 110, 18}, "Time (ms):"};
  ui::Label Label8{*this, 108, "Label8", {354, 80, 90, 18}, ""};
  ui::Button Command1{*this, 109, "Command1", {16, 112, 142, 32}, "(Re)play"};
  ui::Button Command2{*this, 110, "Command2", {169, 112, 142, 32}, "Stop"};
  ui::Button Command3{*this, 111, "Command3", {322, 112, 142, 32}, "Exit"};

  const ToneProgram& Tones() const { return program_; }

 protected:
  void Form_Load() override;
  void Form_Unload() override;

 private:
  void Command1_Click();
  void Command2_Click();
  void Command3_Click();

  // Loading (form9.cpp).
  void LoadProgram();
  std::unique_ptr<platform::InputFile> OpenFile();
  bool ReadLines();
  bool Parse();
  void Tell(std::span<const Finding> findings);
  void IllFile();
  void lowFile();
  void CloseAfterLoading();
  void KillHelpers();

  // Playing (form9_play.cpp).
  void PlayUntilDone();
  void Play();
  // The error that ended the play before its end.
  std::optional<base::RuntimeError> PlayTones();
  void PlayTone();
  void StartHelper();
  bool Audible() const { return base::OutputOf(sound_mode_) != base::Output::kNone; }
  bool SoundsByHelper() const;
  void SoundTone();
  void NoteFailure(const base::RuntimeError& error);
  void EndHelper();
  void ShowAllPlayed();
  std::int16_t ToneCount() const { return program_.ToneCount(); }

  platform::Platform& platform_;
  settings::MainState& state_;
  Surroundings around_;
  tone::RouteSupport support_;
  tone::HelperPrograms helpers_;
  tone::WinmmRoutes winmm_{support_};
  tone::Awake awake_{platform_};

  std::string file_path_;
  base::SoundMode sound_mode_ = base::SoundMode::kNone;
  ParseState parse_;
  ToneProgram program_;
  std::int16_t stop_flag_ = 0;  // 1 = stop requested
  std::int16_t tone_number_ = 0;
  std::int16_t table_index_ = 0;
  std::int16_t loading_guard_ = 0;
  bool closes_after_loading_ = false;
  bool playing_ = false;
  bool replays_ = false;
};

}  // namespace program_files
