// All services on the Windows API, and their bundle.
#pragma once

#include "platform/platform.h"
#include "platform/windows/api/system_library.h"
#include "platform/windows/message_pump.h"
#include "platform/windows/sound/awake_output.h"
#include "platform/windows/sound/direct_sound.h"
#include "platform/windows/sound/multimedia.h"
#include "platform/windows/sound/sound_capture.h"
#include "platform/windows/system/clock.h"
#include "platform/windows/system/environment.h"
#include "platform/windows/system/file_system.h"
#include "platform/windows/system/processes.h"
#include "platform/windows/system/registry.h"
#include "platform/windows/system/screen.h"
#include "platform/windows/system/timer_grain.h"
#include "platform/windows/system/timers.h"
#include "platform/windows/system/version_resource.h"
#include "platform/windows/views/file_dialogs.h"
#include "platform/windows/views/message_boxes.h"
#include "platform/windows/views/native_window_system.h"
#include "platform/windows/views/open_windows.h"
#include "platform/windows/web/downloader.h"

namespace platform::windows {

class WindowsPlatform {
 public:
  explicit WindowsPlatform(HINSTANCE instance) : windows_(instance, open_) { KeepTimersFine(); }
  WindowsPlatform(const WindowsPlatform&) = delete;
  WindowsPlatform& operator=(const WindowsPlatform&) = delete;

  Platform& Services() { return services_; }

 private:
  // Before any of the services loads a library.
  struct SystemFolderOnly {
    SystemFolderOnly() { LoadFromSystemFolderOnly(); }
  };

  SystemFolderOnly libraries_;
  OpenWindows open_;
  MultimediaLibrary multimedia_;
  WindowsFileSystem files_;
  WindowsCodePage code_page_;
  WindowsEnvironment environment_;
  WindowsClock clock_;
  WindowsRandom random_;
  WindowsMessagePump pump_{open_, multimedia_};
  WindowsProcesses processes_{[this] { downloader_.GiveUpAll(); }};
  MultimediaPlayer waves_{multimedia_};
  WindowsDirectSound direct_sound_;
  SystemBeeper beeper_;
  WindowsDownloader downloader_;
  WindowsScreen screen_;
  WindowsVersion version_;
  WindowsMessageBoxes messages_{open_};
  WindowsFileDialogs file_dialogs_{open_};
  WindowsRegistry registry_;
  WindowsVersionResource version_resource_;
  NativeWindowSystem windows_;
  WindowsTimers timers_;
  WindowsSoundCapture sound_capture_;
  WindowsAwakeOutput awake_output_;
  Platform services_{
      .files = files_,
      .code_page = code_page_,
      .environment = environment_,
      .clock = clock_,
      .random = random_,
      .pump = pump_,
      .processes = processes_,
      .waves = waves_,
      .direct_sound = direct_sound_,
      .beeper = beeper_,
      .downloader = downloader_,
      .screen = screen_,
      .version = version_,
      .messages = messages_,
      .registry = registry_,
      .version_resource = version_resource_,
      .file_dialogs = file_dialogs_,
      .windows = windows_,
      .timers = timers_,
      .sound_capture = sound_capture_,
      .awake_output = awake_output_,
  };
};

}  // namespace platform::windows
