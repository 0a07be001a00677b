#include "platform/windows/system/timer_grain.h"

#include "platform/windows/api/system_library.h"
#include "platform/windows/api/windows_api.h"

namespace platform::windows {
namespace {

using SetInformationFunction = BOOL(WINAPI*)(HANDLE, int, LPVOID, DWORD);

// As documented for SetProcessInformation, for systems newer than this program's headers are for.
constexpr int kPowerThrottling = 4;            // ProcessPowerThrottling
constexpr ULONG kVersion = 1;                  // PROCESS_POWER_THROTTLING_CURRENT_VERSION
constexpr ULONG kIgnoreTimerResolution = 0x4;  // PROCESS_POWER_THROTTLING_IGNORE_TIMER_RESOLUTION

struct PowerThrottlingState {
  ULONG version;
  ULONG control_mask;  // what is decided here
  ULONG state_mask;    // and is to be so
};

}  // namespace

void KeepTimersFine() {
  const auto set_information = FunctionOf<SetInformationFunction>(GetModuleHandleW(L"kernel32.dll"),
                                                                  "SetProcessInformation");
  if (set_information == nullptr) return;
  PowerThrottlingState never{kVersion, kIgnoreTimerResolution, 0};
  set_information(GetCurrentProcess(), kPowerThrottling, &never, sizeof(never));
}

}  // namespace platform::windows
