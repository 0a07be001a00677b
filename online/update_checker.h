// UpdateCheck: asks the maker's site for the newest version and offers it when there is one.
#pragma once

#include <optional>
#include <string>

#include "base/error_trap.h"
#include "lang/texts.h"
#include "online/early_downloads.h"
#include "online/form7.h"
#include "online/update_file.h"
#include "platform/platform.h"
#include "settings/activity_log.h"

namespace online {

class UpdateChecker {
 public:
  // `texts` are those of the loaded language; the dialog's are among them.
  UpdateChecker(platform::Platform& platform, EarlyDownloads& early, Form7& dialog,
                const lang::Texts& texts, settings::ActivityLog& log, base::ErrorReporter& errors)
      : platform_(platform),
        early_(early),
        dialog_(dialog),
        texts_(texts),
        log_(log),
        errors_(errors) {}

  // Begins to fetch the update file, ahead of UpdateCheck.
  void Begin();

  // Returns when the user has declined or there is nothing to offer. Problems go to the activity
  // log as "> Update error". Error value kUpdateCheck.
  void UpdateCheck();

 private:
  std::string Path() const;
  std::string Link() const;

  // The update file's content; nothing when it cannot be had.
  std::optional<UpdateFile> Fetch();
  void Offer(const UpdateFile& update);

  platform::Platform& platform_;
  EarlyDownloads& early_;
  Form7& dialog_;
  const lang::Texts& texts_;
  settings::ActivityLog& log_;
  base::ErrorReporter& errors_;
};

}  // namespace online
