#include "ui/menu.h"

#include <utility>

#include "ui/window.h"

namespace ui {

MenuItem::MenuItem(Window& window, int id, std::string name, std::string caption)
    : window_(window),
      id_(id),
      name_(std::move(name)),
      design_caption_(std::move(caption)),
      caption_(design_caption_) {
  window.Add(*this);
}

MenuItem::MenuItem(MenuItem& parent, int id, std::string name, std::string caption)
    : window_(parent.window_),
      parent_(&parent),
      id_(id),
      name_(std::move(name)),
      design_caption_(std::move(caption)),
      caption_(design_caption_) {
  parent.items_.push_back(this);
}

void MenuItem::SetCaption(const std::string& caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  Tell(Property::kCaption);
}

void MenuItem::SetEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  Tell(Property::kEnabled);
}

void MenuItem::SetChecked(bool checked) {
  if (checked_ == checked) return;
  checked_ = checked;
  Tell(Property::kChecked);
}

void MenuItem::Reset() {
  caption_ = design_caption_;
  enabled_ = true;
  checked_ = false;
  for (MenuItem* item : items_) item->Reset();
}

void MenuItem::Click() {
  if (OnClick && Reachable()) window_.Handle(OnClick);
}

void MenuItem::Tell(Property property) {
  if (WindowView* view = window_.View()) view->Changed(*this, property);
}

bool MenuItem::Reachable() const {
  return enabled_ && (parent_ == nullptr || parent_->Reachable());
}

}  // namespace ui
