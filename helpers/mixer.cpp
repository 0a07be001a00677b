#include "helpers/mixer.h"

#include <memory>

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

Owned<IAudioClient> DefaultDevice(const OleFunctions& ole) {
  void* object = nullptr;
  ole.create(__uuidof(MMDeviceEnumerator), nullptr, CLSCTX_INPROC_SERVER,
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

Mixer::Mixer(DWORD apartment)
    : com_(ole_.complete() && SUCCEEDED(ole_.initialize(nullptr, apartment))) {}

Mixer::~Mixer() {
  if (com_) ole_.uninitialize();
}

std::optional<std::uint32_t> Mixer::Rate() const {
  if (!com_) return std::nullopt;
  const Owned<IAudioClient> client = DefaultDevice(ole_);
  if (!client) return std::nullopt;
  WAVEFORMATEX* filled = nullptr;
  client->GetMixFormat(&filled);
  const std::unique_ptr<WAVEFORMATEX, decltype(&CoTaskMemFree)> format(filled, ole_.free);
  if (!format) return std::nullopt;
  return format->nSamplesPerSec;
}

}  // namespace helpers
