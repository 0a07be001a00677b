#include "about/frm_about.h"

#include <utility>

#include "about/value_text.h"
#include "base/numbers.h"
#include "base/text.h"

namespace about {
namespace {

constexpr base::ErrorValue kErrorValue = base::ErrorValue::kAbout;  // of the main window's handler
constexpr char kDutchDescription[] =
    "Maak de meest vervelende geluiden met Tonmira! Problemen? Mail dan naar: "
    "support@tonmira.example";
constexpr char kDutchMark[] = "nl.ini";

constexpr char kToolKey[] = "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
constexpr char kToolValue[] = "PATH";
constexpr char kFolderKey[] = "SOFTWARE\\Microsoft\\Shared Tools Location";
constexpr char kFolderValue[] = "MSINFO";
constexpr char kTool[] = "\\MSINFO32.EXE";

}  // namespace

frmAbout::frmAbout(platform::Platform& platform, base::ErrorReporter& errors,
                   std::function<void()> load_captions)
    : ui::Window(platform.windows, {"frmAbout", "", 420, 198}),
      platform_(platform),
      errors_(errors),
      load_captions_(std::move(load_captions)) {
  picIcon.DesignSpokenName("Tonmira");
  cmdOK.OnClick = [this] { Unload(); };
  cmdSysInfo.OnClick = [this] {
    base::TrapErrors(errors_, kErrorValue, [this] { StartSysInfo(); });
  };
  SetDefaultButton(&cmdOK);
  SetCancelButton(&cmdOK);
}

void frmAbout::Form_Load() {
  load_captions_();
  const platform::ProgramVersion version = platform_.version_resource.Read();
  SetCaption("About " + version.title);
  lblTitle.SetCaption(version.title);
  lblVersion.SetCaption("Version " + base::BareNumber(version.major) + "." +
                        base::BareNumber(version.minor) + "." + base::BareNumber(version.revision));
  if (platform_.files.Exists(kDutchMark)) lblDescription.SetCaption(kDutchDescription);
}

void frmAbout::StartSysInfo() {
  const auto path = SysInfoPath();
  if (path && StartTool(*path)) return;
  platform_.messages.Show("System Information Is Unavailable At This Time", lblTitle.Caption(),
                          platform::MessageIcon::kNone, platform::MessageButtons::kOk);
}

std::optional<std::string> frmAbout::GetKeyValue(platform::RegistryRoot root,
                                                 const std::string& key_name,
                                                 const std::string& value_name) {
  const auto value = platform_.registry.Read(root, key_name, value_name);
  if (!value) return std::nullopt;
  return ValueText(*value);
}

std::optional<std::string> frmAbout::SysInfoPath() {
  constexpr platform::RegistryRoot kRoot = platform::RegistryRoot::kLocalMachine;
  if (const auto path = GetKeyValue(kRoot, kToolKey, kToolValue)) return path;
  const auto folder = GetKeyValue(kRoot, kFolderKey, kFolderValue);
  if (!folder || !platform_.files.Exists(*folder + kTool)) return std::nullopt;
  return *folder + kTool;
}

bool frmAbout::StartTool(const std::string& path) {
  const std::string bare = base::RemoveAll(path, '"');
  if (bare.empty()) return false;
  // Quoted, so that no program whose name is the path's beginning up to a blank starts instead.
  return !base::Caught([&] { platform_.processes.Start('"' + bare + '"'); });
}

}  // namespace about
