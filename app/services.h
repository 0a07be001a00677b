// The services that handlers work with: Program, ExFunctions and sound. Each lists procedures of
// several rooms and hands them on; it has none of its own.
//
// A handler makes the objects that it needs and they go with it. What they keep between their own
// calls (the log as it was last read, a DirectSound device) matters to nobody else.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "app/mode_selection.h"
#include "app/program_end.h"
#include "app/system_checks.h"
#include "base/error_trap.h"
#include "display/sine_animation.h"
#include "lang/language_loader.h"
#include "online/downloads.h"
#include "online/update_checker.h"
#include "online/upload_hand_over.h"
#include "online/usage_data.h"
#include "platform/platform.h"
#include "settings/activity_log.h"
#include "settings/settings_file.h"
#include "tone/direct_sound_routes.h"
#include "tone/helper_routes.h"
#include "tone/process_killer.h"
#include "tone/route_support.h"
#include "tone/short_tones.h"
#include "tone/wave_output.h"
#include "tone/winmm_routes.h"

namespace app {

// What the services work on: the system, the program's state, and its windows. Made once, by the
// main window.
struct Context {
  platform::Platform& platform;
  settings::MainState& state;
  base::ErrorReporter& errors;
  lang::Languages languages;
  settings::SettingsDisplay& settings_display;
  tone::PlayScene& play_scene;
  display::SineAnimation& sine;
  online::EarlyDownloads& early_downloads;
  online::Form7& update_dialog;
  const lang::Texts& texts;
  lang::Captions captions;
  std::function<void(ToneMode)> show_mode;
  WindowsEnd windows;
};

class Program {
 public:
  explicit Program(const Context& context)
      : errors_(context.errors),
        log_(context.platform, errors_),
        languages_(context.platform, context.captions, errors_),
        upload_(context.platform, errors_),
        usage_(context.platform, context.state, upload_, errors_),
        settings_(context.platform, context.state, context.settings_display, usage_, log_, errors_,
                  context.languages),
        modes_(context.state, context.show_mode, languages_, log_, errors_),
        updates_(context.platform, context.early_downloads, context.update_dialog, context.texts,
                 log_, errors_),
        end_(context.platform, context.state, context.windows, usage_, errors_),
        sine_(context.state, context.sine, errors_) {}
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  void PrintFile(std::string_view newdata) { log_.PrintFile(newdata); }
  void ErrorNote(base::ErrorValue value, const base::RuntimeError& error) {
    errors_.ErrorNote(value, error);
  }
  void CheckSettings() { settings_.CheckSettings(); }
  void WriteLine(const settings::Setting& setting, std::string_view value) {
    settings_.Write(setting, value);
  }
  void LanguageAPI(const std::string& language, std::int16_t formval) {
    languages_.LanguageAPI(language, formval);
  }
  void SelectRadio(ToneMode newselected) { modes_.SelectRadio(newselected); }
  void DrawSine(std::int16_t pitch, std::int16_t mode) { sine_.DrawSine(pitch, mode); }
  void SendData() { usage_.SendData(); }
  void BeginUpdateCheck() { updates_.Begin(); }
  void UpdateCheck() { updates_.UpdateCheck(); }
  void WriteTest() { end_.WriteTest(); }
  void Terminate() { end_.Terminate(); }

 private:
  base::ErrorReporter& errors_;
  settings::ActivityLog log_;
  lang::LanguageLoader languages_;
  online::UploadHandOver upload_;
  online::UsageData usage_;
  settings::SettingsFile settings_;
  ModeSelection modes_;
  online::UpdateChecker updates_;
  ProgramEnd end_;
  display::SineDrawing sine_;
};

class ExFunctions {
 public:
  explicit ExFunctions(const Context& context)
      : waves_(context.platform),
        downloads_(context.early_downloads, context.errors),
        checks_(context.platform, context.errors) {}

  void delay(std::int16_t timems) { waves_.delay(timems); }
  void Pause(std::int16_t timems, const std::function<bool()>& stopped) {
    waves_.Pause(timems, stopped);
  }
  void WavPlay(const std::string& path, bool loop_sound, bool kill_all) {
    waves_.WavPlay(path, loop_sound, kill_all);
  }
  bool Download(const std::string& Link, const std::string& SaveLocation) {
    return downloads_.Download(Link, SaveLocation);
  }
  std::int32_t DPIGet() { return checks_.DPIGet(); }
  std::string CheckVersion() { return checks_.CheckVersion(); }

 private:
  tone::WaveOutput waves_;
  online::Downloads downloads_;
  SystemChecks checks_;
};

class sound {
 public:
  explicit sound(const Context& context)
      : support_(context.platform, context.state, context.play_scene),
        winmm_(support_),
        helpers_(context.platform, support_),
        direct_sound_(context.platform, context.play_scene, support_) {}
  sound(const sound&) = delete;
  sound& operator=(const sound&) = delete;

  void setLang(const std::string& newlang) { support_.setLang(newlang); }
  void Sound16(std::int16_t pitch) { helpers_.Sound16(pitch); }
  void Sound32(std::int16_t pitch) { helpers_.Sound32(pitch); }
  void ToneDXRND(std::int16_t pitch) { direct_sound_.ToneDXRND(pitch); }
  void SoundWinmmRND(std::int16_t pitch) { winmm_.SoundWinmmRND(pitch); }
  void LowToHigh(base::SoundMode mode) { helpers_.LowToHigh(mode); }
  void SoundWinmmLTH() { winmm_.SoundWinmmLTH(); }
  void KillAll() { support_.KillAll(); }

 private:
  tone::RouteSupport support_;
  tone::WinmmRoutes winmm_;
  tone::HelperRoutes helpers_;
  tone::DirectSoundRoutes direct_sound_;
};

}  // namespace app
