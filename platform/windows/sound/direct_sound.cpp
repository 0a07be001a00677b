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

using NativeDevice = ComOwner<IDirectSound8>;

// Nothing is left of a device, nor of its buffer, that was stopped.
template <typename Interface>
Interface& Used(const ComOwner<Interface>& owner) {
  if (!owner) throw base::RuntimeError(base::ErrorCode::kDeviceError);
  return *owner.get();
}

class Buffer final : public DirectSoundBuffer {
 public:
  Buffer(std::shared_ptr<NativeDevice> device, ComOwner<IDirectSoundBuffer> buffer)
      : device_(std::move(device)), buffer_(std::move(buffer)) {}

  void Play(std::uint32_t flags) override { CheckDevice(Native().Play(0, 0, flags)); }

  // The mixer goes on with what it has mixed ahead, which goes with the device.
  void Stop() override {
    CheckDevice(Native().Stop());
    buffer_.reset();
    device_->reset();
  }

  void SetFrequency(std::uint32_t frequency) override {
    CheckDevice(Native().SetFrequency(frequency));
  }

  void Fill(const std::string& data) {
    void* parts[2] = {};
    DWORD sizes[2] = {};
    const auto size = static_cast<DWORD>(data.size());
    CheckDevice(Native().Lock(0, size, &parts[0], &sizes[0], &parts[1], &sizes[1], 0));
    std::memcpy(parts[0], data.data(), sizes[0]);
    if (parts[1] != nullptr) std::memcpy(parts[1], data.data() + sizes[0], sizes[1]);
    CheckDevice(Native().Unlock(parts[0], sizes[0], parts[1], sizes[1]));
  }

 private:
  IDirectSoundBuffer& Native() { return Used(buffer_); }

  std::shared_ptr<NativeDevice> device_;
  ComOwner<IDirectSoundBuffer> buffer_;
};

class Device final : public DirectSoundDevice {
 public:
  explicit Device(NativeDevice device)
      : device_(std::make_shared<NativeDevice>(std::move(device))) {}

  void SetCooperativeLevel(ui::WindowView& window, std::uint32_t level) override {
    CheckDevice(
        Used(*device_).SetCooperativeLevel(static_cast<NativeWindow&>(window).handle(), level));
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
    CheckDevice(Used(*device_).CreateSoundBuffer(&description, &created, nullptr));
    auto buffer = std::make_unique<Buffer>(device_, ComOwner<IDirectSoundBuffer>(created));
    buffer->Fill(data);
    return buffer;
  }

 private:
  std::shared_ptr<NativeDevice> device_;
};

class Root final : public DirectSoundRoot {
 public:
  explicit Root(CreateFunction create) : create_(create) {}

  std::unique_ptr<DirectSoundDevice> CreateDevice() override {
    IDirectSound8* created = nullptr;
    CheckDevice(create_(nullptr, &created, nullptr));
    return std::make_unique<Device>(NativeDevice(created));
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
