// A window as a plain object: its controls, its menu, its life.
//
// A window is not loaded, loaded (hidden) or visible. Loading puts every control back to its
// design, opens the native view and runs Form_Load; unloading runs Form_Unload and drops the view.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "base/errors.h"
#include "ui/control.h"
#include "ui/controls.h"
#include "ui/menu.h"
#include "ui/window_system.h"

namespace ui {

class Window {
 public:
  struct Design {
    std::string name;
    std::string caption;
    int width = 0;  // client area, pixels at 96 DPI
    int height = 0;
    bool takes_focus = true;  // false: only to be looked at, showing it leaves the focus alone
    bool sizable = false;     // true: its web browser fills it, whatever size the user gives it
  };

  Window(WindowSystem& system, Design design);
  virtual ~Window() = default;
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;

  const Design& design() const { return design_; }
  const std::string& Name() const { return design_.name; }
  const std::vector<Control*>& Controls() const { return controls_; }
  const std::vector<MenuItem*>& Menu() const { return menu_; }
  WindowView* View() const { return view_.get(); }

  const std::string& Caption() const { return caption_; }
  void SetCaption(const std::string& caption);

  // The button that Enter presses and the one that Esc presses, or null.
  Button* DefaultButton() const { return default_button_; }
  Button* CancelButton() const { return cancel_button_; }

  bool Loaded() const { return view_ != nullptr; }
  bool Visible() const { return visible_; }

  // Visible, and not hidden by another program either.
  bool OnScreen() const { return visible_ && view_->IsShown(); }

  void Load();
  // Loads it first where needed; a visible window comes to the front.
  void Show();
  virtual void Hide();
  void Unload();

  // Before fields are used: takes over what stands in them on the screen.
  void ReadFields();

  // The user closes the window by its frame.
  virtual void Close();

  // The user asks for help (F1).
  virtual void HelpRequested() {}

  // Runs a user's event. A run-time error that no handler traps goes to OnUntrappedError.
  void Handle(const std::function<void()>& event);
  std::function<void(const base::RuntimeError&)> OnUntrappedError;

  // The user logs off or the system shuts down: the process may be ended as soon as this returns.
  void SessionEnds();
  std::function<void()> OnSessionEnd;

  void Add(Control& control) { controls_.push_back(&control); }
  void Add(MenuItem& item) { menu_.push_back(&item); }

 protected:
  virtual void DesignState() {}  // what differs from the controls' own defaults
  virtual void Form_Load() {}
  virtual void Form_Unload() {}

  void SetDefaultButton(Button* button) { default_button_ = button; }
  void SetCancelButton(Button* button) { cancel_button_ = button; }

 private:
  WindowSystem& system_;
  Design design_;
  std::string caption_;
  std::vector<Control*> controls_;
  std::vector<MenuItem*> menu_;
  Button* default_button_ = nullptr;
  Button* cancel_button_ = nullptr;
  bool visible_ = false;
  std::unique_ptr<WindowView> view_;
};

}  // namespace ui
