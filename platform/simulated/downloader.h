// The web of a simulation: what each address answers, and how long it takes.
//
// An address without an answer cannot be reached.
#pragma once

#include <chrono>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/downloader.h"
#include "platform/simulated/files.h"
#include "platform/simulated/journal.h"
#include "platform/simulated/pump.h"

namespace platform::simulated {

class FakeDownloader : public Downloader {
 public:
  struct Answer {
    std::optional<std::string> content;  // none: the download fails
    std::chrono::milliseconds after{0};
    bool never = false;  // the host is silent
  };

  FakeDownloader(Journal& journal, Files& files, VirtualPump& pump)
      : journal_(journal), files_(files), pump_(pump) {}

  std::map<std::string, Answer> answers;  // by address
  bool can_begin = true;                  // false: no download can even begin

  int prepared = 0;  // how often

  // Those that are not over and not given up, by address.
  std::vector<std::string> Running() const;

  void GiveUpAll();

  void Prepare() override { ++prepared; }
  std::unique_ptr<RunningDownload> Begin(const std::string& link, const std::string& path,
                                         std::size_t most_bytes) override;

  // What a download and its web share.
  struct State {
    std::string link;
    bool over = false;
    bool given_up = false;
    std::optional<std::string> content;
  };

 private:
  Journal& journal_;
  Files& files_;
  VirtualPump& pump_;
  std::vector<std::weak_ptr<State>> begun_;
};

}  // namespace platform::simulated
