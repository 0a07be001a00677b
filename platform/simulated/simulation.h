// The whole simulated surroundings of the program, for tests.
//
// A fresh simulation is a machine on which everything is in order: folders for TEMP and APPDATA,
// 96 DPI, Windows 6.1, no files.
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include "platform/platform.h"
#include "platform/simulated/awake_output.h"
#include "platform/simulated/direct_sound.h"
#include "platform/simulated/downloader.h"
#include "platform/simulated/file_dialogs.h"
#include "platform/simulated/files.h"
#include "platform/simulated/journal.h"
#include "platform/simulated/pump.h"
#include "platform/simulated/registry.h"
#include "platform/simulated/services.h"
#include "platform/simulated/sound_capture.h"
#include "platform/simulated/version_resource.h"
#include "platform/simulated/windows.h"

namespace platform::simulated {

inline constexpr char kTemp[] = "C:\\Temp";
inline constexpr char kAppData[] = "C:\\Users\\Tom\\AppData\\Roaming";

class Simulation {
 public:
  Simulation();

  Journal journal;
  Files files{journal};
  Latin1 code_page;
  FixedEnvironment environment;
  FixedClock clock;
  ScriptedRandom random;
  Windows windows{journal};
  VirtualPump pump{journal, [this] { return windows.AnyVisible(); }};
  FakeProcesses processes{journal, [this] { downloader.GiveUpAll(); }};
  FakeWavePlayer waves{journal, files};
  FakeDirectSound direct_sound{journal};
  FakeSoundCapture sound_capture{journal, pump};
  FakeAwakeOutput awake_output{journal, pump};
  FakeBeeper beeper{journal, pump};
  FakeDownloader downloader{journal, files, pump};
  FakeScreen screen;
  FakeVersion version;
  ScriptedMessages messages{journal};
  ScriptedFileDialogs file_dialogs{journal};
  FakeRegistry registry;
  FakeVersionResource version_resource;

  platform::Platform services{
      .files = files,
      .code_page = code_page,
      .environment = environment,
      .clock = clock,
      .random = random,
      .pump = pump,
      .processes = processes,
      .waves = waves,
      .direct_sound = direct_sound,
      .beeper = beeper,
      .downloader = downloader,
      .screen = screen,
      .version = version,
      .messages = messages,
      .registry = registry,
      .version_resource = version_resource,
      .file_dialogs = file_dialogs,
      .windows = windows,
      .timers = pump,
      .sound_capture = sound_capture,
      .awake_output = awake_output,
  };
  // Schedules `action` at a moment of the virtual clock.
  void At(std::chrono::milliseconds moment, std::function<void()> action);

  // Runs `program` until it returns, ends its process or waits for a user who does nothing more.
  // True when it ended its process.
  bool Run(const std::function<void()>& program);

  // The lines of a text file, without their line ends; empty when there is no such file.
  std::vector<std::string> Lines(const std::string& path) const;
};

}  // namespace platform::simulated
