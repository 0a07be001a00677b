// Downloads through the system's URL-to-file service (urlmon.dll), each on a thread of its own that
// also loads what the service needs.
//
// The file arrives under another name and is deleted by the thread unless it gets its own. A
// download that is given up ends on its own thread, as soon as the service lets messages be
// handled there; nobody waits for that.
#pragma once

#include "platform/downloader.h"

namespace platform::windows {

class WindowsDownloader final : public Downloader {
 public:
  std::unique_ptr<RunningDownload> Begin(const std::string& link, const std::string& path,
                                         std::size_t most_bytes) override;
};

}  // namespace platform::windows
