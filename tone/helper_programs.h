// The helper programs that sound in place of this one: their names, and how they are started and
// ended, for the main window and the player alike.
//
// Classic is sounded by tone16.dll, which play16.exe starts, Sound32 by tone32.dll; both are
// executables in spite of their names. They read their pitch from the hand-over file.
#pragma once

#include <string>

#include "base/sound_mode.h"
#include "platform/platform.h"
#include "tone/process_killer.h"

namespace tone {

class HelperPrograms {
 public:
  // How the command names play16.exe: alone, so that it is found in the current folder, or by its
  // quoted path. tone32.dll is always named alone. Whatever the name, it is the program's own
  // folder that the helper is started from, and no other.
  enum class Named { kAlone, kByPath };

  explicit HelperPrograms(platform::Platform& platform) : platform_(platform), killer_(platform) {}

  // Starts the helper of an output, hidden, without waiting for it; nothing for an output without
  // one. Throws base::RuntimeError when it cannot be started or is not there.
  void Start(base::Output output, Named named);

  // Ends every process that sounds for an output; nothing for one without a helper.
  void End(base::Output output);

  // Ends the helpers of both, Sound32's first.
  void EndAll();

 private:
  std::string RequireOwn(const std::string& name);
  std::string StarterCommand(Named named);

  platform::Platform& platform_;
  ProcessKiller killer_;
};

}  // namespace tone
