#include "display/dx_record.h"

#include "base/numbers.h"

namespace display {
namespace {

// What went wrong when a step of Initialize fails.
constexpr char kNoDirectSound[] = "DirectSound is not available on this computer.";
constexpr char kNoDevice[] = "No recording device was found.";
constexpr char kDeviceRefused[] =
    "The recording device cannot be opened. Another program may be using it.";
// As the system calls the places.
constexpr char kNotAllowed[] =
    "Windows does not let this program use the microphone. Allow it in the Windows settings: "
    "Privacy, Microphone, \"Let desktop apps access your microphone\".";
constexpr char kFormatRefused[] = "The recording device does not record in the wanted format.";
constexpr char kNoEvents[] = "The recording device does not tell when it has recorded something.";

}  // namespace

std::string frmDX_Record::Initialize(std::int32_t samples_per_second, std::int16_t bits_per_sample,
                                     std::int16_t channels, std::int32_t half_buffer_size,
                                     const std::string& device) {
  UninitializeSound();
  std::string failure;
  const auto error = base::Caught([&] {
    failure = kNoDirectSound;
    root_ = capture_.Create();
    failure = device.empty() ? kNoDevice : kDeviceRefused;
    const std::string identifier = device.empty() ? DefaultDevice() : device;
    failure = kDeviceRefused;
    device_ = root_->CreateDevice(identifier);
    failure = kFormatRefused;
    SetFormat(samples_per_second, bits_per_sample, channels);
    SetBufferSize(half_buffer_size);
    CreateBuffer();
    failure = kNoEvents;
    CreateEvents();
  });
  if (!error) return "";
  UninitializeSound();
  return error->code() == base::ErrorCode::kPermissionDenied ? kNotAllowed : failure;
}

std::string frmDX_Record::DefaultDevice() {
  const std::vector<std::string> devices = root_->Devices();
  if (devices.empty()) throw base::RuntimeError(base::ErrorCode::kDeviceError);
  return devices.front();
}

void frmDX_Record::SetFormat(std::int32_t samples_per_second, std::int16_t bits_per_sample,
                             std::int16_t channels) {
  const std::int16_t block_bits = base::ToInt16(bits_per_sample * channels);
  const std::int16_t block_alignment = base::ToInt16(block_bits / 8.0);
  format_ = {kFormatPcm,         channels,
             samples_per_second, base::MultiplyInt32(block_alignment, samples_per_second),
             block_alignment,    bits_per_sample};
}

void frmDX_Record::SetBufferSize(std::int32_t half_buffer_size) {
  if (half_buffer_size < 1) {
    half_buffer_size = base::ToInt32(format_.average_bytes_per_second / 10.0);
  }
  if (format_.block_alignment < 1) throw base::RuntimeError(base::ErrorCode::kInvalidCall);
  half_buffer_size_ = half_buffer_size - half_buffer_size % format_.block_alignment;
  buffer_size_ = base::MultiplyInt32(2, half_buffer_size_);
}

void frmDX_Record::CreateBuffer() {
  buffer_ =
      device_->CreateBuffer({format_.samples_per_second, format_.channels, format_.bits_per_sample},
                            static_cast<std::uint32_t>(buffer_size_));
}

void frmDX_Record::CreateEvents() {
  for (auto& event : events_) {
    event = root_->MakeEvent(
        [this](std::int32_t id) { owner_.Handle([this, id] { DirectXEvent8_DXCallback(id); }); });
  }
  positions_ = {{{1, events_[0].get()},
                 {static_cast<std::uint32_t>(half_buffer_size_), events_[1].get()},
                 {platform::kCaptureStopPosition, events_[2].get()}}};
  buffer_->SetPositions(positions_);
}

bool frmDX_Record::SoundPlay() {
  if (buffer_) buffer_->Start(platform::kCaptureLooping);
  return true;
}

bool frmDX_Record::SoundStop() {
  if (buffer_) buffer_->Stop();
  return true;
}

void frmDX_Record::UninitializeSound() {
  buffer_.reset();
  device_.reset();
  for (auto& event : events_) event.reset();
}

void frmDX_Record::DirectXEvent8_DXCallback(std::int32_t event) {
  base::TrapErrors(errors_, base::ErrorValue::kCaptureCallback, [&] {
    if (!buffer_) return;
    const auto half = static_cast<std::uint32_t>(half_buffer_size_);
    std::vector<std::uint8_t> block(half);
    bool complete = false;
    if (event == events_[0]->Id()) complete = buffer_->Read(half, block);
    if (event == events_[1]->Id()) complete = buffer_->Read(0, block);
    // A device that was unplugged has nothing to hand over.
    if (complete && GotWaveData) GotWaveData(block, format_.bits_per_sample, format_.channels);
  });
}

}  // namespace display
