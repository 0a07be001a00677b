#include "platform/simulated/faulty_windows.h"

#include <utility>

#include "ui/window.h"

namespace platform::simulated {
namespace {

class FaultyView : public ui::WindowView {
 public:
  FaultyView(std::unique_ptr<ui::WindowView> real, const std::string& name, Calls& calls)
      : real_(std::move(real)), name_(name), calls_(calls) {}

  void ShowWindow(bool visible) override {
    calls_.Enter("windows.ShowWindow", name_);
    real_->ShowWindow(visible);
  }
  bool IsShown() const override {
    return !calls_.Next("windows.IsShown", name_) && real_->IsShown();
  }
  // Not counted: it cannot fail.
  bool CanBeSeen(const ui::Control& control) const override { return real_->CanBeSeen(control); }
  void CaptionChanged() override {
    calls_.Enter("windows.CaptionChanged", name_);
    real_->CaptionChanged();
  }
  void Changed(const ui::Control& control, ui::Property property) override {
    calls_.Enter("windows.Changed", name_ + "." + control.Name());
    real_->Changed(control, property);
  }
  void Changed(const ui::MenuItem& item, ui::Property property) override {
    calls_.Enter("windows.Changed", name_ + "." + item.Name());
    real_->Changed(item, property);
  }

  void ReadFields() override {
    calls_.Enter("windows.ReadFields", name_);
    real_->ReadFields();
  }

 private:
  std::unique_ptr<ui::WindowView> real_;
  const std::string& name_;
  Calls& calls_;
};

}  // namespace

std::unique_ptr<ui::WindowView> FaultyWindows::Open(ui::Window& window) {
  calls_.Enter("windows.Open", window.Name());
  return std::make_unique<FaultyView>(real_.Open(window), window.Name(), calls_);
}

}  // namespace platform::simulated
