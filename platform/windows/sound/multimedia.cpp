#include "platform/windows/sound/multimedia.h"

#include <string>

#include "platform/windows/api/system_library.h"
#include "platform/windows/api/wide_text.h"

namespace platform::windows {
namespace {

bool FitsCodePage(const std::wstring& text) {
  BOOL lost = FALSE;
  WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, text.data(), static_cast<int>(text.size()),
                      nullptr, 0, nullptr, &lost);
  return lost == FALSE;
}

// Not every multimedia library opens files by the full set of characters; the short path has none
// that the code page lacks.
std::wstring InCodePage(const std::wstring& path) {
  if (FitsCodePage(path)) return path;
  const DWORD needed = GetShortPathNameW(path.c_str(), nullptr, 0);
  std::wstring short_path(needed, L'\0');
  const DWORD length = GetShortPathNameW(path.c_str(), short_path.data(), needed);
  if (length == 0 || length >= needed) return path;
  short_path.resize(length);
  return short_path;
}

}  // namespace

void MultimediaLibrary::Load() {
  if (tried_) return;
  tried_ = true;
  // Never unloaded: a sound may play until the process ends.
  const HMODULE library = LoadSystemLibrary(L"winmm.dll");
  play_sound_ = FunctionOf<PlaySoundFunction>(library, "PlaySoundW");
  begin_period_ = FunctionOf<TimePeriodFunction>(library, "timeBeginPeriod");
  end_period_ = FunctionOf<TimePeriodFunction>(library, "timeEndPeriod");
}

void MultimediaLibrary::PlaySound(const wchar_t* path, DWORD flags) {
  if (path != nullptr) Load();
  if (play_sound_ != nullptr) play_sound_(path, nullptr, flags);
}

void MultimediaLibrary::BeginFineTimer() {
  Load();
  if (begin_period_ != nullptr) begin_period_(1);
}

void MultimediaLibrary::EndFineTimer() {
  if (end_period_ != nullptr) end_period_(1);
}

void MultimediaPlayer::Play(const std::string& path, std::uint32_t flags) {
  library_.PlaySound(InCodePage(Widen(path)).c_str(), flags);
}

void MultimediaPlayer::Stop(std::uint32_t flags) {
  library_.PlaySound(nullptr, flags);
}

void SystemBeeper::Beep(int pitch_hz, int duration_ms) {
  if (duration_ms <= 0) return;
  ::Beep(static_cast<DWORD>(pitch_hz), static_cast<DWORD>(duration_ms));
}

}  // namespace platform::windows
