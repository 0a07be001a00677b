// The child windows of one native window: real controls of the system, one for each ui::Control.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/windows/views/accessible_texts.h"
#include "platform/windows/views/appearance.h"
#include "platform/windows/views/option_button_view.h"
#include "platform/windows/views/tab_groups.h"
#include "platform/windows/views/text_entry_view.h"
#include "platform/windows/views/tool_tip.h"
#include "platform/windows/web/web_browser_view.h"
#include "ui/window.h"

namespace platform::windows {

class NativeControls {
 public:
  NativeControls(const ui::Window& window, const Appearance& appearance, AccessibleTexts& texts);
  ~NativeControls();
  NativeControls(const NativeControls&) = delete;
  NativeControls& operator=(const NativeControls&) = delete;

  // Makes all of them. The parent destroys them.
  void Create(HWND parent);

  std::size_t Count() const { return handles_.size(); }
  HWND handle(std::size_t index) const { return handles_[index]; }
  ui::Control& control(std::size_t index) const { return *window_.Controls()[index]; }

  // The control that is this window, or the web browser that holds it.
  std::optional<std::size_t> IndexOf(HWND handle) const;
  std::optional<std::size_t> IndexOf(const ui::Control* control) const;

  // The control with this id, when it is made.
  std::optional<std::size_t> IndexOfId(UINT id) const;

  // Whether the keyboard focus may be there, and whether the tab key stops there.
  bool CanHaveFocus(std::size_t index) const;
  bool IsTabStop(std::size_t index) const;

  // Whether a click that the control reports now comes of its getting the focus.
  bool TakingFocus(std::size_t index) const;

  // Captions of the controls that have access keys, and how they are marked, in tab order. The
  // marked ones may be given before the controls are made.
  std::vector<std::string> KeyCaptions() const;
  void SetMarkedCaptions(const std::vector<std::string>& marked);

  // Which controls can be used is shown by ShowChanges, all else at once.
  void Changed(const ui::Control& control, ui::Property property);
  void ShowChanges() {
    if (std::exchange(enabling_changed_, false)) ShowEnabled(window_.Controls(), handles_);
  }

  // ui::WindowView::ReadFields for all of them.
  void ReadFields() const;

  // The appearance, the system's colours or the visual style changed.
  void Rearrange();
  void ShowColors(HWND parent);

  // The window's own caption changed, which names its web browser.
  void WindowCaptionChanged();

  // The parent has a new size.
  void Fit(int width, int height);

  // Offers a keyboard message to the web browser that holds the focus; true when that was all.
  bool TranslateKey(MSG& message);

 private:
  WebBrowserView* BrowserAt(std::size_t index) const;
  HWND CreateOne(HWND parent, std::size_t index);
  std::wstring Text(std::size_t index) const;
  void AddView(HWND parent, std::size_t index);
  void ShowCaption(std::size_t index);
  void ShowName(std::size_t index);
  void ShowTip(std::size_t index);
  void ShowValueOf(std::size_t index);
  void ShowVisible(std::size_t index);

  const ui::Window& window_;
  const Appearance& appearance_;
  AccessibleTexts& texts_;
  bool plain_ = false;
  bool enabling_changed_ = false;
  std::vector<HWND> handles_;
  std::vector<std::unique_ptr<OptionButtonView>> option_views_;
  std::vector<std::unique_ptr<TextEntryView>> entry_views_;
  std::map<std::size_t, std::unique_ptr<ToolTip>> tips_;  // by index
  std::vector<std::unique_ptr<WebBrowserView>> browser_views_;
  std::vector<std::string> marked_captions_;  // by index; empty for controls without access keys
};

}  // namespace platform::windows
