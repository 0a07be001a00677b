// hearage.dll: the hearing test, a program of its own that the main one starts.
#include <exception>

#include "hearing/hand_over_file.h"
#include "hearing/hearing_window.h"
#include "helpers/hearage/only_one.h"
#include "helpers/hearage/wave_output.h"
#include "platform/windows/api/system_library.h"
#include "platform/windows/message_pump.h"
#include "platform/windows/sound/multimedia.h"
#include "platform/windows/system/clock.h"
#include "platform/windows/system/environment.h"
#include "platform/windows/system/file_system.h"
#include "platform/windows/system/timers.h"
#include "platform/windows/views/message_boxes.h"
#include "platform/windows/views/native_window_system.h"
#include "platform/windows/views/open_windows.h"

namespace {

// The runtime library's own way to end would show the user a message of its own.
[[noreturn]] void EndQuietly() {
  ExitProcess(3);
}

hearing::Language TakeLanguage() {
  platform::windows::WindowsFileSystem files;
  platform::windows::WindowsEnvironment environment;
  return hearing::TakeHandOver(files, environment.Get("TEMP"));
}

// Where the system lets no window take the focus from another program's, it can still be seen.
void ComeToTop(HWND window) {
  for (const HWND place : {HWND_TOPMOST, HWND_NOTOPMOST}) {
    SetWindowPos(window, place, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
  }
}

void Run(HINSTANCE instance, hearing::Language language, helpers::OnlyOne& only_one) {
  platform::windows::OpenWindows open;
  platform::windows::MultimediaLibrary multimedia;
  platform::windows::WindowsMessagePump pump(open, multimedia);
  platform::windows::NativeWindowSystem windows(instance, open);
  platform::windows::WindowsTimers timers;
  platform::windows::WindowsRandom random;
  platform::windows::WindowsMessageBoxes messages(open);
  helpers::WaveOutput output;
  hearing::HearingWindow window({windows, timers, random, messages, output}, language);
  window.Show();
  only_one.OnCall([&] {
    window.Show();
    ComeToTop(open.MessageOwner());
  });
  pump.Run();
}

}  // namespace

#ifdef __GLIBCXX__
// In place of the library's own, which brings a demangler of 60 KB.
void __gnu_cxx::__verbose_terminate_handler() {
  EndQuietly();
}
#endif

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int) {
  std::set_terminate(EndQuietly);
  platform::windows::LoadFromSystemFolderOnly();
  SetErrorMode(SEM_FAILCRITICALERRORS);
  const hearing::Language language = TakeLanguage();
  helpers::OnlyOne only_one;
  if (only_one.Taken()) {
    helpers::OnlyOne::Call();
    return 0;
  }
  Run(instance, language, only_one);
  return 0;
}
