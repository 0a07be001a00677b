// Download: a file from the web, without ever holding the program up for long.
#pragma once

#include <string>

#include "base/error_trap.h"
#include "online/early_downloads.h"

namespace online {

class Downloads {
 public:
  // What `early` has begun is not begun again.
  Downloads(EarlyDownloads& early, base::ErrorReporter& errors) : early_(early), errors_(errors) {}

  // Saves what `Link` has now as the file `SaveLocation`; true exactly when that succeeded.
  // Messages are handled meanwhile. A failure leaves no part of the file. Error value kDownload.
  bool Download(const std::string& Link, const std::string& SaveLocation);

 private:
  EarlyDownloads& early_;
  base::ErrorReporter& errors_;
};

}  // namespace online
