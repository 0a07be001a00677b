// The native window class of picture boxes. A window of it copies the picture of a ui::PictureBox
// (given as its creation parameter) to the screen, without erasing first, and leaves out the lines
// that stand over it. It has a device context of its own, since one that is borrowed for every
// frame of a moving picture costs more than the frame.
#pragma once

#include "platform/windows/api/windows_api.h"
#include "ui/controls.h"

namespace platform::windows {

inline constexpr wchar_t kPictureClass[] = L"TonmiraPicture";

// Width of the border that a picture box draws at its edge, in pixels of the screen.
int PictureBorder(const ui::PictureBox& picture);

void RegisterPictureClass(HINSTANCE instance);

// Copies what the last drawing changed, at once.
void ShowChange(HWND handle, const ui::PictureBox& picture);

// A window of the class shows nothing from now on. Other windows are left alone.
void DetachPicture(HWND handle);

}  // namespace platform::windows
