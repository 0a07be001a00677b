// What a screen reader calls a control.
#pragma once

#include <string>

#include "ui/control.h"

namespace ui {

// The name that the control was given; else its caption; a field or a list, whose caption is no
// name, has that of the label before it. Nothing for a line, which only decorates.
std::string SpokenNameOf(const Control& control);

// Whether the control shows its own caption, so that a screen reader finds it without being told.
bool ShowsCaption(const Control& control);

}  // namespace ui
