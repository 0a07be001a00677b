#include "online/early_downloads.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "base/error_trap.h"

namespace online {
namespace {

// What the program downloads is smaller by far.
constexpr std::size_t kLargestDownload = 1024 * 1024;  // bytes

}  // namespace

void EarlyDownloads::Begin(const std::string& link, const std::string& path) {
  begun_.push_back(Start(link, path));
}

std::unique_ptr<platform::RunningDownload> EarlyDownloads::Finish(const std::string& link,
                                                                  const std::string& path) {
  Begun begun = Take(link, path);
  base::ThrowAgain(begun.failure);
  WaitFor(begun);
  return std::move(begun.download);
}

EarlyDownloads::Begun EarlyDownloads::Start(const std::string& link, const std::string& path) {
  Begun begun;
  begun.link = link;
  begun.end = platform_.pump.Now() + std::chrono::milliseconds(kPatienceMs);
  begun.failure = base::Caught(
      [&] { begun.download = platform_.downloader.Begin(link, path, kLargestDownload); });
  return begun;
}

EarlyDownloads::Begun EarlyDownloads::Take(const std::string& link, const std::string& path) {
  const auto found = std::find_if(begun_.begin(), begun_.end(),
                                  [&](const Begun& begun) { return begun.link == link; });
  if (found == begun_.end()) return Start(link, path);
  Begun begun = std::move(*found);
  begun_.erase(found);
  return begun;
}

void EarlyDownloads::WaitFor(const Begun& begun) {
  const auto over = [&] { return begun.download->Over(); };
  if (platform_.pump.ProcessUntil(over, std::min(LeftMs(begun), kNoticeMs))) return;
  if (LeftMs(begun) == 0) return;
  if (OnLongWait) OnLongWait(true);
  platform_.pump.ProcessUntil(over, LeftMs(begun));
  if (OnLongWait) OnLongWait(false);
}

int EarlyDownloads::LeftMs(const Begun& begun) const {
  const auto left =
      std::chrono::ceil<std::chrono::milliseconds>(begun.end - platform_.pump.Now()).count();
  return static_cast<int>(std::clamp<std::int64_t>(left, 0, kPatienceMs));
}

}  // namespace online
