// The kinds of controls.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "ui/canvas.h"
#include "ui/control.h"
#include "ui/scroll_bar.h"

namespace ui {

class Label : public Control {
 public:
  enum class Style {
    kNormal,
    kHeading,
    kPath,  // one line; a path that is too long is shortened in its middle
  };

  Label(Window& window, int id, std::string name, Rect bounds, std::string caption,
        Style style = Style::kNormal)
      : Control(window, id, ControlKind::kLabel, std::move(name), bounds, std::move(caption)),
        style_(style) {}

  Style style() const { return style_; }

 private:
  Style style_;
};

class Frame : public Control {
 public:
  Frame(Window& window, int id, std::string name, Rect bounds, std::string caption)
      : Control(window, id, ControlKind::kFrame, std::move(name), bounds, std::move(caption)) {}
};

class Button : public Control {
 public:
  Button(Window& window, int id, std::string name, Rect bounds, std::string caption)
      : Control(window, id, ControlKind::kButton, std::move(name), bounds, std::move(caption)) {}

  std::function<void()> OnClick;

  // What a user's click does.
  void Click() { Raise(OnClick); }
};

class OptionButton : public Control {
 public:
  OptionButton(Window& window, int id, std::string name, Rect bounds, std::string caption)
      : Control(window, id, ControlKind::kOptionButton, std::move(name), bounds,
                std::move(caption)) {}

  bool Value() const { return value_; }
  void SetValue(bool value);
  void Reset() override;

  std::function<void()> OnClick;

  // What a user's click does: the button is selected, then its handler runs.
  void Click();

 private:
  bool value_ = false;
};

class PictureBox : public Control {
 public:
  enum class Content { kCanvas, kProgramIcon };

  PictureBox(Window& window, int id, std::string name, Rect bounds,
             Content content = Content::kCanvas)
      : Control(window, id, ControlKind::kPictureBox, std::move(name), bounds, ""),
        content_(content),
        canvas_(bounds.width, bounds.height),
        next_(canvas_) {}

  Content content() const { return content_; }
  const Canvas& Picture() const { return canvas_; }

  // What the last drawing changed of the picture before it.
  const Canvas::Area& Changed() const { return changed_; }

  // Whether a new picture would be seen by anybody.
  bool CanBeSeen() const;

  // Draws a new picture, beginning with an empty canvas. It is shown when it is finished.
  void Draw(const std::function<void(Canvas&)>& draw);
  void Clear();

  // The view says how many pixels of the screen the box has; its picture has as many. The picture
  // is empty afterwards.
  void SetResolution(int width, int height);

  // The same while it is shown: the picture stays, coarsely scaled, until a new one is drawn.
  void ChangeResolution(int width, int height);

  void Reset() override;

 private:
  Content content_;
  Canvas canvas_;
  Canvas next_;  // of the same size: the place for the next picture
  Canvas::Area changed_;
};

class LineControl : public Control {
 public:
  LineControl(Window& window, int id, std::string name, Rect bounds)
      : Control(window, id, ControlKind::kLine, std::move(name), bounds, "") {}
};

class ListBox : public Control {
 public:
  ListBox(Window& window, int id, std::string name, Rect bounds)
      : Control(window, id, ControlKind::kListBox, std::move(name), bounds, "") {}

  const std::vector<std::string>& Items() const { return items_; }
  void SetItems(const std::vector<std::string>& items);
  void Reset() override;

 private:
  std::vector<std::string> items_;
};

// A field for text; its caption is the text.
class TextBox : public Control {
 public:
  enum class Lines { kOne, kMany };

  TextBox(Window& window, int id, std::string name, Rect bounds, std::string text,
          Lines lines = Lines::kOne)
      : Control(window, id, ControlKind::kTextBox, std::move(name), bounds, std::move(text)),
        lines_(lines) {}

  Lines lines() const { return lines_; }
  const std::string& Text() const { return Caption(); }
  void SetText(const std::string& text) { SetCaption(text); }

  // Whether a typed character (a Unicode code point) may enter the field; any may without it.
  std::function<bool(char32_t)> AcceptsKey;
  bool KeyPress(char32_t key);

  // What the user's editing does: the field holds `text` now. The view knows already.
  void Edit(const std::string& text);

  // The view knows of `text`, however it came there.
  void Take(const std::string& text) { StoreCaption(text); }

  // For a field whose first text is only there to be replaced by what the user types: when the
  // field is entered first, all of it is selected.
  void SelectAtFirstEntry() { selects_at_first_entry_ = true; }

  // Whether it would be now.
  bool SelectsAtEntry() const { return selects_at_first_entry_ && !entered_; }

  // The field gets the keyboard focus. Whether all of its text is to be selected.
  bool Enter();
  void Reset() override;

 private:
  Lines lines_;
  bool selects_at_first_entry_ = false;
  bool entered_ = false;
};

class CheckBox : public Control {
 public:
  CheckBox(Window& window, int id, std::string name, Rect bounds, std::string caption)
      : Control(window, id, ControlKind::kCheckBox, std::move(name), bounds, std::move(caption)) {}

  bool Value() const { return value_; }
  void SetValue(bool value);
  void Reset() override;

  std::function<void()> OnClick;

  // What a user's click does: the box changes, then its handler runs.
  void Click();

 private:
  bool value_ = false;
};

// A drop-down list, of whose items one is chosen or none.
class ComboBox : public Control {
 public:
  static constexpr int kNone = -1;

  ComboBox(Window& window, int id, std::string name, Rect bounds)
      : Control(window, id, ControlKind::kComboBox, std::move(name), bounds, "") {}

  const std::vector<std::string>& Items() const { return items_; }
  void SetItems(const std::vector<std::string>& items);  // none of them is chosen then

  // The index of the chosen item, or kNone.
  int ListIndex() const { return list_index_; }
  void SetListIndex(int index);
  void Reset() override;

  std::function<void()> OnClick;

  // What a user's choice does: the item is chosen, then the handler runs. A choice that changes
  // nothing is no event.
  void Choose(int index);

 private:
  bool IsChoice(int index) const;

  std::vector<std::string> items_;
  int list_index_ = kNone;
};

// A web browser; it shows nothing until it is sent to an address.
class WebBrowser : public Control {
 public:
  WebBrowser(Window& window, int id, std::string name, Rect bounds)
      : Control(window, id, ControlKind::kWebBrowser, std::move(name), bounds, "") {}

  // Whether it keeps script errors and other messages of its own to itself.
  bool Silent() const { return silent_; }
  void SetSilent(bool silent);

  const std::string& Address() const { return address_; }
  void Navigate(const std::string& address);
  void Reset() override;

  // Asked before a page is shown, in the midst of the browser's own work; where nothing answers,
  // none is shown. An address that is refused is told as one for a window of its own.
  std::function<bool(const std::string& address)> OnNavigate;
  bool MayNavigate(const std::string& address) const { return OnNavigate && OnNavigate(address); }

  // A page asks for a window of its own, which it does not get from the control.
  std::function<void(const std::string& address)> OnNewWindow;
  void AskForWindow(const std::string& address);

 private:
  bool silent_ = false;
  std::string address_;
};

// A status bar; its caption is the text of its first panel.
class StatusBar : public Control {
 public:
  StatusBar(Window& window, int id, std::string name, std::string caption)
      : Control(window, id, ControlKind::kStatusBar, std::move(name), Rect{}, std::move(caption)) {}
};

}  // namespace ui
