// The routes by which a continuous tone leaves the program, and the procedure that silences them.
//
// A tone lives until the stop flag is 1 or the main window is not visible; the route then releases
// what it started. Every procedure traps its own errors and ends quietly.
#pragma once

#include <cstdint>
#include <string>

#include "base/main_state.h"
#include "platform/platform.h"
#include "tone/process_killer.h"
#include "tone/wave_output.h"

namespace tone {

// What a playing tone needs of the main window.
class PlayScene {
 public:
  virtual ~PlayScene() = default;

  virtual bool MainWindowVisible() const = 0;
  virtual void ShowStatus(const std::string& text) = 0;

  // The caption of the status panel in the loaded language.
  virtual std::string StatusCaption() const = 0;
};

class SoundRoutes {
 public:
  SoundRoutes(platform::Platform& platform, base::MainState& state, PlayScene& scene)
      : platform_(platform),
        state_(state),
        scene_(scene),
        waves_(platform),
        killer_(platform),
        language_(state.language) {}

  std::int16_t online = 0;   // 1 while the program shuts down
  std::int16_t playing = 0;  // cleared by KillAll

  // The language of the status texts; at first the main window's.
  void setLang(const std::string& newlang) { language_ = newlang; }

  // A generated WAV file, looped by the multimedia player. `pitch` in Hz.
  void SoundWinmmRND(std::int16_t pitch);

  // Silences every route and deletes the temporary files.
  void KillAll();

 private:
  std::string WavePath();
  void WriteTone(std::int16_t pitch);
  void DeleteIfThere(const std::string& path);

  // The caption of the status panel, with a blank at its end.
  std::string PitchCaption() const;
  bool Stopped() const;

  // Handles messages and waits, in turn, until the tone is stopped.
  void WaitUntilStopped(std::int16_t tick_ms);

  platform::Platform& platform_;
  base::MainState& state_;
  PlayScene& scene_;
  WaveOutput waves_;
  ProcessKiller killer_;
  std::string language_;
  std::string temp_;
};

}  // namespace tone
