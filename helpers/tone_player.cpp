#include "helpers/tone_player.h"

#include "helpers/rates.h"
#include "helpers/request.h"

namespace helpers {
namespace {

constexpr DWORD kLookAgain = 100;  // ms

}  // namespace

TonePlayer::TonePlayer(const RequestFile& file, std::uint32_t request, AtTop at_top)
    : file_(file), request_(request), at_top_(at_top), began_ms_(GetTickCount()) {}

void TonePlayer::Run() {
  Open();
  while (!watch_.Gone(file_.Missing(), GetTickCount()) && !SweepOver()) {
    Feed();
    device_.Wait(kLookAgain);
  }
}

void TonePlayer::Open() {
  const std::optional<std::uint32_t> mixer_hz = mixer_.Rate();
  const auto rate =
      ChooseRate(request_, mixer_hz, [this](auto rate_hz) { return device_.Open(rate_hz); });
  if (rate) stream_.emplace(request_, *rate, mixer_hz.value_or(*rate));
}

void TonePlayer::Feed() {
  if (stream_ && !stream_->AtTop() && !device_.Feed(*stream_)) stream_.reset();
}

bool TonePlayer::SweepOver() const {
  if (request_ != kSweep || at_top_ != AtTop::kEnd) return false;
  if (stream_) return stream_->AtTop() && device_.Played();
  return GetTickCount() - began_ms_ >= kSweepSeconds * 1000;
}

}  // namespace helpers
