// The multimedia library (winmm), loaded only when it is first needed: loading it takes a
// good part of the time that the rest of the start-up takes.
#pragma once

#include "platform/system.h"
#include "platform/windows/api/windows_api.h"

namespace platform::windows {

class MultimediaLibrary {
 public:
  MultimediaLibrary() = default;
  MultimediaLibrary(const MultimediaLibrary&) = delete;
  MultimediaLibrary& operator=(const MultimediaLibrary&) = delete;

  // As PlaySoundW. `path` null stops; before anything was played that does nothing.
  void PlaySound(const wchar_t* path, DWORD flags);

  // As timeBeginPeriod(1) and timeEndPeriod(1).
  void BeginFineTimer();
  void EndFineTimer();

 private:
  using PlaySoundFunction = BOOL(WINAPI*)(LPCWSTR, HMODULE, DWORD);
  using TimePeriodFunction = UINT(WINAPI*)(UINT);

  void Load();

  bool tried_ = false;
  PlaySoundFunction play_sound_ = nullptr;
  TimePeriodFunction begin_period_ = nullptr;
  TimePeriodFunction end_period_ = nullptr;
};

class MultimediaPlayer final : public WavePlayer {
 public:
  explicit MultimediaPlayer(MultimediaLibrary& library) : library_(library) {}

  void Play(const std::string& path, std::uint32_t flags) override;
  void Stop(std::uint32_t flags) override;

 private:
  MultimediaLibrary& library_;
};

class SystemBeeper final : public Beeper {
 public:
  void Beep(int pitch_hz, int duration_ms) override;
};

}  // namespace platform::windows
