// The least that a program with a window does: the measure of the start-up time.
#include <windows.h>

#include <commctrl.h>

static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  if (message == WM_DESTROY) PostQuitMessage(0);
  return DefWindowProcW(window, message, wparam, lparam);
}

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int) {
  INITCOMMONCONTROLSEX wanted{sizeof(wanted), ICC_STANDARD_CLASSES};
  InitCommonControlsEx(&wanted);
  WNDCLASSW window_class{};
  window_class.lpfnWndProc = Procedure;
  window_class.hInstance = instance;
  window_class.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  window_class.hbrBackground = GetSysColorBrush(COLOR_3DFACE);
  window_class.lpszClassName = L"BareWindow";
  RegisterClassW(&window_class);
  CreateWindowExW(0, L"BareWindow", L"Bare", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CW_USEDEFAULT,
                  CW_USEDEFAULT, 640, 480, nullptr, nullptr, instance, nullptr);
  MSG message{};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return 0;
}
