#include "platform/windows/sound/sound_capture.h"

#include "platform/windows/sound/wave_format.h"

#include <dsound.h>

#include <algorithm>
#include <cstring>
#include <utility>

#include "base/errors.h"
#include "platform/windows/api/com_owner.h"
#include "platform/windows/api/system_library.h"
#include "platform/windows/sound/capture_event.h"

namespace platform::windows {
namespace {

using CreateCapture = HRESULT(WINAPI*)(LPCGUID, LPDIRECTSOUNDCAPTURE8*, LPUNKNOWN);
using EnumerateFunction = HRESULT(WINAPI*)(LPDSENUMCALLBACKW, LPVOID);

// The library's own interface ids are data in an import library, which is not linked.
constexpr GUID kNotifyInterface = {
    0xb0210783, 0x89cd, 0x11d0, {0xaf, 0x08, 0x00, 0xa0, 0xc9, 0x25, 0xcd, 0x16}};

constexpr char kHexDigits[] = "0123456789ABCDEF";

// A device's identifier is its GUID's bytes in hexadecimal; the default device has none, all zero.
std::string IdentifierOf(const GUID* guid) {
  unsigned char bytes[sizeof(GUID)] = {};
  if (guid != nullptr) std::memcpy(bytes, guid, sizeof(bytes));
  std::string text;
  for (const unsigned char byte : bytes) {
    text += kHexDigits[byte / 16];
    text += kHexDigits[byte % 16];
  }
  return text;
}

GUID GuidOf(const std::string& identifier) {
  unsigned char bytes[sizeof(GUID)] = {};
  if (identifier.size() != 2 * sizeof(bytes)) {
    throw base::RuntimeError(base::ErrorCode::kDeviceError);
  }
  for (std::size_t i = 0; i < identifier.size(); ++i) {
    const char* const digit = std::strchr(kHexDigits, identifier[i]);
    if (digit == nullptr) throw base::RuntimeError(base::ErrorCode::kDeviceError);
    bytes[i / 2] = static_cast<unsigned char>(bytes[i / 2] * 16 + (digit - kHexDigits));
  }
  GUID guid;
  std::memcpy(&guid, bytes, sizeof(guid));
  return guid;
}

// The functions of the system that find and open devices.
struct CaptureLibrary {
  const HMODULE library = LoadSystemLibrary(L"dsound.dll");
  CreateCapture create = FunctionOf<CreateCapture>(library, "DirectSoundCaptureCreate8");
  EnumerateFunction enumerate =
      FunctionOf<EnumerateFunction>(library, "DirectSoundCaptureEnumerateW");

  bool complete() const { return create != nullptr && enumerate != nullptr; }
};

BOOL CALLBACK TakeDevice(GUID* guid, LPCWSTR, LPCWSTR, LPVOID devices) {
  static_cast<std::vector<std::string>*>(devices)->push_back(IdentifierOf(guid));
  return TRUE;
}

class Recording final : public CaptureBuffer {
 public:
  explicit Recording(ComOwner<IDirectSoundCaptureBuffer> buffer) : buffer_(std::move(buffer)) {}
  ~Recording() override { Stop(); }
  Recording(const Recording&) = delete;
  Recording& operator=(const Recording&) = delete;

  void SetPositions(std::span<const CapturePosition> positions) override {
    void* found = nullptr;
    CheckDevice(buffer_->QueryInterface(kNotifyInterface, &found));
    const ComOwner<IDirectSoundNotify> notify(static_cast<IDirectSoundNotify*>(found));
    std::vector<DSBPOSITIONNOTIFY> native;
    for (const CapturePosition& position : positions) {
      const auto* const event = static_cast<const WindowsCaptureEvent*>(position.event);
      native.push_back({position.offset, event->handle()});
    }
    CheckDevice(notify->SetNotificationPositions(static_cast<DWORD>(native.size()), native.data()));
  }

  bool Start(std::uint32_t flags) override { return SUCCEEDED(buffer_->Start(flags)); }
  bool Stop() override { return SUCCEEDED(buffer_->Stop()); }

  bool Read(std::uint32_t offset, std::span<std::uint8_t> bytes) override {
    void* parts[2] = {};
    DWORD sizes[2] = {};
    const auto size = static_cast<DWORD>(bytes.size());
    if (FAILED(buffer_->Lock(offset, size, &parts[0], &sizes[0], &parts[1], &sizes[1], 0))) {
      return false;
    }
    const bool whole = sizes[0] + sizes[1] == size;
    if (whole) {
      std::memcpy(bytes.data(), parts[0], sizes[0]);
      if (sizes[1] > 0) std::memcpy(bytes.data() + sizes[0], parts[1], sizes[1]);
    }
    buffer_->Unlock(parts[0], sizes[0], parts[1], sizes[1]);
    return whole;
  }

 private:
  ComOwner<IDirectSoundCaptureBuffer> buffer_;
};

class Microphone final : public CaptureDevice {
 public:
  explicit Microphone(ComOwner<IDirectSoundCapture> device) : device_(std::move(device)) {}

  std::unique_ptr<CaptureBuffer> CreateBuffer(const WaveFormat& format,
                                              std::uint32_t size_bytes) override {
    WAVEFORMATEX native = NativeFormat(format);
    DSCBUFFERDESC description{};
    description.dwSize = sizeof(description);
    description.dwBufferBytes = size_bytes;
    description.lpwfxFormat = &native;
    IDirectSoundCaptureBuffer* created = nullptr;
    CheckDevice(device_->CreateCaptureBuffer(&description, &created, nullptr));
    return std::make_unique<Recording>(ComOwner<IDirectSoundCaptureBuffer>(created));
  }

 private:
  ComOwner<IDirectSoundCapture> device_;
};

class Microphones final : public CaptureRoot {
 public:
  Microphones(CreateCapture create, EnumerateFunction enumerate)
      : create_(create), enumerate_(enumerate) {}

  std::vector<std::string> Devices() override {
    std::vector<std::string> devices;
    CheckDevice(enumerate_(TakeDevice, &devices));
    return devices;
  }

  std::unique_ptr<CaptureDevice> CreateDevice(const std::string& identifier) override {
    const GUID guid = GuidOf(identifier);
    const bool is_default = identifier == IdentifierOf(nullptr);
    IDirectSoundCapture* created = nullptr;
    CheckDevice(create_(is_default ? nullptr : &guid, &created, nullptr));
    return std::make_unique<Microphone>(ComOwner<IDirectSoundCapture>(created));
  }

  std::unique_ptr<CaptureEvent> MakeEvent(std::function<void(std::int32_t)> callback) override {
    return std::make_unique<WindowsCaptureEvent>(++last_event_, std::move(callback));
  }

 private:
  CreateCapture create_;
  EnumerateFunction enumerate_;
  std::int32_t last_event_ = 0;
};

}  // namespace

std::unique_ptr<CaptureRoot> WindowsSoundCapture::Create() {
  const CaptureLibrary library;
  if (!library.complete()) throw base::RuntimeError(base::ErrorCode::kDeviceError);
  return std::make_unique<Microphones>(library.create, library.enumerate);
}

}  // namespace platform::windows
