// A control of a window: its properties and where it stands.
//
// Properties set from code never come back as a user's event. Positions are pixels at 96 DPI,
// relative to the window's client area; the native view scales them.
//
// A control's id is how other programs (screen readers' scripts, test drivers) know it, so it never
// changes and is never given to another control. A new control, wherever it stands in the tab
// order, takes the number after the greatest that a control of its window has or had: 100 to 999
// are for controls, 1000 and above for menu items (menu.h). tests/app/ids_test.cpp checks both.
#pragma once

#include <functional>
#include <string>

#include "ui/window_system.h"

namespace ui {

struct Rect {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
};

enum class ControlKind {
  kLabel,
  kFrame,
  kButton,
  kOptionButton,
  kScrollBar,
  kPictureBox,
  kLine,
  kListBox,
  kTextBox,
  kCheckBox,
  kComboBox,
  kStatusBar,
  kProgressBar,
  kWebBrowser,
};

class Control {
 public:
  // Controls of a window stand in its tab order in the order in which they are made.
  Control(Window& window, int id, ControlKind kind, std::string name, Rect bounds,
          std::string caption);
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  int Id() const { return id_; }
  ControlKind kind() const { return kind_; }
  const std::string& Name() const { return name_; }
  const Rect& Bounds() const { return bounds_; }
  Window& Owner() const { return window_; }

  // Begins a new group: the arrow keys move within a group, the tab key between groups.
  bool StartsGroup() const { return starts_group_; }
  void StartGroup() { starts_group_ = true; }

  const std::string& Caption() const { return caption_; }
  void SetCaption(const std::string& caption);

  // What a screen reader calls it in place of its caption (spoken_name.h), and what the tool tip
  // over it says. Empty: nothing of its own, no tool tip.
  const std::string& SpokenName() const { return spoken_name_.text; }
  void SetSpokenName(const std::string& name);
  const std::string& Tip() const { return tip_.text; }
  void SetTip(const std::string& tip);

  // The ones that it has in the language of the design.
  void DesignSpokenName(const std::string& name) { spoken_name_ = {name, name}; }
  void DesignTip(const std::string& tip) { tip_ = {tip, tip}; }

  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);

  bool Visible() const { return visible_; }
  void SetVisible(bool visible);

  // Back to the properties it was designed with. The view is not told.
  virtual void Reset();

 protected:
  void Tell(Property property);

  // As SetCaption, but the view is not told.
  void StoreCaption(const std::string& caption) { caption_ = caption; }

  // Runs a user's event of this control; nothing happens while it is disabled or hidden.
  void Raise(const std::function<void()>& handler);

 private:
  struct Text {
    std::string design;
    std::string text;
  };

  Window& window_;
  int id_;
  ControlKind kind_;
  std::string name_;
  Rect bounds_;
  std::string design_caption_;
  std::string caption_;
  Text spoken_name_;
  Text tip_;
  bool starts_group_ = false;
  bool enabled_ = true;
  bool visible_ = true;
};

}  // namespace ui
