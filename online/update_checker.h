// UpdateCheck: asks the maker's site for the newest version and offers it when there is one.
#pragma once

#include <optional>
#include <string>

#include "lang/texts.h"
#include "online/form7.h"
#include "online/update_file.h"
#include "platform/platform.h"
#include "settings/activity_log.h"
#include "settings/error_notes.h"

namespace online {

// What the check needs of the program around it.
class UpdateScene {
 public:
  virtual ~UpdateScene() = default;

  virtual Form7& UpdateDialog() = 0;

  // The message texts of the loaded language; 1 to 6 are the dialog's.
  virtual const lang::Texts& MessageTexts() const = 0;
};

class UpdateChecker {
 public:
  UpdateChecker(platform::Platform& platform, UpdateScene& scene, settings::ActivityLog& log,
                settings::ErrorNotes& errors)
      : platform_(platform), scene_(scene), log_(log), errors_(errors) {}

  // Returns when the user has declined or there is nothing to offer. Problems go to the activity
  // log as "> Update error". Error value 1013.
  void UpdateCheck();

 private:
  // The update file's content; nothing when it cannot be had.
  std::optional<UpdateFile> Fetch();
  void Offer(const UpdateFile& update);

  platform::Platform& platform_;
  UpdateScene& scene_;
  settings::ActivityLog& log_;
  settings::ErrorNotes& errors_;
};

}  // namespace online
