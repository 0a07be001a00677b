// What a window asks of the system that shows it.
#pragma once

#include <memory>

namespace ui {

class Control;
class MenuItem;
class Window;

// What of a control changed.
enum class Property {
  kCaption,
  kEnabled,
  kVisible,
  kValue,
  kItems,
  kPicture,
  kChecked,
  kSilent,
  kAddress,
  kSpokenName,
  kTip
};

// The native counterpart of a loaded window. It reads the portable objects; they tell it what
// changed. Destroying it takes the window off the screen.
class WindowView {
 public:
  virtual ~WindowView() = default;

  virtual void ShowWindow(bool visible) = 0;

  // Whether it is shown now: other programs can hide a window, too.
  virtual bool IsShown() const = 0;

  // Whether any of a control would be seen: its window is neither minimized nor wholly covered, as
  // far as the system tells.
  virtual bool CanBeSeen(const Control& control) const = 0;
  virtual void CaptionChanged() = 0;
  virtual void Changed(const Control& control, Property property) = 0;
  virtual void Changed(const MenuItem& item, Property property) = 0;

  // Gives the text boxes, check boxes and drop-down lists the values that stand on the screen: what
  // other programs put there, assistive ones for instance, comes without an event.
  virtual void ReadFields() = 0;
};

class WindowSystem {
 public:
  virtual ~WindowSystem() = default;

  // Makes the native counterpart of `window`, not yet visible.
  virtual std::unique_ptr<WindowView> Open(Window& window) = 0;
};

}  // namespace ui
