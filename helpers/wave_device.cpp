#include "helpers/wave_device.h"

#include <algorithm>

namespace helpers {
namespace {

WAVEFORMATEX Format(std::uint32_t rate_hz) {
  WAVEFORMATEX format{};
  format.wFormatTag = WAVE_FORMAT_PCM;
  format.nChannels = 2;
  format.nSamplesPerSec = rate_hz;
  format.nAvgBytesPerSec = rate_hz * sizeof(Frame);
  format.nBlockAlign = sizeof(Frame);
  format.wBitsPerSample = 16;
  return format;
}

bool Queued(const WAVEHDR& header) {
  return (header.dwFlags & WHDR_INQUEUE) != 0;
}

}  // namespace

WaveDevice::WaveDevice()
    : freed_(platform::windows::Own(CreateEventW(nullptr, FALSE, FALSE, nullptr))) {}

WaveDevice::~WaveDevice() {
  Close();
}

bool WaveDevice::Open(std::uint32_t rate_hz) {
  if (!wave_out_.complete()) return false;
  const WAVEFORMATEX format = Format(rate_hz);
  if (wave_out_.open(&device_, WAVE_MAPPER, &format, reinterpret_cast<DWORD_PTR>(freed_.get()), 0,
                     CALLBACK_EVENT | WAVE_FORMAT_DIRECT) != MMSYSERR_NOERROR) {
    device_ = nullptr;
    return false;
  }
  if (Prepare(rate_hz)) return true;
  Close();
  return false;
}

bool WaveDevice::Prepare(std::uint32_t rate_hz) {
  for (Buffer& buffer : buffers_) {
    buffer.header = {};
    buffer.header.lpData = reinterpret_cast<LPSTR>(buffer.frames.data());
    buffer.header.dwBufferLength = rate_hz / kBuffersPerSecond * sizeof(Frame);
    if (wave_out_.prepare(device_, &buffer.header, sizeof(WAVEHDR)) != MMSYSERR_NOERROR)
      return false;
  }
  return true;
}

void WaveDevice::Close() {
  if (!device_) return;
  wave_out_.reset(device_);
  for (Buffer& buffer : buffers_) wave_out_.unprepare(device_, &buffer.header, sizeof(WAVEHDR));
  wave_out_.close(device_);
  for (Buffer& buffer : buffers_) buffer.header = {};
  device_ = nullptr;
}

std::optional<std::uint32_t> WaveDevice::Feed(ToneStream& stream) {
  std::uint32_t fed = 0;
  for (Buffer& buffer : buffers_) {
    if (Queued(buffer.header)) continue;
    stream.Fill({buffer.frames.data(), buffer.header.dwBufferLength / sizeof(Frame)});
    if (wave_out_.write(device_, &buffer.header, sizeof(WAVEHDR)) != MMSYSERR_NOERROR) {
      return std::nullopt;
    }
    ++fed;
  }
  return fed;
}

bool WaveDevice::Played() const {
  return std::none_of(buffers_.begin(), buffers_.end(),
                      [](const Buffer& buffer) { return Queued(buffer.header); });
}

void WaveDevice::Wait(DWORD timeout_ms) const {
  WaitForSingleObject(freed_.get(), timeout_ms);
}

}  // namespace helpers
