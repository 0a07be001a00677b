#include "platform/windows/message_pump.h"

#include <algorithm>

#include "platform/windows/views/native_window.h"

namespace platform::windows {
namespace {

using namespace std::chrono_literals;

// The end of a wait that shall be exact: longer than the system's timer grain of 16 ms when no
// program asks for a finer one.
constexpr Moment kCoarseEnd = 32ms;

// From here on a wait would be seen if nothing were drawn.
constexpr Moment kLongSleep = 250ms;
// The system takes a program that asks for no message for seconds for dead.
constexpr Moment kSignOfLife = 1s;
constexpr Moment kLongestNap = 20ms;  // whoever has something done may not say so with a message

Moment SystemNow() {
  LARGE_INTEGER frequency{};
  LARGE_INTEGER now{};
  QueryPerformanceFrequency(&frequency);
  QueryPerformanceCounter(&now);
  const auto ticks = now.QuadPart;
  const auto per_second = frequency.QuadPart;
  // Whole seconds first, since a million times the ticks of a month leave 64 bits.
  return Moment(ticks / per_second * 1'000'000 + ticks % per_second * 1'000'000 / per_second);
}

// What a system function is told that shall wait at least so long.
DWORD Milliseconds(Moment time) {
  return static_cast<DWORD>(std::chrono::ceil<std::chrono::milliseconds>(time).count());
}

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

// Input stays where it is, but what of a window is uncovered is drawn.
void PaintUntil(Moment end) {
  MSG message{};
  for (Moment left = end - SystemNow(); left > 0ms; left = end - SystemNow()) {
    if (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE | PM_QS_PAINT | PM_QS_SENDMESSAGE)) {
      DispatchMessageW(&message);
    } else {
      MsgWaitForMultipleObjects(0, nullptr, FALSE,
                                Milliseconds(std::min<Moment>(left, kSignOfLife)),
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
  return Wait(done, Now() + std::chrono::milliseconds(at_most_ms), kLongestNap);
}

bool WindowsMessagePump::Pass(const std::function<bool()>& stopped, Moment end, Grain grain) {
  if (stopped()) return true;
  if (grain == Grain::kCoarse) return Wait(stopped, end, Moment::max());
  if (Wait(stopped, end - kCoarseEnd, Moment::max())) return true;
  const FineTimer fine(multimedia_);
  return Wait(stopped, end, Moment::max());
}

bool WindowsMessagePump::Wait(const std::function<bool()>& done, Moment end, Moment longest_nap) {
  for (;;) {
    ProcessPending(done);
    if (done()) return true;
    const Moment left = end - Now();
    if (left <= 0ms) return false;
    MsgWaitForMultipleObjectsEx(0, nullptr, Milliseconds(std::min(left, longest_nap)), QS_ALLINPUT,
                                MWMO_INPUTAVAILABLE);
  }
}

Moment WindowsMessagePump::Now() const {
  return SystemNow();
}

void WindowsMessagePump::Sleep(int milliseconds) {
  if (milliseconds > 0) SleepUntil(Now() + std::chrono::milliseconds(milliseconds));
}

// A fine timer grain costs the whole machine power, so only the end of a long sleep has it.
void WindowsMessagePump::SleepUntil(Moment end) {
  open_.ShowChanges();
  const Moment time = end - Now();
  if (time <= 0ms) return;
  if (time >= kLongSleep) {
    PaintUntil(end - kCoarseEnd);
  } else if (time > 2 * kCoarseEnd) {
    ::Sleep(Milliseconds(time - kCoarseEnd));
  }
  const FineTimer fine(multimedia_);
  for (Moment left = end - Now(); left > 0ms; left = end - Now()) ::Sleep(Milliseconds(left));
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
  open_.ShowChanges();
  if (NativeWindow* const active = open_.Find(GetActiveWindow())) active->Settle();
}

}  // namespace platform::windows
