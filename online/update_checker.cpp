#include "online/update_checker.h"

#include "base/version.h"
#include "online/downloads.h"
#include "online/links.h"

namespace online {
namespace {

constexpr int kTickMs = 5;

}  // namespace

void UpdateChecker::UpdateCheck() {
  base::TrapErrors(errors_, base::ErrorValue::kUpdateCheck, [this] {
    const auto update = Fetch();
    if (!update) {
      log_.PrintFile("> Update error");
    } else if (IsNewer(update->version)) {
      Offer(*update);
    }
  });
}

void UpdateChecker::Begin() {
  early_.Begin(Link(), Path());
}

std::string UpdateChecker::Path() const {
  return platform_.environment.Get("TEMP") + "\\updatetonmira.txt";
}

std::string UpdateChecker::Link() const {
  return SiteAddresses(platform_.environment).UpdateFile();
}

// A file of too many lines stays where it is.
std::optional<UpdateFile> UpdateChecker::Fetch() {
  const std::string path = Path();
  if (!Downloads(early_, errors_).Download(Link(), path)) return std::nullopt;
  std::optional<std::string> content;
  const auto failure = base::Caught([&] { content = platform_.Texts().ReadBytes(path); });
  if (failure) {
    base::Quietly([&] { platform_.files.Delete(path); });
    base::ThrowAgain(failure);
  }
  if (!content) return std::nullopt;
  const auto update = ParseUpdateFile(*content);
  if (update) platform_.files.Delete(path);
  return update;
}

void UpdateChecker::Offer(const UpdateFile& update) {
  using lang::Slot;
  const std::string link = platform_.code_page.Decode(update.link);
  dialog_.Load();
  dialog_.Label1.SetCaption(texts_.Of(Slot::kUpdateQuestion));
  dialog_.SetCaption(texts_.Of(Slot::kUpdateTitle));
  dialog_.Command1.SetCaption(texts_.Of(Slot::kUpdateAccept));
  dialog_.Command2.SetCaption(texts_.Of(Slot::kUpdateDecline));
  dialog_.List1.SetItems({texts_.Of(Slot::kUpdateCurrent) + base::kVersion,
                          texts_.Of(Slot::kUpdateNew) + DottedVersion(update.version),
                          "Link: " + link});
  dialog_.download_link = link;
  dialog_.Show();
  do {
    platform_.pump.ProcessPending([this] { return !dialog_.Visible(); });
    platform_.pump.Sleep(kTickMs);
  } while (dialog_.Visible());
  dialog_.Unload();
}

}  // namespace online
