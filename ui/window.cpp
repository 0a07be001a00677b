#include "ui/window.h"

#include <new>
#include <optional>
#include <utility>

namespace ui {

Window::Window(WindowSystem& system, Design design)
    : system_(system), design_(std::move(design)), caption_(design_.caption) {}

void Window::SetCaption(const std::string& caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  if (view_) view_->CaptionChanged();
}

void Window::Load() {
  if (Loaded()) return;
  caption_ = design_.caption;
  for (Control* control : controls_) control->Reset();
  for (MenuItem* item : menu_) item->Reset();
  DesignState();
  view_ = system_.Open(*this);
  Form_Load();
}

void Window::Show() {
  Load();
  if (!Loaded()) return;  // loading it has unloaded it
  visible_ = true;
  view_->ShowWindow(true);
}

void Window::Hide() {
  if (!visible_) return;
  visible_ = false;
  view_->ShowWindow(false);
}

void Window::Unload() {
  if (!Loaded()) return;
  Form_Unload();
  visible_ = false;
  view_.reset();
}

void Window::ReadFields() {
  if (view_) view_->ReadFields();
}

void Window::Close() {
  Handle([this] { Unload(); });
}

void Window::SessionEnds() {
  if (OnSessionEnd) OnSessionEnd();
}

void Window::Handle(const std::function<void()>& event) {
  std::optional<base::RuntimeError> untrapped;
  try {
    event();
  } catch (const base::RuntimeError& error) {
    untrapped = error;
  } catch (const std::bad_alloc&) {
    untrapped = base::RuntimeError(base::ErrorCode::kOutOfMemory);
  }
  if (untrapped && OnUntrappedError) OnUntrappedError(*untrapped);
}

}  // namespace ui
