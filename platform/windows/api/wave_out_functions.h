// The functions of winmm.dll that play through a wave output; null where it has none.
#pragma once

#include "platform/windows/api/system_library.h"
#include "platform/windows/api/windows_api.h"

#include <mmsystem.h>

namespace platform::windows {

struct WaveOutFunctions {
  const HMODULE library = LoadSystemLibrary(L"winmm.dll");
  decltype(&waveOutOpen) open = Of<decltype(&waveOutOpen)>("waveOutOpen");
  decltype(&waveOutPrepareHeader) prepare =
      Of<decltype(&waveOutPrepareHeader)>("waveOutPrepareHeader");
  decltype(&waveOutUnprepareHeader) unprepare =
      Of<decltype(&waveOutUnprepareHeader)>("waveOutUnprepareHeader");
  decltype(&waveOutWrite) write = Of<decltype(&waveOutWrite)>("waveOutWrite");
  decltype(&waveOutGetPosition) position = Of<decltype(&waveOutGetPosition)>("waveOutGetPosition");
  decltype(&waveOutReset) reset = Of<decltype(&waveOutReset)>("waveOutReset");
  decltype(&waveOutClose) close = Of<decltype(&waveOutClose)>("waveOutClose");

  template <typename Function>
  Function Of(const char* name) const {
    return FunctionOf<Function>(library, name);
  }
  bool complete() const {
    return open != nullptr && prepare != nullptr && unprepare != nullptr && write != nullptr &&
           position != nullptr && reset != nullptr && close != nullptr;
  }
};

}  // namespace platform::windows
