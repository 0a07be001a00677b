// The about box: title, version and description of the program, and the way to the system's own
// information tool.
//
// Errors go to the main window's handler that opens the box, whichever of them meets them.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/error_trap.h"
#include "lang/language_loader.h"
#include "platform/platform.h"
#include "ui/window.h"

namespace about {

class frmAbout : public ui::Window {
 public:
  // `load_captions` loads this window's captions in the current language.
  frmAbout(platform::Platform& platform, base::ErrorReporter& errors,
           std::function<void()> load_captions);

  ui::PictureBox picIcon{
      *this, 100, "picIcon", {16, 16, 64, 64}, ui::PictureBox::Content::kProgramIcon};
  ui::Label lblTitle{
      *this, 101, "lblTitle", {96, 16, 308, 24}, "Tonmira", ui::Label::Style::kHeading};
  ui::Label lblVersion{*this, 102, "lblVersion", {96, 46, 308, 18}, "1.3 Development build"};
  ui::Label lblDescription{*this,
                           103,
                           "lblDescription",
                           {96, 74, 308, 52},
                           "Create the most annoying sounds with Tonmira! Any problems? Mail to: "
                           "support@tonmira.example"};
  ui::LineControl Line1{*this, 104, "Line1", {16, 138, 388, 1}};
  ui::Button cmdOK{*this, 105, "cmdOK", {284, 152, 120, 30}, "OK"};
  ui::Button cmdSysInfo{*this, 106, "cmdSysInfo", {152, 152, 120, 30}, "&System Info..."};

  // The captions of this window, by slot of a language file.
  std::vector<lang::CaptionSlot> Captions() { return {{lang::Slot::kSystemInfo, &cmdSysInfo}}; }

  // Starts the system's information tool, or says that there is none.
  void StartSysInfo();

  // A value of the registry as text, see ValueText. Nothing when it cannot be read.
  std::optional<std::string> GetKeyValue(platform::RegistryRoot root, const std::string& key_name,
                                         const std::string& value_name);

 protected:
  void Form_Load() override;

 private:
  // The tool's path, as the registry tells it.
  std::optional<std::string> SysInfoPath();
  bool StartTool(const std::string& path);

  platform::Platform& platform_;
  base::ErrorReporter& errors_;
  std::function<void()> load_captions_;
};

}  // namespace about
