// Start-up and shutdown of the main window.
#include "app/form1.h"

#include "app/leftovers.h"
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
  Program program(context_);
  ExFunctions ex_functions(context_);

  const auto error = base::Caught([&] {
    DeleteOldLog(ex_functions);
    StartUp(program, ex_functions);
  });
  if (error) {
    early_downloads_.GiveUp();
    program.ErrorNote(base::ErrorValue::kMainWindowLoad, *error);
    StartUp(program, ex_functions);
  }
}

void Form1::DeleteOldLog(ExFunctions& ex_functions) {
  state_.temp_folder = platform_.environment.Get("TEMP");
  try {
    platform_.files.Delete(state_.temp_folder + "\\userdata.txt");
  } catch (const base::RuntimeError& error) {
    // Another running copy holds the log for a moment.
    if (error.code() != base::ErrorCode::kPermissionDenied) throw;
    ex_functions.delay(kBusyLogPauseMs);
  }
}

void Form1::StartUp(Program& program, ExFunctions& ex_functions) {
  TakeCommandLine();
  Leftovers(platform_).ClearAtStart();
  if (file_mode_flag_ == 0) others_.status.Show();
  StartLog();
  CheckSystem(program, ex_functions);
  ReadSettings(program);
  BeginAhead(program);
  ShowSoundMode();
  ShowStep("Checking for updates...");
  if (state_.AutoUpdate == 1) program.UpdateCheck();
  TestConnection(ex_functions);
  early_downloads_.GiveUp();
  others_.status.Unload();
  FinishStart(program);
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

void Form1::CheckSystem(Program& program, ExFunctions& ex_functions) {
  if (ex_functions.DPIGet() != kExpectedDpi) {
    platform_.messages.Show("DPI settings could cause problems!", "Warning",
                            platform::MessageIcon::kExclamation, platform::MessageButtons::kOk);
    program.PrintFile(">>> Bad DPI settings");
  }
  program.PrintFile(">> Program started");
  program.PrintFile("> Windows version check");
  ShowStep("Windows check...");
  // The check is made twice: once for its messages, once for the log.
  ex_functions.CheckVersion();
  program.PrintFile(ex_functions.CheckVersion());
  program.PrintFile("> Write test");
  ShowStep("Write test...");
  program.WriteTest();
}

void Form1::ReadSettings(Program& program) {
  program.PrintFile("> Reading settings");
  ShowStep("Reading settings...");
  program.CheckSettings();
  program.LanguageAPI(state_.language, lang::kMainWindow);
  program.PrintFile("> Bit: " + std::string(base::FactsOf(state_.SoundBit).code));
}

// From here on it is known what the rest of the start will ask for. What comes of it is looked at
// in the steps themselves.
void Form1::BeginAhead(Program& program) {
  if (state_.AutoUpdate == 1) program.BeginUpdateCheck();
  early_downloads_.Begin(Site().ConnectionTest(), TestFile());
}

void Form1::ShowSoundMode() {
  for (const SoundModeItem& choice : sound_mode_items) {
    if (choice.mode == state_.SoundBit) choice.item.SetChecked(true);
  }
  if (!base::FactsOf(state_.SoundBit).plays_tools) EnableToolModes(false);
  if (state_.SoundBit == base::SoundMode::kWinmm) Option6.SetEnabled(true);
}

void Form1::TestConnection(ExFunctions& ex_functions) {
  const std::string path = TestFile();
  test_file_ = path;
  connection_flag_ = ex_functions.Download(Site().ConnectionTest(), path) ? 1 : 0;
  const auto failure = base::Caught([&] {
    if (platform_.files.Exists(path) && file_mode_flag_ != 1 && connection_flag_ != 0) {
      others_.news.ShowPage(Site().News());
    }
  });
  test_file_.clear();
  platform_.files.Delete(path);
  base::ThrowAgain(failure);
}

void Form1::FinishStart(Program& program) {
  if (file_mode_flag_ == 1) {
    program.PrintFile("> Starting tnf file");
    program_files::Form9& player = others_.player;
    player.SetFilePath(command_line_file_);
    player.SetSoundMode(state_.SoundBit);
    // Loading shows it, unless the file is to be heard only, and returns when that has been played.
    // Showing it once more then would bring it to the front.
    player.Load();
    if (!player.Visible()) player.Show();
    Hide();
  }
  if (state_.MicrophoneON == 1) StartCapture();
  program.PrintFile(">> Program starting finished");
  Command3.SetEnabled(false);
}

void Form1::ShowStep(const std::string& text) {
  others_.status.Label2.SetCaption(text);
  platform_.pump.ProcessPending();
}

void Form1::Form_Unload() {
  Program program(context_);
  base::TrapErrors(program, base::ErrorValue::kMainWindowUnload, [&] {
    if (close_attempts_ >= 1) {
      last_close_answer_ = platform_.messages.Show("Do you want to forcibly close tonmira?",
                                                   "Error", platform::MessageIcon::kCritical,
                                                   platform::MessageButtons::kYesNo);
      if (last_close_answer_ == platform::kAnswerYes) platform_.processes.EndProcess();
    }
    close_attempts_ = 1;
    // Stop itself may have failed half-way: its buttons tell nothing.
    const bool playing = plays_ && state_.stop_flag != 1;
    state_.stop_flag = 1;
    sound local_sound(context_);
    const auto failure = base::Caught([&] {
      Hide();
      others_.news.Hide();
      if (state_.MicrophoneON == 1) EndCapture();
      DirectSoundRecord.reset();
      const std::string old_wave = state_.temp_folder + "\\tnftmp.wav";
      if (platform_.files.Exists(old_wave)) platform_.files.Delete(old_wave);
    });
    // Nothing sounds on while a failure is reported.
    ExFunctions(context_).WavPlay("0", false, true);
    // The play that this ends never comes to release what it started.
    if (playing) local_sound.KillAll();
    if (!test_file_.empty()) base::Quietly([&] { platform_.files.Delete(test_file_); });
    Leftovers(platform_).ClearAtEnd(state_);
    base::ThrowAgain(failure);
    if (state_.SendData == 1) program.SendData();
    others_.unload();
    platform_.processes.EndProcess();
  });
}

}  // namespace app
