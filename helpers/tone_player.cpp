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
  while (!owner_.Ended() && !watch_.Gone(file_.Missing(), GetTickCount()) && !SweepOver()) {
    if (!stream_ && device_watch_.Due(GetTickCount())) Open();
    Feed();
    device_.Wait(kLookAgain);
  }
}

void TonePlayer::Open() {
  if (!mixer_ && DependsOnMixer(request_)) mixer_.emplace();
  const std::optional<std::uint32_t> mixer_hz = mixer_ ? mixer_->Rate() : std::nullopt;
  const auto rate =
      ChooseRate(request_, mixer_hz, [this](auto rate_hz) { return device_.Open(rate_hz); });
  if (rate) stream_.emplace(request_, *rate, mixer_hz.value_or(*rate));
  // A sweep is where it would have been with a device all the time.
  if (stream_ && tried_) stream_->SkipTo(GetTickCount() - began_ms_);
  tried_ = true;
}

void TonePlayer::Feed() {
  if (!stream_ || stream_->AtTop()) return;
  const std::optional<std::uint32_t> fed = device_.Feed(*stream_);
  if (!fed || device_watch_.Stalled(*fed, GetTickCount())) GiveUpDevice();
}

void TonePlayer::GiveUpDevice() {
  stream_.reset();
  device_.Close();
}

bool TonePlayer::SweepOver() const {
  if (request_ != kSweep || at_top_ != AtTop::kEnd) return false;
  if (stream_) return stream_->AtTop() && device_.Played();
  return GetTickCount() - began_ms_ >= kSweepSeconds * 1000;
}

}  // namespace helpers
