#include <exception>

#include "app/application.h"
#include "platform/windows/windows_platform.h"

namespace {

// The runtime library's own way to end would show the user a message of its own.
[[noreturn]] void EndQuietly() {
  ExitProcess(3);
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
  platform::windows::WindowsPlatform platform(instance);
  app::Application application(platform.Services());
  application.Run();
  return 0;
}
