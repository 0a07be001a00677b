#include "platform/simulated/windows.h"

#include "base/errors.h"
#include "ui/progress_bar.h"
#include "ui/window.h"

namespace platform::simulated {
namespace {

std::string YesNo(bool value) {
  return value ? "yes" : "no";
}

std::string ValueOf(const ui::Control& control) {
  if (const auto* option = dynamic_cast<const ui::OptionButton*>(&control)) {
    return YesNo(option->Value());
  }
  if (const auto* scroll_bar = dynamic_cast<const ui::ScrollBar*>(&control)) {
    return std::to_string(scroll_bar->Value());
  }
  if (const auto* combo_box = dynamic_cast<const ui::ComboBox*>(&control)) {
    return std::to_string(combo_box->ListIndex());
  }
  if (const auto* bar = dynamic_cast<const ui::ProgressBar*>(&control)) {
    return std::to_string(bar->Value()) + " of " + std::to_string(bar->Maximum());
  }
  return "?";
}

std::string Describe(const ui::Control& control, ui::Property property) {
  switch (property) {
    case ui::Property::kCaption:
      return " caption: " + control.Caption();
    case ui::Property::kEnabled:
      return " enabled: " + YesNo(control.Enabled());
    case ui::Property::kVisible:
      return " visible: " + YesNo(control.Visible());
    case ui::Property::kValue:
      return " value: " + ValueOf(control);
    case ui::Property::kItems:
      return " items";
    case ui::Property::kPicture:
      return " picture";
    case ui::Property::kChecked:
      return " checked";
    case ui::Property::kSpokenName:
      return " spoken name: " + control.SpokenName();
    case ui::Property::kTip:
      return " tip: " + control.Tip();
    case ui::Property::kSilent:
      return " silent: " + YesNo(dynamic_cast<const ui::WebBrowser&>(control).Silent());
    case ui::Property::kAddress:
      return " address: " + dynamic_cast<const ui::WebBrowser&>(control).Address();
  }
  return "";
}

std::string Describe(const ui::MenuItem& item, ui::Property property) {
  switch (property) {
    case ui::Property::kCaption:
      return " caption: " + item.Caption();
    case ui::Property::kEnabled:
      return " enabled: " + YesNo(item.Enabled());
    default:
      return " checked: " + YesNo(item.Checked());
  }
}

}  // namespace

class JournalView : public ui::WindowView {
 public:
  JournalView(Windows& windows, ui::Window& window) : windows_(windows), window_(window) {
    Note(" loaded");
    ++windows_.open_views_;
  }

  ~JournalView() override {
    windows_.visible_.erase(window_.Name());
    --windows_.open_views_;
    windows_.journal_.Add(Kind::kWindow, window_.Name() + " unloaded");
  }

  void ShowWindow(bool visible) override {
    Note(visible ? " shown" : " hidden");
    if (visible) {
      windows_.visible_.insert(window_.Name());
    } else {
      windows_.visible_.erase(window_.Name());
    }
  }

  bool IsShown() const override {
    return windows_.visible_.contains(window_.Name()) &&
           !windows_.hidden_by_others.contains(window_.Name());
  }

  bool CanBeSeen(const ui::Control& control) const override {
    return IsShown() && control.Visible() && !windows_.out_of_sight.contains(window_.Name());
  }

  void CaptionChanged() override { Note(" caption: " + window_.Caption()); }

  void Changed(const ui::Control& control, ui::Property property) override {
    windows_.Tell(property == ui::Property::kPicture ? Kind::kPicture : Kind::kControl,
                  window_.Name() + "." + control.Name() + Describe(control, property));
  }

  void Changed(const ui::MenuItem& item, ui::Property property) override {
    windows_.Tell(Kind::kControl, window_.Name() + "." + item.Name() + Describe(item, property));
  }

  void ReadFields() override {
    for (ui::Control* control : window_.Controls()) {
      const auto put = windows_.put_by_others.find(window_.Name() + "." + control->Name());
      if (put != windows_.put_by_others.end()) Take(*control, put->second);
    }
  }

 private:
  static void Take(ui::Control& control, const std::string& value) {
    if (auto* box = dynamic_cast<ui::TextBox*>(&control)) box->Take(value);
    if (auto* box = dynamic_cast<ui::CheckBox*>(&control)) box->SetValue(value == "yes");
    if (auto* box = dynamic_cast<ui::ComboBox*>(&control)) box->SetListIndex(std::stoi(value));
  }

  void Note(const std::string& what) { windows_.Tell(Kind::kWindow, window_.Name() + what); }

  Windows& windows_;
  ui::Window& window_;
};

std::unique_ptr<ui::WindowView> Windows::Open(ui::Window& window) {
  return std::make_unique<JournalView>(*this, window);
}

void Windows::Tell(Kind kind, const std::string& text) {
  if (refused_.erase(text) != 0) throw base::RuntimeError(base::ErrorCode::kOutOfMemory);
  journal_.Add(kind, text);
}

}  // namespace platform::simulated
