// Downloads through the system's URL-to-file service (urlmon.dll), each on a thread of its own that
// also loads what the service needs.
//
// The file arrives under another name and is deleted by the thread unless it gets its own. A
// download that is given up ends on its own thread, as soon as the service lets messages be
// handled there; nobody waits for that, unless the process is about to end.
#pragma once

#include <memory>
#include <vector>

#include "platform/downloader.h"
#include "platform/windows/api/handles.h"

namespace platform::windows {

struct DownloadJob;

class WindowsDownloader final : public Downloader {
 public:
  void Prepare() override;
  std::unique_ptr<RunningDownload> Begin(const std::string& link, const std::string& path,
                                         std::size_t most_bytes) override;

  // Gives up everything that nobody has taken, and waits for a moment until it is gone.
  void GiveUpAll();

 private:
  struct Begun {
    std::shared_ptr<DownloadJob> job;
    KernelHandle thread;
  };
  std::vector<Begun> begun_;  // but those that are over and in nobody's hands
};

}  // namespace platform::windows
