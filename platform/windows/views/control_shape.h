// Which native control stands for a ui::Control, by its kind and style.
#pragma once

#include "platform/windows/api/windows_api.h"
#include "ui/controls.h"

namespace platform::windows {

struct Shape {
  const wchar_t* window_class;
  DWORD style;
  DWORD extended_style;
  bool has_text;  // shows text in the message font
};

Shape ShapeOf(const ui::Control& control);

bool IsOption(const ui::Control& control);
bool IsPath(const ui::Control& control);
bool HasAccessKey(const ui::Control& control);

}  // namespace platform::windows
