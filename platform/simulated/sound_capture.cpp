#include "platform/simulated/sound_capture.h"

#include <utility>

#include "base/errors.h"

namespace platform::simulated {
namespace {

constexpr std::int32_t kFirstId = 501;

class CountedCapture {
 public:
  explicit CountedCapture(FakeSoundCapture& capture) : capture_(capture) {
    ++capture_.live_objects;
  }
  ~CountedCapture() { --capture_.live_objects; }
  CountedCapture(const CountedCapture&) = delete;
  CountedCapture& operator=(const CountedCapture&) = delete;

  FakeSoundCapture& capture() const { return capture_; }

 private:
  FakeSoundCapture& capture_;
};

class FakeEvent : public CaptureEvent {
 public:
  FakeEvent(FakeSoundCapture& capture, std::int32_t id) : counted_(capture), id_(id) {}
  ~FakeEvent() override { counted_.capture().callbacks.erase(id_); }

  std::int32_t Id() const override { return id_; }

 private:
  CountedCapture counted_;
  std::int32_t id_;
};

class FakeCaptureBuffer : public CaptureBuffer {
 public:
  FakeCaptureBuffer(FakeSoundCapture& capture, const WaveFormat& format, std::uint32_t size)
      : counted_(capture),
        period_ms_(static_cast<int>(std::int64_t{size} * 8 * 1000 / 2 / format.bits_per_sample /
                                    format.channels / format.sample_rate)) {}
  ~FakeCaptureBuffer() override { SetRunning(false); }

  void SetPositions(std::span<const CapturePosition> positions) override {
    std::string offsets;
    for (const CapturePosition& position : positions) {
      offsets += " " + std::to_string(static_cast<std::int32_t>(position.offset));
      ids_.push_back(position.event->Id());
    }
    capture().Call(CaptureCall::kPositions, "positions" + offsets);
  }

  bool Start(std::uint32_t flags) override {
    if (!capture().plugged_in) return false;
    try {
      capture().Call(CaptureCall::kStart, "start " + std::to_string(flags));
    } catch (const base::RuntimeError&) {
      return false;
    }
    SetRunning(true);
    return true;
  }

  bool Stop() override {
    capture().Call(CaptureCall::kStop, "stop");
    SetRunning(false);
    return true;
  }

  bool Read(std::uint32_t offset, std::span<std::uint8_t> bytes) override {
    if (!capture().plugged_in) return false;
    const std::uint32_t end = offset + static_cast<std::uint32_t>(bytes.size());
    capture().Note("read " + std::to_string(offset) + " to " + std::to_string(end - 1));
    for (std::uint8_t& byte : bytes) byte = capture().sound(offset++);
    return true;
  }

 private:
  FakeSoundCapture& capture() const { return counted_.capture(); }

  void SetRunning(bool running) {
    if (running == (timer_ != nullptr)) return;
    capture().running_buffers += running ? 1 : -1;
    if (!running) {
      timer_.reset();
      return;
    }
    half_ = 1;
    timer_ = capture().timers().Start(period_ms_, [this] { PassHalf(); });
  }

  void PassHalf() {
    if (!capture().plugged_in || !capture().delivers) return;
    const std::int32_t id = ids_[half_];
    half_ = 1 - half_;
    capture().Notify(id);
  }

  CountedCapture counted_;
  int period_ms_;
  std::vector<std::int32_t> ids_;
  std::size_t half_ = 1;  // the position that capture passes next
  std::unique_ptr<Timer> timer_;
};

class FakeCaptureDevice : public CaptureDevice {
 public:
  explicit FakeCaptureDevice(FakeSoundCapture& capture) : counted_(capture) {}

  std::unique_ptr<CaptureBuffer> CreateBuffer(const WaveFormat& format,
                                              std::uint32_t size_bytes) override {
    counted_.capture().Call(CaptureCall::kBuffer,
                            "buffer of " + std::to_string(size_bytes) + " bytes, " +
                                std::to_string(format.sample_rate) + " Hz, " +
                                std::to_string(format.bits_per_sample) + " bits, " +
                                std::to_string(format.channels) + " channels");
    return std::make_unique<FakeCaptureBuffer>(counted_.capture(), format, size_bytes);
  }

 private:
  CountedCapture counted_;
};

class FakeCaptureRoot : public CaptureRoot {
 public:
  explicit FakeCaptureRoot(FakeSoundCapture& capture) : counted_(capture) {}

  std::vector<std::string> Devices() override {
    counted_.capture().Call(CaptureCall::kDevices, "devices");
    return counted_.capture().plugged_in ? counted_.capture().devices : std::vector<std::string>{};
  }

  std::unique_ptr<CaptureDevice> CreateDevice(const std::string& identifier) override {
    counted_.capture().Call(CaptureCall::kDevice, "device " + identifier);
    return std::make_unique<FakeCaptureDevice>(counted_.capture());
  }

  std::unique_ptr<CaptureEvent> MakeEvent(std::function<void(std::int32_t)> callback) override {
    FakeSoundCapture& capture = counted_.capture();
    capture.Call(CaptureCall::kEvent, "event");
    std::int32_t id = kFirstId;
    while (capture.callbacks.contains(id)) ++id;
    capture.callbacks[id] = std::move(callback);
    return std::make_unique<FakeEvent>(capture, id);
  }

 private:
  CountedCapture counted_;
};

}  // namespace

void FakeSoundCapture::Notify(std::int32_t id) {
  const auto found = callbacks.find(id);
  if (found == callbacks.end()) return;
  const auto callback = found->second;
  callback(id);
}

std::unique_ptr<CaptureRoot> FakeSoundCapture::Create() {
  Call(CaptureCall::kRoot, "root");
  return std::make_unique<FakeCaptureRoot>(*this);
}

void FakeSoundCapture::Call(CaptureCall call, const std::string& text) {
  const auto failure = fails_.find(call);
  if (failure != fails_.end()) throw base::RuntimeError(failure->second);
  Note(text);
}

void FakeSoundCapture::Note(const std::string& text) {
  journal_.Add(Kind::kSound, "capture " + text);
}

}  // namespace platform::simulated
