#include "helpers/mixer.h"

#include <memory>

#include "platform/windows/api/windows_api.h"

#include <objbase.h>

#include <mmreg.h>
#include <mmdeviceapi.h>
#include <audioclient.h>

namespace helpers {
namespace {

struct Releaser {
  void operator()(IUnknown* object) const { object->Release(); }
};
template <typename Interface>
using Owned = std::unique_ptr<Interface, Releaser>;

struct Freer {
  void operator()(void* memory) const { CoTaskMemFree(memory); }
};

Owned<IAudioClient> DefaultDevice() {
  void* object = nullptr;
  CoCreateInstance(__uuidof(MMDeviceEnumerator), nullptr, CLSCTX_INPROC_SERVER,
                   __uuidof(IMMDeviceEnumerator), &object);
  const Owned<IMMDeviceEnumerator> devices(static_cast<IMMDeviceEnumerator*>(object));
  if (!devices) return nullptr;
  IMMDevice* found = nullptr;
  devices->GetDefaultAudioEndpoint(eRender, eConsole, &found);
  const Owned<IMMDevice> device(found);
  if (!device) return nullptr;
  object = nullptr;
  device->Activate(__uuidof(IAudioClient), CLSCTX_INPROC_SERVER, nullptr, &object);
  return Owned<IAudioClient>(static_cast<IAudioClient*>(object));
}

}  // namespace

Mixer::Mixer() : com_(SUCCEEDED(CoInitializeEx(nullptr, COINIT_MULTITHREADED))) {}

Mixer::~Mixer() {
  if (com_) CoUninitialize();
}

std::optional<std::uint32_t> Mixer::Rate() const {
  if (!com_) return std::nullopt;
  const Owned<IAudioClient> client = DefaultDevice();
  if (!client) return std::nullopt;
  WAVEFORMATEX* filled = nullptr;
  client->GetMixFormat(&filled);
  const std::unique_ptr<WAVEFORMATEX, Freer> format(filled);
  if (!format) return std::nullopt;
  return format->nSamplesPerSec;
}

}  // namespace helpers
