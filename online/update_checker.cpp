#include "online/update_checker.h"

#include "online/downloads.h"
#include "online/links.h"

namespace online {
namespace {

constexpr char kOwnVersion[] = "2.3.6";
constexpr int kTickMs = 5;

}  // namespace

void UpdateChecker::UpdateCheck() {
  settings::TrapErrors(errors_, 1013, [this] {
    const auto update = Fetch();
    if (!update) {
      log_.PrintFile("> Update error");
    } else if (IsNewer(update->version)) {
      Offer(*update);
    }
  });
}

// A file of too many lines stays where it is.
std::optional<UpdateFile> UpdateChecker::Fetch() {
  const std::string path = platform_.environment.Get("TEMP") + "\\updatetonmira.txt";
  const std::string link = SiteAddresses(platform_.environment).UpdateFile();
  if (!Downloads(platform_, errors_).Download(link, path)) return std::nullopt;
  const auto content = platform_.Texts().ReadBytes(path);
  if (!content) return std::nullopt;
  const auto update = ParseUpdateFile(*content);
  if (update) platform_.files.Delete(path);
  return update;
}

void UpdateChecker::Offer(const UpdateFile& update) {
  Form7& dialog = scene_.UpdateDialog();
  const auto& messages = scene_.MessageTexts().messages;
  const std::string link = platform_.code_page.Decode(update.link);
  dialog.Load();
  dialog.Label1.SetCaption(messages[1]);
  dialog.SetCaption(messages[2]);
  dialog.Command1.SetCaption(messages[3]);
  dialog.Command2.SetCaption(messages[4]);
  dialog.List1.SetItems(
      {messages[5] + kOwnVersion, messages[6] + DottedVersion(update.version), "Link: " + link});
  dialog.download_link = link;
  dialog.Show();
  do {
    platform_.pump.ProcessPending([&dialog] { return !dialog.Visible(); });
    platform_.pump.Sleep(kTickMs);
  } while (dialog.Visible());
  dialog.Unload();
}

}  // namespace online
