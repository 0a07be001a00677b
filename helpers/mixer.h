// The mixer through which the system plays on its default device.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/windows/api/system_library.h"
#include "platform/windows/api/windows_api.h"

#include <objbase.h>

namespace helpers {

// The functions of ole32.dll that are needed here; null where it has none.
struct OleFunctions {
  const HMODULE library = platform::windows::LoadSystemLibrary(L"ole32.dll");
  decltype(&CoInitializeEx) initialize = Of<decltype(&CoInitializeEx)>("CoInitializeEx");
  decltype(&CoUninitialize) uninitialize = Of<decltype(&CoUninitialize)>("CoUninitialize");
  decltype(&CoCreateInstance) create = Of<decltype(&CoCreateInstance)>("CoCreateInstance");
  decltype(&CoTaskMemFree) free = Of<decltype(&CoTaskMemFree)>("CoTaskMemFree");

  template <typename Function>
  Function Of(const char* name) const {
    return platform::windows::FunctionOf<Function>(library, name);
  }
  bool complete() const {
    return initialize != nullptr && uninitialize != nullptr && create != nullptr && free != nullptr;
  }
};

// Owns the thread's use of COM, by which the mixer is asked. To live as long as sound is played:
// with the last use of COM the system would unload its sound components, only to load them again.
class Mixer {
 public:
  // `apartment` as for CoInitializeEx: a thread with windows has one of its own.
  explicit Mixer(DWORD apartment = COINIT_MULTITHREADED);
  ~Mixer();
  Mixer(const Mixer&) = delete;
  Mixer& operator=(const Mixer&) = delete;

  // Frames per second. Whatever rate a stream has, nothing at half of this rate
  // or above can be heard, and a mixer that converts carelessly makes a lower tone of it. Nothing
  // where there is no device or the system does not tell (before Windows Vista).
  std::optional<std::uint32_t> Rate() const;

 private:
  OleFunctions ole_;
  bool com_;
};

}  // namespace helpers
