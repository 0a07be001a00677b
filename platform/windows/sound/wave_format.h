// The system's description of a PCM format, and the check of DirectSound's results.
#pragma once

#include "platform/direct_sound.h"
#include "platform/windows/api/windows_api.h"

#include <mmsystem.h>

namespace platform::windows {

WAVEFORMATEX NativeFormat(const WaveFormat& format);

// Throws base::RuntimeError for a failure: kPermissionDenied where Windows does not allow the
// device to be used, else kDeviceError.
void CheckDevice(HRESULT result);

}  // namespace platform::windows
