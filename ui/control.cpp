#include "ui/control.h"

#include <utility>

#include "ui/window.h"

namespace ui {

Control::Control(Window& window, int id, ControlKind kind, std::string name, Rect bounds,
                 std::string caption)
    : window_(window),
      id_(id),
      kind_(kind),
      name_(std::move(name)),
      bounds_(bounds),
      design_caption_(std::move(caption)),
      caption_(design_caption_) {
  window.Add(*this);
}

void Control::SetCaption(const std::string& caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  Tell(Property::kCaption);
}

void Control::SetSpokenName(const std::string& name) {
  if (spoken_name_.text == name) return;
  spoken_name_.text = name;
  Tell(Property::kSpokenName);
}

void Control::SetTip(const std::string& tip) {
  if (tip_.text == tip) return;
  tip_.text = tip;
  Tell(Property::kTip);
}

void Control::SetEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  Tell(Property::kEnabled);
}

void Control::SetVisible(bool visible) {
  if (visible_ == visible) return;
  visible_ = visible;
  Tell(Property::kVisible);
}

void Control::Reset() {
  caption_ = design_caption_;
  spoken_name_.text = spoken_name_.design;
  tip_.text = tip_.design;
  enabled_ = true;
  visible_ = true;
}

void Control::Tell(Property property) {
  if (WindowView* view = window_.View()) view->Changed(*this, property);
}

void Control::Raise(const std::function<void()>& handler) {
  if (handler && enabled_ && visible_) window_.Handle(handler);
}

}  // namespace ui
