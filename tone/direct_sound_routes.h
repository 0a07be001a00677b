// Tones through a DirectSound buffer that loops a WAV file, generated or prepared.
//
// The device and the buffer stay with the object after a tone, silent, until the next tone
// replaces them. A DirectSound call that fails ends its procedure there.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/platform.h"
#include "tone/route_support.h"

namespace tone {

class DirectSoundRoutes {
 public:
  DirectSoundRoutes(platform::Platform& platform, PlayScene& scene, RouteSupport& support)
      : platform_(platform), scene_(scene), support_(support) {}

  // A generated tone, until it is stopped. The file is started through the multimedia player, too;
  // that sound is silenced only by KillAll.
  void ToneDXRND(std::int16_t pitch);

  // A generated tone of `Duration` ms. Messages wait until it is over.
  void ToneDXRNDTMP(std::int16_t pitch, std::int16_t Duration);

  // The prepared file "tonedx" + modeval + ".dll" (a WAV file) of the current folder. A `delay`
  // other than 0 becomes the buffer's frequency (frames per second).
  void ToneDX(std::int32_t pitch, const std::string& modeval, std::int32_t delay);

 private:
  void CreateDevice();
  void PlayBuffer(const std::string& path);

  platform::Platform& platform_;
  PlayScene& scene_;
  RouteSupport& support_;
  std::unique_ptr<platform::DirectSoundRoot> root_;
  std::unique_ptr<platform::DirectSoundDevice> device_;
  std::unique_ptr<platform::DirectSoundBuffer> buffer_;
};

}  // namespace tone
