#include "platform/simulated/downloader.h"

#include <memory>
#include <utility>

#include "base/errors.h"

namespace platform::simulated {
namespace {

using State = FakeDownloader::State;

void GiveUp(Journal& journal, State& state) {
  if (state.over || state.given_up) return;
  state.given_up = true;
  journal.Add(Kind::kDownload, "give up " + state.link);
}

class FakeDownload : public RunningDownload {
 public:
  FakeDownload(Journal& journal, Files& files, std::string path, std::shared_ptr<State> state)
      : journal_(journal), files_(files), path_(std::move(path)), state_(std::move(state)) {}

  ~FakeDownload() override { GiveUp(journal_, *state_); }

  bool Over() const override { return state_->over; }

  bool PutInPlace() override {
    if (!state_->over || !state_->content) return false;
    try {
      const auto file = files_.OpenForWriting(path_);
      file->Write(*state_->content);
      file->Close();
      return true;
    } catch (const base::RuntimeError&) {
      return false;
    }
  }

 private:
  Journal& journal_;
  Files& files_;
  std::string path_;
  std::shared_ptr<State> state_;
};

}  // namespace

std::unique_ptr<RunningDownload> FakeDownloader::Begin(const std::string& link,
                                                       const std::string& path,
                                                       std::size_t most_bytes) {
  if (!can_begin) throw base::RuntimeError(base::ErrorCode::kOutOfMemory);
  journal_.Add(Kind::kDownload, "download " + link + " to " + path);
  Answer answer = answers[link];
  const std::size_t size = answer.content ? answer.content->size() : 0;
  if (size > most_bytes) answer.content.reset();
  const auto state = std::make_shared<State>();
  state->link = link;
  begun_.push_back(state);
  const auto finish = [state, content = std::move(answer.content)] {
    state->over = true;
    state->content = content;
  };
  if (answer.after.count() == 0 && !answer.never) {
    finish();
  } else if (!answer.never) {
    pump_.At(pump_.now_ms() + answer.after.count(), finish);
  }
  return std::make_unique<FakeDownload>(journal_, files_, path, state);
}

std::vector<std::string> FakeDownloader::Running() const {
  std::vector<std::string> links;
  for (const auto& begun : begun_) {
    const auto state = begun.lock();
    if (state && !state->over && !state->given_up) links.push_back(state->link);
  }
  return links;
}

void FakeDownloader::GiveUpAll() {
  for (const auto& begun : begun_) {
    if (const auto state = begun.lock()) GiveUp(journal_, *state);
  }
}

}  // namespace platform::simulated
