#include "online/downloads.h"

namespace online {

bool Downloads::Download(const std::string& Link, const std::string& SaveLocation) {
  bool success = false;
  base::TrapErrors(errors_, base::ErrorValue::kDownload, [&] {
    const auto download = platform_.downloader.Begin(Link, SaveLocation, kLargestDownload);
    platform_.pump.ProcessUntil([&] { return download->Over(); }, kPatienceMs);
    success = download->PutInPlace();
  });
  return success;
}

}  // namespace online
