// The message queue of the program's one thread.
#pragma once

#include "platform/system.h"
#include "platform/windows/sound/multimedia.h"
#include "platform/windows/views/open_windows.h"

namespace platform::windows {

class WindowsMessagePump final : public MessagePump {
 public:
  WindowsMessagePump(OpenWindows& open, MultimediaLibrary& multimedia)
      : open_(open), multimedia_(multimedia) {}

  void ProcessPending(const std::function<bool()>& enough) override;
  bool ProcessUntil(const std::function<bool()>& done, int at_most_ms) override;
  bool Pass(const std::function<bool()>& stopped, Moment end, Grain grain) override;
  Moment Now() const override;
  void Sleep(int milliseconds) override;
  void SleepUntil(Moment end) override;
  void Run() override;

 private:
  // Handles messages until `done` holds or `end` is reached; asks for it every `longest_nap`, too.
  bool Wait(const std::function<bool()>& done, Moment end, Moment longest_nap);

  void Handle(MSG& message);

  // Between messages: what has changed is shown, and the keyboard focus is kept on a control that
  // can be used.
  void Settle();

  OpenWindows& open_;
  MultimediaLibrary& multimedia_;
};

}  // namespace platform::windows
