#include "platform/windows/sound/awake_output.h"

#include "platform/windows/api/wave_out_functions.h"
#include "platform/windows/sound/wave_format.h"

#include <vector>

namespace platform::windows {
namespace {

// As the tones are, so that nothing changes for the device when one begins.
constexpr base::WaveFormat kFormat{44100, 2, 16};
constexpr std::size_t kBytes = 44100 * 4;  // a second
constexpr DWORD kForEver = ~DWORD{0};

class Silence final : public SilentSound {
 public:
  Silence() = default;
  ~Silence() override {
    if (device_ == nullptr) return;
    wave_out_.reset(device_);
    wave_out_.unprepare(device_, &header_, sizeof(header_));
    wave_out_.close(device_);
  }
  Silence(const Silence&) = delete;
  Silence& operator=(const Silence&) = delete;

  // False where there is no device.
  bool Begin() {
    if (!wave_out_.complete()) return false;
    const WAVEFORMATEX format = NativeFormat(kFormat);
    if (wave_out_.open(&device_, WAVE_MAPPER, &format, 0, 0, CALLBACK_NULL) != MMSYSERR_NOERROR) {
      device_ = nullptr;
      return false;
    }
    header_.lpData = samples_.data();
    header_.dwBufferLength = static_cast<DWORD>(samples_.size());
    if (wave_out_.prepare(device_, &header_, sizeof(header_)) != MMSYSERR_NOERROR) return false;
    header_.dwFlags |= WHDR_BEGINLOOP | WHDR_ENDLOOP;
    header_.dwLoops = kForEver;
    return wave_out_.write(device_, &header_, sizeof(header_)) == MMSYSERR_NOERROR;
  }

  bool Plays() override {
    MMTIME played{};
    played.wType = TIME_BYTES;
    // A device that does not count bytes counts something else, from 0 all the same.
    return wave_out_.position(device_, &played, sizeof(played)) == MMSYSERR_NOERROR &&
           played.u.cb > 0;
  }

 private:
  WaveOutFunctions wave_out_;
  std::vector<char> samples_ = std::vector<char>(kBytes);
  WAVEHDR header_{};
  HWAVEOUT device_ = nullptr;
};

}  // namespace

std::unique_ptr<SilentSound> WindowsAwakeOutput::Start() {
  auto silence = std::make_unique<Silence>();
  if (!silence->Begin()) return nullptr;
  return silence;
}

}  // namespace platform::windows
