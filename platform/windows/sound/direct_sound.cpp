#include "platform/windows/sound/direct_sound.h"

#include "platform/windows/sound/wave_format.h"

#include <dsound.h>

#include <cstring>

#include "base/errors.h"
#include "platform/windows/api/com_owner.h"
#include "platform/windows/api/system_library.h"
#include "platform/windows/views/native_window.h"

namespace platform::windows {
namespace {

using CreateFunction = HRESULT(WINAPI*)(LPCGUID, LPDIRECTSOUND8*, LPUNKNOWN);

class Buffer final : public DirectSoundBuffer {
 public:
  explicit Buffer(ComOwner<IDirectSoundBuffer> buffer) : buffer_(std::move(buffer)) {}

  void Play(std::uint32_t flags) override { CheckDevice(buffer_->Play(0, 0, flags)); }
  void Stop() override { CheckDevice(buffer_->Stop()); }
  void SetFrequency(std::uint32_t frequency) override {
    CheckDevice(buffer_->SetFrequency(frequency));
  }

  void Fill(const std::string& data) {
    void* parts[2] = {};
    DWORD sizes[2] = {};
    const auto size = static_cast<DWORD>(data.size());
    CheckDevice(buffer_->Lock(0, size, &parts[0], &sizes[0], &parts[1], &sizes[1], 0));
    std::memcpy(parts[0], data.data(), sizes[0]);
    if (parts[1] != nullptr) std::memcpy(parts[1], data.data() + sizes[0], sizes[1]);
    CheckDevice(buffer_->Unlock(parts[0], sizes[0], parts[1], sizes[1]));
  }

 private:
  ComOwner<IDirectSoundBuffer> buffer_;
};

class Device final : public DirectSoundDevice {
 public:
  explicit Device(ComOwner<IDirectSound8> device) : device_(std::move(device)) {}

  void SetCooperativeLevel(ui::WindowView& window, std::uint32_t level) override {
    CheckDevice(device_->SetCooperativeLevel(static_cast<NativeWindow&>(window).handle(), level));
  }

  std::unique_ptr<DirectSoundBuffer> CreateBuffer(const WaveFormat& format, const std::string& data,
                                                  std::uint32_t flags) override {
    WAVEFORMATEX native = NativeFormat(format);
    DSBUFFERDESC description{};
    description.dwSize = sizeof(description);
    description.dwFlags = flags;
    description.dwBufferBytes = static_cast<DWORD>(data.size());
    description.lpwfxFormat = &native;
    IDirectSoundBuffer* created = nullptr;
    CheckDevice(device_->CreateSoundBuffer(&description, &created, nullptr));
    auto buffer = std::make_unique<Buffer>(ComOwner<IDirectSoundBuffer>(created));
    buffer->Fill(data);
    return buffer;
  }

 private:
  ComOwner<IDirectSound8> device_;
};

class Root final : public DirectSoundRoot {
 public:
  explicit Root(CreateFunction create) : create_(create) {}

  std::unique_ptr<DirectSoundDevice> CreateDevice() override {
    IDirectSound8* created = nullptr;
    CheckDevice(create_(nullptr, &created, nullptr));
    return std::make_unique<Device>(ComOwner<IDirectSound8>(created));
  }

 private:
  CreateFunction create_;
};

}  // namespace

std::unique_ptr<DirectSoundRoot> WindowsDirectSound::Create() {
  const auto create =
      FunctionOf<CreateFunction>(LoadSystemLibrary(L"dsound.dll"), "DirectSoundCreate8");
  if (create == nullptr) throw base::RuntimeError(base::ErrorCode::kDeviceError);
  return std::make_unique<Root>(create);
}

}  // namespace platform::windows
