// Everything the program asks of its surroundings, in one bundle of references.
#pragma once

#include "platform/awake_output.h"
#include "platform/direct_sound.h"
#include "platform/downloader.h"
#include "platform/file_dialogs.h"
#include "platform/files.h"
#include "platform/registry.h"
#include "platform/sound_capture.h"
#include "platform/system.h"
#include "platform/text_files.h"
#include "platform/timers.h"
#include "platform/version_resource.h"
#include "ui/window_system.h"

namespace platform {

struct Platform {
  FileSystem& files;
  CodePage& code_page;
  Environment& environment;
  Clock& clock;
  Random& random;
  MessagePump& pump;
  Processes& processes;
  WavePlayer& waves;
  DirectSound& direct_sound;
  Beeper& beeper;
  Downloader& downloader;
  Screen& screen;
  SystemVersion& version;
  MessageBoxes& messages;
  Registry& registry;
  VersionResource& version_resource;
  FileDialogs& file_dialogs;
  ui::WindowSystem& windows;
  Timers& timers;
  SoundCapture& sound_capture;
  AwakeOutput& awake_output;

  TextFiles Texts() const { return TextFiles(files, code_page); }
};

}  // namespace platform
