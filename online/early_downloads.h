// Downloads that are begun ahead of the step that waits for them, so that the site answers while
// the program does something else.
//
// A host has kPatienceMs from the beginning of a download, so those that are begun together cost no
// more than one.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/errors.h"
#include "platform/platform.h"

namespace online {

// A host that has not sent the whole of a small file by then is given up.
inline constexpr int kPatienceMs = 3000;

// After so long a wait the user is told what is waited for.
inline constexpr int kNoticeMs = 500;

class EarlyDownloads {
 public:
  explicit EarlyDownloads(platform::Platform& platform) : platform_(platform) {}
  EarlyDownloads(const EarlyDownloads&) = delete;
  EarlyDownloads& operator=(const EarlyDownloads&) = delete;

  // Told true when the wait for a download becomes a long one, and false when that is over.
  std::function<void(bool)> OnLongWait;

  // Begins to download what `link` has to the file `path`. Why that failed, if it does, is thrown
  // by Finish.
  void Begin(const std::string& link, const std::string& path);

  // Waits for the download of `link`, which begins now if it has not before, and takes it. Messages
  // are handled meanwhile. The download may not be over even so.
  std::unique_ptr<platform::RunningDownload> Finish(const std::string& link,
                                                    const std::string& path);

  // Gives up those that nobody took.
  void GiveUp() { begun_.clear(); }

 private:
  struct Begun {
    std::string link;
    platform::Moment end;
    std::unique_ptr<platform::RunningDownload> download;  // null when it could not begin
    std::optional<base::RuntimeError> failure;
  };

  Begun Start(const std::string& link, const std::string& path);
  Begun Take(const std::string& link, const std::string& path);
  void WaitFor(const Begun& begun);
  int LeftMs(const Begun& begun) const;

  platform::Platform& platform_;
  std::vector<Begun> begun_;
};

}  // namespace online
