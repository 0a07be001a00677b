#include "helpers/hearage/wave_output.h"

#include <algorithm>
#include <array>

namespace helpers {
namespace {

constexpr WORD kChannels = 2;
constexpr WORD kFrameBytes = kChannels * sizeof(std::int16_t);

// In the order in which they are wanted; the mixer's own comes before all.
constexpr std::array<std::uint32_t, 4> kRates{48000, 44100, 96000, 192000};

}  // namespace

std::optional<hearing::ToneOutput::Rates> WaveOutput::Open() {
  Close();
  const std::optional<std::uint32_t> mixer_hz = mixer_.Rate();
  if (mixer_hz && OpenAt(*mixer_hz)) return Rates{*mixer_hz, *mixer_hz};
  const auto taken =
      std::find_if(kRates.begin(), kRates.end(), [this](auto rate_hz) { return OpenAt(rate_hz); });
  if (taken == kRates.end()) return std::nullopt;
  return Rates{*taken, std::min(*taken, mixer_hz.value_or(*taken))};
}

// No converter of the system may stand between: it might play high pitches as lower ones.
bool WaveOutput::OpenAt(std::uint32_t rate_hz) {
  if (!wave_out_.complete()) return false;
  WAVEFORMATEX format{};
  format.wFormatTag = WAVE_FORMAT_PCM;
  format.nChannels = kChannels;
  format.nSamplesPerSec = rate_hz;
  format.nAvgBytesPerSec = rate_hz * kFrameBytes;
  format.nBlockAlign = kFrameBytes;
  format.wBitsPerSample = 8 * sizeof(std::int16_t);
  if (wave_out_.open(&device_, WAVE_MAPPER, &format, 0, 0, CALLBACK_NULL | WAVE_FORMAT_DIRECT) ==
      MMSYSERR_NOERROR) {
    return true;
  }
  device_ = nullptr;
  return false;
}

bool WaveOutput::Play(const std::vector<std::int16_t>& samples) {
  if (device_ == nullptr) return false;
  Forget();
  samples_ = samples;
  header_ = {};
  header_.lpData = reinterpret_cast<LPSTR>(samples_.data());
  header_.dwBufferLength = static_cast<DWORD>(samples_.size() * sizeof(std::int16_t));
  return wave_out_.prepare(device_, &header_, sizeof(header_)) == MMSYSERR_NOERROR &&
         wave_out_.write(device_, &header_, sizeof(header_)) == MMSYSERR_NOERROR;
}

bool WaveOutput::Played() const {
  return (header_.dwFlags & WHDR_INQUEUE) == 0;
}

void WaveOutput::Forget() {
  wave_out_.reset(device_);
  wave_out_.unprepare(device_, &header_, sizeof(header_));
}

void WaveOutput::Close() {
  if (device_ == nullptr) return;
  Forget();
  wave_out_.close(device_);
  device_ = nullptr;
}

}  // namespace helpers
