// The service classes that handlers work with. Each gathers the procedures of several rooms and
// has none of its own; an object keeps no state that matters between calls.
#pragma once

#include "app/mode_selection.h"
#include "app/program_end.h"
#include "app/system_checks.h"
#include "base/main_state.h"
#include "display/sine_animation.h"
#include "lang/language_loader.h"
#include "platform/platform.h"
#include "settings/activity_log.h"
#include "settings/error_notes.h"
#include "settings/settings_file.h"
#include "tone/direct_sound_routes.h"
#include "tone/helper_routes.h"
#include "tone/process_killer.h"
#include "tone/route_support.h"
#include "tone/short_tones.h"
#include "tone/wave_output.h"
#include "tone/winmm_routes.h"

namespace app {

// What the services reach of the windows.
struct Scene {
  settings::SettingsDisplay& settings;
  settings::ErrorScene& errors;
  ModeDisplay& modes;
  lang::CaptionScene& captions;
  WindowList& windows;
  display::SineAnimation& sine;
};

// Sends nothing.
class NoUsageUpload : public settings::UsageUpload {
 public:
  void SendData() override {}
};

class Program : public settings::ErrorNotes,
                public NoUsageUpload,
                public settings::ActivityLog,
                public settings::SettingsFile,
                public lang::LanguageLoader,
                public ModeSelection,
                public ProgramEnd,
                public display::SineDrawing {
 public:
  Program(platform::Platform& platform, base::MainState& state, const Scene& scene)
      : ErrorNotes(platform, scene.errors),
        ActivityLog(platform, *this),
        SettingsFile(platform, state, scene.settings, *this, *this, *this),
        LanguageLoader(platform, scene.captions, *this),
        ModeSelection(state, scene.modes, *this, *this, *this),
        ProgramEnd(platform, state, scene.windows, *this),
        SineDrawing(state, scene.sine, *this) {}
};

class ExFunctions : public tone::WaveOutput,
                    public tone::ProcessKiller,
                    public tone::ShortTones,
                    public SystemChecks {
 public:
  ExFunctions(platform::Platform& platform, base::MainState& state, tone::PlayScene& scene,
              settings::ErrorNotes& errors)
      : WaveOutput(platform),
        ProcessKiller(platform),
        ShortTones(platform, state, scene),
        SystemChecks(platform, errors) {}
};

class sound : public tone::RouteSupport,
              public tone::WinmmRoutes,
              public tone::HelperRoutes,
              public tone::DirectSoundRoutes {
 public:
  sound(platform::Platform& platform, base::MainState& main_state, tone::PlayScene& play_scene)
      : RouteSupport(platform, main_state, play_scene),
        WinmmRoutes(static_cast<RouteSupport&>(*this)),
        HelperRoutes(static_cast<RouteSupport&>(*this)),
        DirectSoundRoutes(static_cast<RouteSupport&>(*this)) {}
};

}  // namespace app
