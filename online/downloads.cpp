#include "online/downloads.h"

namespace online {

bool Downloads::Download(const std::string& Link, const std::string& SaveLocation) {
  bool success = false;
  base::TrapErrors(errors_, base::ErrorValue::kDownload,
                   [&] { success = early_.Finish(Link, SaveLocation)->PutInPlace(); });
  return success;
}

}  // namespace online
