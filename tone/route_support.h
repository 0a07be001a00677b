// What every route shares: the generated WAV file, the status text, the wait loop, and the
// procedure that silences all routes at once.
//
// A continuous tone lives until the stop flag is 1 or the main window is not visible; its route
// then releases what it started. Every procedure of a route traps its own errors and ends quietly.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "platform/platform.h"
#include "settings/main_state.h"
#include "tone/awake.h"
#include "tone/wave_image.h"
#include "tone/wave_output.h"

namespace tone {

inline constexpr std::int16_t kWaveTickMs = 100;
inline constexpr std::int16_t kHelperTickMs = 208;

// What a playing tone needs of the main window.
class PlayScene {
 public:
  virtual ~PlayScene() = default;

  virtual bool MainWindowVisible() const = 0;
  virtual ui::WindowView& MainWindowView() = 0;
  virtual void ShowStatus(const std::string& text) = 0;

  // The preview of a sine wave of `pitch` Hz, drawn in a mode of base/sine_modes.h.
  virtual void DrawSine(std::int16_t pitch, std::int16_t mode) = 0;

  // The caption of the status panel in the loaded language.
  virtual std::string StatusCaption() const = 0;
};

class RouteSupport {
 public:
  RouteSupport(platform::Platform& platform, settings::MainState& main_state, PlayScene& play_scene)
      : platform_(platform),
        state_(main_state),
        scene_(play_scene),
        waves_(platform),
        language_(main_state.language) {}

  std::int16_t playing = 0;  // cleared by KillAll

  // The language of the status texts; at first the main window's.
  void setLang(const std::string& newlang) { language_ = newlang; }

  // Silences every route and deletes the temporary files. A DirectSound buffer is stopped by the
  // route that plays it.
  void KillAll();

  // For the routes.
  void ReadTempFolder();
  std::string WavePath() const;
  std::string HandOverPath() const { return temp_ + "\\sound.ini"; }

  // Writes the hand-over file: one line, for a pitch its number in Hz between blanks.
  void WriteHandOver(const std::string& line);
  void WriteHandOver(std::int16_t pitch);

  // Writes one second of a tone as the generated WAV file. When another running copy of the program
  // holds that, this object uses a file of its own from then on. Throws base::RuntimeError when
  // there is no file to play then.
  void WriteTone(std::int32_t pitch);
  void DeleteIfThere(const std::string& path);

  // Starts a WAV file in a loop, or silences whatever the multimedia player plays.
  void Loop(const std::string& path) { waves_.WavPlay(path, true, false); }
  void Silence() { waves_.WavPlay("0", false, true); }

  void ShowStatus(const std::string& text) { scene_.ShowStatus(text); }

  // The caption of the status panel in the loaded language.
  void ShowLoadedCaption() { scene_.ShowStatus(scene_.StatusCaption()); }

  // "Actual pitch (Hertz): ", in a translated program the loaded caption; then the pitch in bare
  // digits.
  void ShowPitchCaption();
  void ShowPitch(std::int32_t pitch);

  // The preview of one step of a sweep.
  void DrawStep(std::int16_t pitch);

  void BeginUnstopped() { state_.stop_flag = 0; }
  bool Stopped() const;
  void HandleMessages();

  // Blocks the thread without handling messages.
  void Wait(std::int32_t time_ms);

  // The output is awake, as far as it can be, as long as what this returns is kept.
  Awake KeepAwake();

  platform::Moment Now() const { return platform_.pump.Now(); }

  // Waits until a step of a sweep that began at `begin` has lasted `time_ms`. Messages are handled
  // until it is stopped, which does not make the step shorter.
  void FinishStep(platform::Moment begin, std::int16_t time_ms);

  // Handles messages and waits, in turn, until the tone is stopped. That is looked for at the end
  // of each tick; `silence` is called at once, for what KillAll does not silence.
  void WaitUntilStopped(std::int16_t tick_ms, const std::function<void()>& silence = {});

 private:
  std::string PitchCaption() const;
  void PassUntil(platform::Moment end, platform::Grain grain, const std::function<void()>& silence);

  platform::Platform& platform_;
  settings::MainState& state_;
  PlayScene& scene_;
  WaveOutput waves_;
  SineImage image_;
  std::string language_;
  std::string temp_;
  std::string own_wave_;  // path; empty while the usual one serves
};

}  // namespace tone
