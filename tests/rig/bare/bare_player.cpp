// The least that a program with a play button does: the measure of how soon a tone sounds and ends.
// "Play" loops the file tone.wav of the temporary folder, "Stop" silences it. With anything on the
// command line it plays at once, as a program does that is started for a tone.
#include <windows.h>

#include <mmsystem.h>

static char sound_file[MAX_PATH];

static void Play(bool play) {
  PlaySoundA(play ? sound_file : nullptr, nullptr, SND_FILENAME | SND_ASYNC | SND_LOOP);
}

static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  if (message == WM_COMMAND) {
    Play(LOWORD(wparam) == 1);
    return 0;
  }
  if (message == WM_DESTROY) PostQuitMessage(0);
  return DefWindowProcW(window, message, wparam, lparam);
}

static void AddButton(HWND parent, const wchar_t* caption, INT_PTR id) {
  CreateWindowExW(0, L"BUTTON", caption, WS_CHILD | WS_VISIBLE, static_cast<int>(id) * 100, 10, 90,
                  30, parent, reinterpret_cast<HMENU>(id), nullptr, nullptr);
}

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR arguments, int) {
  ExpandEnvironmentStringsA("%TEMP%\\tone.wav", sound_file, MAX_PATH);
  if (*arguments != 0) Play(true);
  WNDCLASSW window_class{};
  window_class.lpfnWndProc = Procedure;
  window_class.hInstance = instance;
  window_class.lpszClassName = L"BarePlayer";
  RegisterClassW(&window_class);
  const HWND window =
      CreateWindowExW(0, L"BarePlayer", L"Bare player", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 400,
                      200, nullptr, nullptr, instance, nullptr);
  AddButton(window, L"Play", 1);
  AddButton(window, L"Stop", 2);
  MSG message{};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return 0;
}
