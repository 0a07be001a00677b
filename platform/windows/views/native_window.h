// The native counterpart of a loaded ui::Window: a top-level window of class "TonmiraWindow" with
// real controls and a real menu, which have the ids of their ui:: objects.
//
// What the user does is posted to the window itself as an event of its own and handled when the
// message pump comes to it, so a handler never runs inside a control's or a menu's own code: it may
// unload the window, let messages be processed or never return. Posted messages come before the
// input that follows them, so the order of what the user does is kept.
#pragma once

#include "platform/windows/views/appearance.h"
#include "platform/windows/views/control_events.h"
#include "platform/windows/views/focus_keeper.h"
#include "platform/windows/views/native_controls.h"
#include "platform/windows/views/native_menu.h"
#include "platform/windows/views/open_windows.h"
#include "platform/windows/views/seen_area.h"
#include "ui/window.h"

namespace platform::windows {

void RegisterWindowClass(HINSTANCE instance);

class NativeWindow final : public ui::WindowView {
 public:
  NativeWindow(ui::Window& window, HINSTANCE instance, AccessibleTexts& texts, OpenWindows& open);
  ~NativeWindow() override;
  NativeWindow(const NativeWindow&) = delete;
  NativeWindow& operator=(const NativeWindow&) = delete;

  HWND handle() const { return handle_; }
  bool Visible() const { return window_.Visible(); }
  bool TakesFocus() const { return window_.design().takes_focus; }

  void ShowWindow(bool visible) override;
  bool IsShown() const override { return IsWindowVisible(handle_) != FALSE; }
  bool CanBeSeen(const ui::Control& control) const override;
  void CaptionChanged() override;
  void Changed(const ui::Control& control, ui::Property property) override;
  void Changed(const ui::MenuItem& item, ui::Property property) override;
  void ReadFields() override;

  // Handles a keyboard message as a dialog does (Tab, arrows, Enter, Esc, access keys). Returns
  // whether that was all. The window may be gone when it returns.
  static bool TranslateKey(const OpenWindows& open, MSG& message);

  // Puts on the screen what Changed has left for later. Called when a handler waits or has ended:
  // drawing takes as long as starting a tone, and nobody uses a control before.
  void ShowChanges();

  // Called between messages while the window is the active one.
  void Settle() { focus_.Settle(handle_); }

  OpenWindows& open() const { return open_; }

  LRESULT Dispatch(UINT message, WPARAM wparam, LPARAM lparam);

 private:
  void Create();
  void ShowAccessKeys();
  LRESULT DefaultButtonId() const;

  // Lays the window out anew where `monitor` or the system's fonts are others than before.
  void Refit(const Monitor& monitor, const RECT* suggested);
  void ShowColors(UINT message, WPARAM wparam, LPARAM lparam);

  void OnCommand(UINT id, UINT code);
  void RunMenu(UINT id);

  ui::Window& window_;
  OpenWindows& open_;
  Appearance appearance_;
  NativeMenu menu_;
  NativeControls controls_;
  ControlEvents events_{controls_};
  FocusKeeper focus_{window_, controls_};
  HWND handle_ = nullptr;
  bool menu_bar_changed_ = false;
  mutable SeenArea seen_area_;
};

}  // namespace platform::windows
