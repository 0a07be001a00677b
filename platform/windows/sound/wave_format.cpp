#include "platform/windows/sound/wave_format.h"

#include "base/errors.h"

namespace platform::windows {

WAVEFORMATEX NativeFormat(const WaveFormat& format) {
  WAVEFORMATEX native{};
  native.wFormatTag = WAVE_FORMAT_PCM;
  native.nChannels = static_cast<WORD>(format.channels);
  native.nSamplesPerSec = static_cast<DWORD>(format.sample_rate);
  native.wBitsPerSample = static_cast<WORD>(format.bits_per_sample);
  native.nBlockAlign = static_cast<WORD>(format.channels * format.bits_per_sample / 8);
  native.nAvgBytesPerSec = native.nSamplesPerSec * native.nBlockAlign;
  return native;
}

void CheckDevice(HRESULT result) {
  if (result == E_ACCESSDENIED) throw base::RuntimeError(base::ErrorCode::kPermissionDenied);
  if (FAILED(result)) throw base::RuntimeError(base::ErrorCode::kDeviceError);
}

}  // namespace platform::windows
