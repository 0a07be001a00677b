// What the user does with the controls of one window, told by the system, posted to the window as
// an event of its own (see NativeWindow) and run when that arrives.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/windows/views/native_controls.h"

namespace platform::windows {

// Posted messages; `index` is the control's.
enum ControlEvent : UINT {
  kClickEvent = WM_APP,  // wparam: index
  kScrollEvent,          // wparam: index and scroll code, lparam: position, or key held for a step
  kWheelEvent,           // wparam: index, lparam: amount and key held
  kChoiceEvent,          // wparam: index of the drop-down list
  kControlEventsEnd,
};

class ControlEvents {
 public:
  explicit ControlEvents(const NativeControls& controls) : controls_(controls) {}

  // What the system tells of the controls of `window`: WM_COMMAND and WM_HSCROLL.
  void OnCommand(HWND window, UINT id, UINT code);
  void OnScroll(HWND window, HWND scroll_bar, WORD code, WORD position);

  // The wheel was turned over `window`, with the pointer at a place of the screen. Whether a
  // control of the window takes it.
  bool OnWheel(HWND window, short amount, POINT place) const;

  // Whether the typed character may enter the control that it is for.
  bool AcceptsKey(const MSG& message) const;

  // Hands a typed character to a scroll bar; true when that was all. The window may be gone then.
  bool TakesKey(const MSG& message) const;

  void PostClick(HWND window, std::size_t index);
  // The user moved to an option button by keys, which chooses it.
  void PostClickOfFocused(HWND window);

  // Run what was posted. The window may be gone when they return.
  void RunClick(std::size_t index);
  void RunChoice(std::size_t index) const;
  void RunScroll(std::size_t index, WORD code, std::int32_t position) const;
  void RunWheel(std::size_t index, short amount, WORD held) const;

 private:
  bool IsKind(std::size_t index, ui::ControlKind kind) const;
  void TakeText(std::size_t index) const;

  const NativeControls& controls_;
  std::optional<std::size_t> pending_choice_;  // an option button whose click is posted
};

}  // namespace platform::windows
