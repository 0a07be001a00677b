// A window's menu: named items with captions, check marks and submenus.
//
// An item's id is how other programs know it; heads of submenus and separators have one, too. It
// never changes: a new item, wherever it stands, takes the number after the greatest that an item
// of its window has or had, from 1000 to 1999.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ui/window_system.h"

namespace ui {

class MenuItem {
 public:
  // An item of the window's menu bar.
  MenuItem(Window& window, int id, std::string name, std::string caption);

  // An item of the submenu of `parent`. An item named "-" is a separator.
  MenuItem(MenuItem& parent, int id, std::string name, std::string caption);

  MenuItem(const MenuItem&) = delete;
  MenuItem& operator=(const MenuItem&) = delete;

  int Id() const { return id_; }
  const std::string& Name() const { return name_; }
  Window& Owner() const { return window_; }
  const std::vector<MenuItem*>& Items() const { return items_; }
  bool IsSeparator() const { return name_ == "-"; }

  const std::string& Caption() const { return caption_; }
  void SetCaption(const std::string& caption);

  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);

  bool Checked() const { return checked_; }
  void SetChecked(bool checked);

  // Back to the properties it was designed with. The view is not told.
  void Reset();

  std::function<void()> OnClick;

  // What a user's choice does; nothing when the item or a menu that holds it is disabled.
  void Click();

 private:
  void Tell(Property property);
  bool Reachable() const;

  Window& window_;
  MenuItem* parent_ = nullptr;
  int id_;
  std::string name_;
  std::string design_caption_;
  std::string caption_;
  bool enabled_ = true;
  bool checked_ = false;
  std::vector<MenuItem*> items_;
};

}  // namespace ui
