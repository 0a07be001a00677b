#include "helpers/hearage/only_one.h"

#include <algorithm>
#include <array>
#include <string>

#include "hearing/texts.h"
#include "platform/windows/api/wide_text.h"
#include "platform/windows/views/frame_place.h"

namespace helpers {
namespace {

constexpr wchar_t kMark[] = L"Local\\TonmiraHearingAge";
constexpr int kLooks = 30;
constexpr DWORD kLookEvery = 100;  // ms

HWND FirstWindow() {
  for (const auto language : {hearing::Language::kEnglish, hearing::Language::kDutch}) {
    const std::wstring title = platform::windows::Widen(hearing::TextsOf(language).title);
    const HWND found = FindWindowW(platform::windows::kWindowClass, title.c_str());
    if (found != nullptr && IsWindowVisible(found)) return found;
  }
  return nullptr;
}

}  // namespace

OnlyOne::OnlyOne()
    : mark_(CreateMutexW(nullptr, FALSE, kMark)), taken_(GetLastError() == ERROR_ALREADY_EXISTS) {}

void OnlyOne::BringToFront() {
  for (int look = 0; look < kLooks; ++look) {
    if (const HWND window = FirstWindow()) {
      if (IsIconic(window)) ShowWindow(window, SW_RESTORE);
      SetForegroundWindow(window);
      return;
    }
    Sleep(kLookEvery);
  }
}

}  // namespace helpers
