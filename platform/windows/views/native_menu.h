// A window's menu as a real menu of the system.
#pragma once

#include <string>
#include <vector>

#include "platform/windows/api/windows_api.h"
#include "ui/window.h"

namespace platform::windows {

class NativeMenu {
 public:
  explicit NativeMenu(const ui::Window& window);
  NativeMenu(const NativeMenu&) = delete;
  NativeMenu& operator=(const NativeMenu&) = delete;

  // Null when the window has no menu. The window that it is given to owns it.
  HMENU handle() const { return bar_; }

  // The item with this id, or null.
  ui::MenuItem* Find(UINT id) const;

  // Captions of the menu bar, and how they are marked with access keys.
  std::vector<std::string> BarCaptions() const;
  void SetBarCaptions(const std::vector<std::string>& marked);

  // Shows a changed property other than a menu bar's caption.
  void Changed(const ui::MenuItem& item, ui::Property property);

 private:
  struct Entry {
    ui::MenuItem* item;
    HMENU menu;
    UINT position;
  };

  HMENU Fill(HMENU menu, const std::vector<ui::MenuItem*>& items,
             const std::vector<std::string>& texts);
  const Entry* EntryOf(const ui::MenuItem& item) const;
  void SetTexts(const std::vector<ui::MenuItem*>& items, const std::vector<std::string>& marked);
  void ShowState(const Entry& entry) const;

  const ui::Window& window_;
  HMENU bar_ = nullptr;
  std::vector<Entry> entries_;
};

}  // namespace platform::windows
