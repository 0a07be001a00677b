#include "online/downloads.h"

namespace online {

bool Downloads::Download(const std::string& Link, const std::string& SaveLocation) {
  bool success = false;
  settings::TrapErrors(errors_, 1024, [&] {
    const auto download = platform_.downloader.Begin(Link, SaveLocation, kLargestDownload);
    platform_.pump.ProcessUntil([&] { return download->Over(); }, kPatienceMs);
    success = download->PutInPlace();
  });
  return success;
}

}  // namespace online
