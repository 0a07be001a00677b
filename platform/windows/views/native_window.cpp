#include "platform/windows/views/native_window.h"

#include <algorithm>
#include <utility>

#include "platform/windows/api/wide_text.h"
#include "platform/windows/views/frame_place.h"
#include "ui/access_keys.h"

namespace platform::windows {
namespace {

// Of Windows 8.1 and later.
constexpr UINT kDpiChanged = 0x02E0;

// What the user did beside ControlEvents, posted to the window itself.
enum WindowEvent : UINT {
  kMenuEvent = kControlEventsEnd,  // wparam: id of the item
  kHelpEvent,
  kCloseEvent,
  kWindowEventsEnd,
};

bool IsEvent(UINT message) {
  return message >= kClickEvent && message < kWindowEventsEnd;
}

// Nothing that a handler throws may cross the system's frames that called this: it ends here.
LRESULT CALLBACK WindowProcedure(HWND handle, UINT message, WPARAM wparam, LPARAM lparam) noexcept {
  auto* const window = reinterpret_cast<NativeWindow*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
  if (window == nullptr) return DefWindowProcW(handle, message, wparam, lparam);
  const OpenWindows& open = window->open();
  const LRESULT result = window->Dispatch(message, wparam, lparam);
  // A loop of the system's may have handed the event on: no message pump of ours comes next.
  if (IsEvent(message)) open.ShowChanges();
  return result;
}

HICON ProgramIcon(HINSTANCE instance, int width_metric, int height_metric) {
  return static_cast<HICON>(LoadImageW(instance, MAKEINTRESOURCEW(kIconResource), IMAGE_ICON,
                                       GetSystemMetrics(width_metric),
                                       GetSystemMetrics(height_metric), LR_SHARED));
}

bool MovesChoice(const MSG& message) {
  return message.message == WM_SYSCHAR || message.message == WM_CHAR ||
         (message.message == WM_KEYDOWN && message.wParam >= VK_LEFT && message.wParam <= VK_DOWN);
}

}  // namespace

void RegisterWindowClass(HINSTANCE instance) {
  WNDCLASSEXW window_class{};
  window_class.cbSize = sizeof(window_class);
  window_class.lpfnWndProc = WindowProcedure;
  window_class.hInstance = instance;
  window_class.hIcon = ProgramIcon(instance, SM_CXICON, SM_CYICON);
  window_class.hIconSm = ProgramIcon(instance, SM_CXSMICON, SM_CYSMICON);
  window_class.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  window_class.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_3DFACE + 1);
  window_class.lpszClassName = kWindowClass;
  RegisterClassExW(&window_class);
}

NativeWindow::NativeWindow(ui::Window& window, HINSTANCE instance, AccessibleTexts& texts,
                           OpenWindows& open)
    : window_(window),
      open_(open),
      appearance_(instance),
      menu_(window),
      controls_(window, appearance_, texts) {
  Create();
}

void NativeWindow::Create() {
  ShowAccessKeys();
  handle_ = CreateFrame(window_, menu_.handle(), appearance_);
  controls_.Create(handle_);
  // Access keys and the focus are shown from the start only to users of the keyboard.
  SendMessageW(handle_, WM_CHANGEUISTATE, MAKEWPARAM(UIS_INITIALIZE, 0), 0);
  SetWindowLongPtrW(handle_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  open_.Add(*this);
}

NativeWindow::~NativeWindow() {
  open_.Remove(*this);
  SetWindowLongPtrW(handle_, GWLP_USERDATA, 0);
  open_.Leave(handle_);
}

void NativeWindow::ShowWindow(bool visible) {
  const int show = TakesFocus() ? SW_SHOWNORMAL : SW_SHOWNOACTIVATE;
  const bool again = visible && IsWindowVisible(handle_);
  ShowChanges();
  ::ShowWindow(handle_, visible ? show : SW_HIDE);
  if (again && TakesFocus()) SetForegroundWindow(handle_);
  if (visible) open_.ForgetLeft();
}

bool NativeWindow::CanBeSeen(const ui::Control& control) const {
  const auto index = controls_.IndexOf(&control);
  return index && *index < controls_.Count() && IsShown() && !IsIconic(handle_) &&
         seen_area_.Shows(handle_, controls_.handle(*index));
}

void NativeWindow::CaptionChanged() {
  SetWindowTextW(handle_, Widen(window_.Caption()).c_str());
  controls_.WindowCaptionChanged();
}

void NativeWindow::Changed(const ui::Control& control, ui::Property property) {
  controls_.Changed(control, property);
  if (property == ui::Property::kCaption) ShowAccessKeys();
}

void NativeWindow::Changed(const ui::MenuItem& item, ui::Property property) {
  menu_.Changed(item, property);
  const auto& bar = window_.Menu();
  if (std::find(bar.begin(), bar.end(), &item) == bar.end()) return;
  if (property == ui::Property::kCaption) ShowAccessKeys();
  menu_bar_changed_ = true;
}

void NativeWindow::ShowChanges() {
  controls_.ShowChanges();
  if (std::exchange(menu_bar_changed_, false)) DrawMenuBar(handle_);
}

void NativeWindow::ReadFields() {
  controls_.ReadFields();
}

void NativeWindow::ShowAccessKeys() {
  std::vector<std::string> captions = menu_.BarCaptions();
  const auto bar_count = static_cast<std::ptrdiff_t>(captions.size());
  const std::vector<std::string> key_captions = controls_.KeyCaptions();
  captions.insert(captions.end(), key_captions.begin(), key_captions.end());
  const std::vector<std::string> marked = ui::WithAccessKeys(captions);
  menu_.SetBarCaptions({marked.begin(), marked.begin() + bar_count});
  controls_.SetMarkedCaptions({marked.begin() + bar_count, marked.end()});
}

bool NativeWindow::TranslateKey(const OpenWindows& open, MSG& message) {
  const HWND root = GetAncestor(message.hwnd, GA_ROOT);
  if (open.Find(root) == nullptr) return false;
  if (message.message == WM_CHAR && !open.Find(root)->events_.AcceptsKey(message)) return true;
  if (message.message == WM_CHAR && open.Find(root)->events_.TakesKey(message)) return true;
  if (open.Find(root)->controls_.TranslateKey(message)) return true;
  const HWND focus = GetFocus();
  const bool moves_choice = MovesChoice(message);
  if (!IsDialogMessageW(root, &message)) return false;
  NativeWindow* const window = open.Find(root);
  if (window != nullptr && moves_choice && GetFocus() != focus) {
    window->events_.PostClickOfFocused(root);
  }
  return true;
}

LRESULT NativeWindow::Dispatch(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_COMMAND:
      OnCommand(LOWORD(wparam), HIWORD(wparam));
      return 0;
    case WM_HSCROLL:
      events_.OnScroll(handle_, reinterpret_cast<HWND>(lparam), LOWORD(wparam), HIWORD(wparam));
      return 0;
    case WM_HELP:
      PostMessageW(handle_, kHelpEvent, 0, 0);
      return TRUE;
    case WM_CLOSE:
      PostMessageW(handle_, kCloseEvent, 0, 0);
      return 0;
    case kClickEvent:
      events_.RunClick(wparam);
      return 0;
    case kScrollEvent:
      events_.RunScroll(LOWORD(wparam), HIWORD(wparam), static_cast<std::int32_t>(lparam));
      return 0;
    case kWheelEvent:
      events_.RunWheel(wparam, static_cast<short>(LOWORD(lparam)), HIWORD(lparam));
      return 0;
    case kMenuEvent:
      RunMenu(static_cast<UINT>(wparam));
      return 0;
    case kChoiceEvent:
      events_.RunChoice(wparam);
      return 0;
    case kHelpEvent:
      window_.Handle([this] { window_.HelpRequested(); });
      return 0;
    case kCloseEvent:
      window_.Close();
      return 0;
    case WM_ENDSESSION:
      // The process may be ended as soon as this returns.
      if (wparam != FALSE) window_.SessionEnds();
      return 0;
    case WM_SIZE:
      if (wparam != SIZE_MINIMIZED) controls_.Fit(LOWORD(lparam), HIWORD(lparam));
      return 0;
    case WM_SETFOCUS:
      focus_.HandOn();
      return 0;
    case DM_GETDEFID:
      return DefaultButtonId();
    case WM_MOUSEWHEEL: {
      const POINT place{static_cast<short>(LOWORD(lparam)), static_cast<short>(HIWORD(lparam))};
      if (!events_.OnWheel(handle_, static_cast<short>(HIWORD(wparam)), place)) break;
      return 0;
    }
    case kDpiChanged: {
      const auto& suggested = *reinterpret_cast<const RECT*>(lparam);
      Refit({MonitorOf(suggested).work, LOWORD(wparam)}, &suggested);
      return 0;
    }
    case WM_SETTINGCHANGE:
    case WM_DISPLAYCHANGE:
      Refit(MonitorOf(handle_), nullptr);
      ShowColors(0, 0, 0);
      break;
    case WM_SYSCOLORCHANGE:
    case WM_THEMECHANGED:
      ShowColors(message, wparam, lparam);
      break;
    default:
      break;
  }
  return DefWindowProcW(handle_, message, wparam, lparam);
}

void NativeWindow::Refit(const Monitor& monitor, const RECT* suggested) {
  if (!RefitFrame(handle_, window_, monitor, suggested, appearance_)) return;
  controls_.Rearrange();
  RECT client{};
  GetClientRect(handle_, &client);
  controls_.Fit(client.right, client.bottom);
  RedrawWindow(handle_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

// The system tells only the window itself of new colours.
void NativeWindow::ShowColors(UINT message, WPARAM wparam, LPARAM lparam) {
  if (message == WM_SYSCOLORCHANGE) {
    for (std::size_t i = 0; i < controls_.Count(); ++i) {
      SendMessageW(controls_.handle(i), message, wparam, lparam);
    }
  }
  controls_.ShowColors(handle_);
  RedrawWindow(handle_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

LRESULT NativeWindow::DefaultButtonId() const {
  const ui::Button* const button = window_.DefaultButton();
  return button != nullptr ? MAKELRESULT(button->Id(), DC_HASDEFID) : 0;
}

void NativeWindow::OnCommand(UINT id, UINT code) {
  if (menu_.Find(id) != nullptr) {
    PostMessageW(handle_, kMenuEvent, id, 0);
  } else if (id == IDCANCEL) {
    const auto cancel = controls_.IndexOf(window_.CancelButton());
    if (cancel) events_.PostClick(handle_, *cancel);
  } else {
    events_.OnCommand(handle_, id, code);
  }
}

void NativeWindow::RunMenu(UINT id) {
  if (ui::MenuItem* const item = menu_.Find(id)) item->Click();
}

}  // namespace platform::windows
