#include "platform/simulated/awake_output.h"

namespace platform::simulated {
namespace {

class FakeSilence : public SilentSound {
 public:
  explicit FakeSilence(FakeAwakeOutput& output)
      : output_(output), plays_at_ms_(output.pump().now_ms() + output.wakes_after_ms) {
    output_.Change(1);
    // A wait that looks again and again sees it at that moment.
    if (output_.wakes_after_ms > 0) output_.pump().At(plays_at_ms_, [] {});
  }
  ~FakeSilence() override { output_.Change(-1); }
  FakeSilence(const FakeSilence&) = delete;
  FakeSilence& operator=(const FakeSilence&) = delete;

  bool Plays() override { return output_.pump().now_ms() >= plays_at_ms_; }

 private:
  FakeAwakeOutput& output_;
  std::int64_t plays_at_ms_;
};

}  // namespace

std::unique_ptr<SilentSound> FakeAwakeOutput::Start() {
  if (!there) return nullptr;
  return std::make_unique<FakeSilence>(*this);
}

void FakeAwakeOutput::Change(int by) {
  playing += by;
  if (by > 0) ++started;
  if (journaled) journal_.Add(Kind::kSound, by > 0 ? "awake" : "asleep");
}

}  // namespace platform::simulated
