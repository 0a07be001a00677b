#include "helpers/hearage/only_one.h"

#include <utility>

namespace helpers {
namespace {

constexpr wchar_t kMark[] = L"Local\\TonmiraHearingAge";
constexpr wchar_t kEar[] = L"TonmiraHearingAge";  // the title of the first one's message window
constexpr int kLooks = 30;
constexpr DWORD kLookEvery = 100;  // ms

}  // namespace

OnlyOne::OnlyOne()
    : mark_(CreateMutexW(nullptr, FALSE, kMark)), taken_(GetLastError() == ERROR_ALREADY_EXISTS) {}

void OnlyOne::Call() {
  for (int look = 0; look < kLooks; ++look) {
    if (const HWND ear = FindWindowExW(HWND_MESSAGE, nullptr, nullptr, kEar)) {
      // Whoever was started by the user may show itself; the first one may so only for this one.
      DWORD first = 0;
      GetWindowThreadProcessId(ear, &first);
      AllowSetForegroundWindow(first);
      PostMessageW(ear, WM_APP, 0, 0);
      return;
    }
    Sleep(kLookEvery);
  }
}

void OnlyOne::OnCall(std::function<void()> come) {
  ear_.emplace([come = std::move(come)](UINT) { come(); });
  SetWindowTextW(ear_->handle(), kEar);
}

}  // namespace helpers
