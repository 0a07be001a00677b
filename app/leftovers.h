// The files that the program makes for a while: what is deleted when it ends, and what an end by
// force has left, which the next start deletes.
#pragma once

#include <string>

#include "platform/platform.h"
#include "settings/main_state.h"

namespace app {

class Leftovers {
 public:
  explicit Leftovers(platform::Platform& platform) : platform_(platform) {}

  // No call throws.

  // Deletes all of them, unless another copy of the program runs, whose they may be.
  void ClearAtStart();

  // Deletes what this copy has made and nobody else deletes.
  void ClearAtEnd(const settings::MainState& state);

 private:
  bool Alone();
  std::string TempFolder();
  void ClearTemporaryNames();
  void Delete(const std::string& path);
  void DeleteTemporaryNames(const std::string& path);

  platform::Platform& platform_;
};

}  // namespace app
