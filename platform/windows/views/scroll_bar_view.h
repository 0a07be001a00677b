// A scroll bar's native window: how a value is shown and what the user's moves mean.
#pragma once

#include <cstdint>

#include "platform/windows/api/windows_api.h"
#include "ui/controls.h"

namespace platform::windows {

// Shows range and value. The thumb is as long as a large step; the whole range can be reached.
void ShowScrollValue(HWND handle, const ui::ScrollBar& scroll_bar);

// The thumb's position that a WM_HSCROLL message reports.
std::int32_t ThumbPosition(HWND handle, WORD position);

// Which key is held now, with a value that a message can carry.
WORD HeldNow();

// Whether a user's move `code` is a step to the next place, which a held key makes smaller.
bool IsStep(WORD code);

// Does what a user's move `code` (SB_LINELEFT, ...) asks for; `position` counts for moves of the
// thumb; for a step it is the key that was held.
void Scroll(ui::ScrollBar& scroll_bar, WORD code, std::int32_t position);

}  // namespace platform::windows
