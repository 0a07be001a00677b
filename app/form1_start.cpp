// Start-up and shutdown of the main window.
#include "app/form1.h"

#include "app/tone_modes.h"
#include "base/text.h"

namespace app {
namespace {

constexpr std::int16_t kBusyLogPauseMs = 2500;
constexpr std::int32_t kExpectedDpi = 96;

}  // namespace

void Form1::Form_Load() {
  if (start_up_flag_ == 1) {
    start_up_flag_ = 0;
    return;
  }
  start_up_flag_ = 1;
  platform_.pump.ProcessPending();
  const ProgramPtr program = NewProgram();
  NewExFunctions();

  const auto error = settings::Caught([this] {
    DeleteOldLog();
    StartUp();
  });
  if (error) {
    program->ErrorNote(14, *error);
    StartUp();
  }
}

void Form1::DeleteOldLog() {
  state_.temp_folder = platform_.environment.Get("TEMP");
  try {
    platform_.files.Delete(state_.temp_folder + "\\userdata.txt");
  } catch (const base::RuntimeError& error) {
    // Another running copy holds the log for a moment.
    if (error.code() != base::ErrorCode::kPermissionDenied) throw;
    ex_functions_->delay(kBusyLogPauseMs);
  }
}

void Form1::StartUp() {
  TakeCommandLine();
  if (file_mode_flag_ == 0) others_.StatusWindow().Show();
  StartLog();
  CheckSystem();
  ReadSettings();
  ShowSoundMode();
  ShowStep("Checking for updates...");
  if (state_.AutoUpdate == 1) program_->UpdateCheck();
  TestConnection();
  others_.StatusWindow().Unload();
  FinishStart();
}

void Form1::TakeCommandLine() {
  if (command_line_.empty()) return;
  command_line_file_ = base::RemoveAll(command_line_, '"');
  if (platform_.files.Exists(command_line_file_)) file_mode_flag_ = 1;
}

void Form1::StartLog() {
  state_.temp_folder = platform_.environment.Get("TEMP");
  platform_.Texts().Write(
      state_.temp_folder + "\\userdata.txt",
      base::Line(platform_.clock.ShortDate()) + base::Line(platform_.clock.ShortTime()));
}

void Form1::CheckSystem() {
  if (ex_functions_->DPIGet() != kExpectedDpi) {
    platform_.messages.Show("DPI settings could cause problems!", "Warning",
                            platform::MessageIcon::kExclamation, platform::MessageButtons::kOk);
    program_->PrintFile(">>> Bad DPI settings");
  }
  program_->PrintFile(">> Program started");
  program_->PrintFile("> Windows version check");
  ShowStep("Windows check...");
  // The check is made twice: once for its messages, once for the log.
  ex_functions_->CheckVersion();
  program_->PrintFile(ex_functions_->CheckVersion());
  program_->PrintFile("> Write test");
  ShowStep("Write test...");
  program_->WriteTest();
}

void Form1::ReadSettings() {
  program_->PrintFile("> Reading settings");
  ShowStep("Reading settings...");
  program_->CheckSettings();
  program_->LanguageAPI(state_.language, lang::kMainWindow);
  program_->PrintFile("> Bit: " + state_.SoundBit);
}

void Form1::ShowSoundMode() {
  if (state_.SoundBit == "16") {
    sndclassic.SetChecked(true);
  } else if (state_.SoundBit == "32") {
    sndsound32.SetChecked(true);
  } else if (state_.SoundBit == "64") {
    snddirectsound.SetChecked(true);
    EnableToolModes(false);
  } else if (state_.SoundBit == "128") {
    sndautomatic.SetChecked(true);
  } else if (state_.SoundBit == "256") {
    sndwinmm.SetChecked(true);
    Option6.SetEnabled(true);
  }
}

void Form1::TestConnection() {
  const std::string path = state_.temp_folder + "\\testcon.dat";
  connection_flag_ = ex_functions_->Download(Site().ConnectionTest(), path) ? 1 : 0;
  if (platform_.files.Exists(path) && file_mode_flag_ != 1 && connection_flag_ != 0) {
    others_.NewsWindow().ShowPage(Site().News());
  }
  platform_.files.Delete(path);
}

void Form1::FinishStart() {
  if (file_mode_flag_ == 1) {
    program_->PrintFile("> Starting tnf file");
    program_files::Form9& player = others_.PlayerWindow();
    player.SetFilePath(command_line_file_);
    player.SetSoundMode(state_.SoundBit);
    // Loading shows it, unless the file is to be heard only, and returns when that has been played.
    // Showing it once more then would bring it to the front.
    player.Load();
    if (!player.Visible()) player.Show();
    Hide();
  }
  if (state_.MicrophoneON == 1) StartCapture();
  program_->PrintFile(">> Program starting finished");
  Command3.SetEnabled(false);
}

void Form1::ShowStep(const std::string& text) {
  others_.StatusLabel().SetCaption(text);
  platform_.pump.ProcessPending();
}

void Form1::Form_Unload() {
  settings::TrapErrors(*NewProgram(), 15, [this] {
    if (close_attempts_ >= 1) {
      last_close_answer_ = platform_.messages.Show("Do you want to forcibly close tonmira?",
                                                   "Error", platform::MessageIcon::kCritical,
                                                   platform::MessageButtons::kYesNo);
      if (last_close_answer_ == platform::kAnswerYes) platform_.processes.EndProcess();
    }
    close_attempts_ = 1;
    state_.stop_flag = 1;
    const bool playing = Command3.Enabled();
    sound local_sound(platform_, state_, *this);
    NewProgram();
    NewExFunctions();
    Hide();
    others_.NewsWindow().Hide();
    if (state_.MicrophoneON == 1) EndCapture();
    DirectSoundRecord.reset();
    platform_.files.Delete(state_.temp_folder + "\\tnftmp.wav");
    ex_functions_->WavPlay("0", false, true);
    // The play that this ends never comes to release what it started.
    if (playing) local_sound.KillAll();
    local_sound.online = 1;
    if (state_.SendData == 1) program_->SendData();
    others_.UnloadOtherWindows();
    platform_.processes.EndProcess();
  });
}

}  // namespace app
