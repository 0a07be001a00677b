// Download: a file from the web, without ever holding the program up for long.
#pragma once

#include <cstddef>
#include <string>

#include "base/error_trap.h"
#include "platform/platform.h"

namespace online {

// A host that has not sent the whole of a small file by then is given up. A start makes two
// downloads at most.
inline constexpr int kPatienceMs = 3000;

// What the program downloads is smaller by far.
inline constexpr std::size_t kLargestDownload = 1024 * 1024;  // bytes

class Downloads {
 public:
  Downloads(platform::Platform& platform, base::ErrorReporter& errors)
      : platform_(platform), errors_(errors) {}

  // Saves what `Link` has now as the file `SaveLocation`; true exactly when that succeeded.
  // Messages are handled meanwhile. A failure leaves no part of the file. Error value kDownload.
  bool Download(const std::string& Link, const std::string& SaveLocation);

 private:
  platform::Platform& platform_;
  base::ErrorReporter& errors_;
};

}  // namespace online
