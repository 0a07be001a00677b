#include "platform/windows/message_pump.h"

#include <algorithm>

#include "platform/windows/views/native_window.h"

namespace platform::windows {
namespace {

constexpr int kCoarseTick =
    16;  // ms; the system's timer grain when no program asks for a finer one

// ms; from here on a wait would be seen if nothing were drawn.
constexpr int kLongSleep = 250;
// ms; the system takes a program that asks for no message for seconds for dead.
constexpr int kSignOfLife = 1000;
constexpr int kLongestNap = 20;  // ms; whoever has something done may not say so with a message

bool IsKey(const MSG& message) {
  return message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST;
}

class FineTimer {
 public:
  explicit FineTimer(MultimediaLibrary& multimedia) : multimedia_(multimedia) {
    multimedia_.BeginFineTimer();
  }
  ~FineTimer() { multimedia_.EndFineTimer(); }
  FineTimer(const FineTimer&) = delete;
  FineTimer& operator=(const FineTimer&) = delete;

 private:
  MultimediaLibrary& multimedia_;
};

class Stopwatch {
 public:
  Stopwatch() {
    QueryPerformanceFrequency(&frequency_);
    QueryPerformanceCounter(&start_);
  }

  int ElapsedMilliseconds() const {
    LARGE_INTEGER now{};
    QueryPerformanceCounter(&now);
    return static_cast<int>((now.QuadPart - start_.QuadPart) * 1000 / frequency_.QuadPart);
  }

 private:
  LARGE_INTEGER frequency_{};
  LARGE_INTEGER start_{};
};

// Input stays where it is, but what of a window is uncovered is drawn.
void PaintUntil(int end_ms, const Stopwatch& stopwatch) {
  MSG message{};
  for (int left = end_ms; left > 0; left = end_ms - stopwatch.ElapsedMilliseconds()) {
    if (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE | PM_QS_PAINT | PM_QS_SENDMESSAGE)) {
      DispatchMessageW(&message);
    } else {
      MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(std::min(left, kSignOfLife)),
                                QS_PAINT | QS_SENDMESSAGE);
    }
  }
}

}  // namespace

void WindowsMessagePump::ProcessPending(const std::function<bool()>& enough) {
  Settle();
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    Handle(message);
    if (enough && enough()) return;
  }
}

bool WindowsMessagePump::ProcessUntil(const std::function<bool()>& done, int at_most_ms) {
  const Stopwatch stopwatch;
  for (;;) {
    ProcessPending(done);
    if (done()) return true;
    const int left = at_most_ms - stopwatch.ElapsedMilliseconds();
    if (left <= 0) return false;
    MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(std::min(left, kLongestNap)),
                              QS_ALLINPUT);
  }
}

void WindowsMessagePump::Sleep(int milliseconds) {
  if (milliseconds <= 0) return;
  // A fine timer grain costs the whole machine power, so only the end of a long sleep has it.
  const Stopwatch stopwatch;
  if (milliseconds > 4 * kCoarseTick) {
    const int coarse = milliseconds - 2 * kCoarseTick;
    if (milliseconds >= kLongSleep) {
      PaintUntil(coarse, stopwatch);
    } else {
      ::Sleep(static_cast<DWORD>(coarse));
    }
    milliseconds -= stopwatch.ElapsedMilliseconds();
    if (milliseconds <= 0) return;
  }
  const FineTimer fine(multimedia_);
  ::Sleep(static_cast<DWORD>(milliseconds));
}

void WindowsMessagePump::Run() {
  Settle();
  MSG message{};
  while (open_.AnyVisible() && GetMessageW(&message, nullptr, 0, 0) > 0) Handle(message);
  open_.ForgetLeft();
}

void WindowsMessagePump::Handle(MSG& message) {
  if (!IsKey(message) || !NativeWindow::TranslateKey(open_, message)) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  Settle();
}

void WindowsMessagePump::Settle() {
  open_.ForgetLeft();
  if (NativeWindow* const active = open_.Find(GetActiveWindow())) active->Settle();
}

}  // namespace platform::windows
