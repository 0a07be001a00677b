// The native window class of picture boxes. A window of it copies the picture of a ui::PictureBox
// (given as its creation parameter) to the screen, whole and without erasing first, and leaves out
// the lines that stand over it.
#pragma once

#include "platform/windows/api/windows_api.h"
#include "ui/controls.h"

namespace platform::windows {

inline constexpr wchar_t kPictureClass[] = L"TonmiraPicture";

// Width of the border that a picture box draws at its edge, in pixels of the screen.
int PictureBorder(const ui::PictureBox& picture);

void RegisterPictureClass(HINSTANCE instance);

// A window of the class shows nothing from now on. Other windows are left alone.
void DetachPicture(HWND handle);

}  // namespace platform::windows
