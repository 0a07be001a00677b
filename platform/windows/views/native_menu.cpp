#include "platform/windows/views/native_menu.h"

#include <algorithm>

#include "platform/windows/api/wide_text.h"
#include "ui/access_keys.h"

namespace platform::windows {
namespace {

std::vector<std::string> CaptionsOf(const std::vector<ui::MenuItem*>& items) {
  std::vector<std::string> captions;
  captions.reserve(items.size());
  for (const ui::MenuItem* item : items) {
    captions.push_back(item->IsSeparator() ? std::string() : item->Caption());
  }
  return captions;
}

MENUITEMINFOW EmptyInfo(UINT mask) {
  MENUITEMINFOW info{};
  info.cbSize = sizeof(info);
  info.fMask = mask;
  return info;
}

}  // namespace

NativeMenu::NativeMenu(const ui::Window& window) : window_(window) {
  const auto& items = window.Menu();
  if (!items.empty()) bar_ = Fill(CreateMenu(), items, CaptionsOf(items));
}

HMENU NativeMenu::Fill(HMENU menu, const std::vector<ui::MenuItem*>& items,
                       const std::vector<std::string>& texts) {
  for (std::size_t i = 0; i < items.size(); ++i) {
    const ui::MenuItem& item = *items[i];
    const Entry entry{items[i], menu, static_cast<UINT>(i)};
    MENUITEMINFOW info = EmptyInfo(MIIM_ID | MIIM_FTYPE | MIIM_STRING | MIIM_SUBMENU);
    info.wID = static_cast<UINT>(item.Id());
    entries_.push_back(entry);
    if (item.IsSeparator()) {
      info.fMask = MIIM_ID | MIIM_FTYPE;
      info.fType = MFT_SEPARATOR;
    }
    std::wstring text = Widen(texts[i]);
    info.dwTypeData = text.data();
    if (!item.Items().empty()) {
      info.hSubMenu =
          Fill(CreatePopupMenu(), item.Items(), ui::WithAccessKeys(CaptionsOf(item.Items())));
    }
    InsertMenuItemW(menu, entry.position, TRUE, &info);
    ShowState(entry);
  }
  return menu;
}

ui::MenuItem* NativeMenu::Find(UINT id) const {
  const auto found = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) {
    return static_cast<UINT>(entry.item->Id()) == id;
  });
  return found == entries_.end() ? nullptr : found->item;
}

std::vector<std::string> NativeMenu::BarCaptions() const {
  return CaptionsOf(window_.Menu());
}

void NativeMenu::SetBarCaptions(const std::vector<std::string>& marked) {
  SetTexts(window_.Menu(), marked);
}

void NativeMenu::Changed(const ui::MenuItem& item, ui::Property property) {
  const Entry* const entry = EntryOf(item);
  if (entry == nullptr) return;
  if (property != ui::Property::kCaption) {
    ShowState(*entry);
    return;
  }
  for (const Entry& parent : entries_) {
    const auto& items = parent.item->Items();
    if (std::find(items.begin(), items.end(), &item) == items.end()) continue;
    SetTexts(items, ui::WithAccessKeys(CaptionsOf(items)));
  }
}

const NativeMenu::Entry* NativeMenu::EntryOf(const ui::MenuItem& item) const {
  const auto found = std::find_if(entries_.begin(), entries_.end(),
                                  [&](const Entry& entry) { return entry.item == &item; });
  return found == entries_.end() ? nullptr : &*found;
}

void NativeMenu::SetTexts(const std::vector<ui::MenuItem*>& items,
                          const std::vector<std::string>& marked) {
  for (std::size_t i = 0; i < items.size(); ++i) {
    const Entry* const entry = EntryOf(*items[i]);
    if (entry == nullptr || items[i]->IsSeparator()) continue;
    std::wstring text = Widen(marked[i]);
    MENUITEMINFOW info = EmptyInfo(MIIM_STRING);
    info.dwTypeData = text.data();
    SetMenuItemInfoW(entry->menu, entry->position, TRUE, &info);
  }
}

void NativeMenu::ShowState(const Entry& entry) const {
  MENUITEMINFOW info = EmptyInfo(MIIM_STATE);
  info.fState = (entry.item->Enabled() ? UINT{MFS_ENABLED} : UINT{MFS_GRAYED}) |
                (entry.item->Checked() ? UINT{MFS_CHECKED} : UINT{MFS_UNCHECKED});
  SetMenuItemInfoW(entry.menu, entry.position, TRUE, &info);
}

}  // namespace platform::windows
