// The service classes that handlers work with. Each gathers the procedures of several rooms and
// has none of its own; an object keeps no state that matters between calls.
#pragma once

#include "app/mode_selection.h"
#include "app/program_end.h"
#include "app/system_checks.h"
#include "base/main_state.h"
#include "display/sine_animation.h"
#include "lang/language_loader.h"
#include "online/downloads.h"
#include "online/update_checker.h"
#include "online/upload_hand_over.h"
#include "online/usage_data.h"
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
  online::UpdateScene& updates;
  display::SineAnimation& sine;
};

class Program : public settings::ErrorNotes,
                public settings::ActivityLog,
                public settings::SettingsFile,
                public lang::LanguageLoader,
                public ModeSelection,
                public online::UploadHandOver,
                public online::UsageData,
                public online::UpdateChecker,
                public ProgramEnd,
                public display::SineDrawing {
 public:
  Program(platform::Platform& platform, base::MainState& state, const Scene& scene)
      : ErrorNotes(platform, state, scene.errors, *this),
        ActivityLog(platform, *this),
        SettingsFile(platform, state, scene.settings, *this, *this, *this),
        LanguageLoader(platform, scene.captions, *this),
        ModeSelection(state, scene.modes, *this, *this, *this),
        UploadHandOver(platform, *this),
        UsageData(platform, state, *this, *this),
        UpdateChecker(platform, scene.updates, *this, *this),
        ProgramEnd(platform, state, scene.windows, *this, *this),
        SineDrawing(state, scene.sine, *this) {}
};

class ExFunctions : public tone::WaveOutput,
                    public tone::ProcessKiller,
                    public tone::ShortTones,
                    public online::Downloads,
                    public online::UploadHandOver,
                    public SystemChecks {
 public:
  ExFunctions(platform::Platform& platform, base::MainState& state, tone::PlayScene& scene,
              settings::ErrorNotes& errors)
      : WaveOutput(platform),
        ProcessKiller(platform),
        ShortTones(platform, state, scene),
        Downloads(platform, errors),
        UploadHandOver(platform, errors),
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
