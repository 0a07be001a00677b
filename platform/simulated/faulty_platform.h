// Surroundings in which any one call goes wrong: each service of a platform, behind one count.
#pragma once

#include "platform/platform.h"
#include "platform/simulated/calls.h"
#include "platform/simulated/faulty_files.h"
#include "platform/simulated/faulty_sound.h"
#include "platform/simulated/faulty_system.h"
#include "platform/simulated/faulty_windows.h"

namespace platform::simulated {

class FaultyPlatform {
 public:
  FaultyPlatform(Platform& real, Calls& calls)
      : files_(real.files, calls),
        code_page_(real.code_page, calls),
        environment_(real.environment, calls),
        clock_(real.clock, calls),
        random_(real.random, calls),
        pump_(real.pump, real.timers, calls),
        processes_(real.processes, calls),
        waves_(real.waves, calls),
        direct_sound_(real.direct_sound, calls),
        beeper_(real.beeper, calls),
        downloader_(real.downloader, calls),
        screen_(real.screen, calls),
        version_(real.version, real.version_resource, calls),
        dialogs_(real.messages, real.file_dialogs, calls),
        registry_(real.registry, calls),
        windows_(real.windows, calls),
        capture_(real.sound_capture, calls),
        awake_output_(real.awake_output, calls) {}

 private:
  FaultyFiles files_;
  FaultyCodePage code_page_;
  FaultyEnvironment environment_;
  FaultyClock clock_;
  FaultyRandom random_;
  FaultyPump pump_;
  FaultyProcesses processes_;
  FaultyWaves waves_;
  FaultyDirectSound direct_sound_;
  FaultyBeeper beeper_;
  FaultyDownloader downloader_;
  FaultyScreen screen_;
  FaultyVersion version_;
  FaultyDialogs dialogs_;
  FaultyRegistry registry_;
  FaultyWindows windows_;
  FaultyCapture capture_;
  FaultyAwakeOutput awake_output_;

 public:
  Platform services{
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
      .messages = dialogs_,
      .registry = registry_,
      .version_resource = version_,
      .file_dialogs = dialogs_,
      .windows = windows_,
      .timers = pump_,
      .sound_capture = capture_,
      .awake_output = awake_output_,
  };
};

}  // namespace platform::simulated
