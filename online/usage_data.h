// SendData: sends the activity log to the maker, when the user has agreed to that.
#pragma once

#include "base/main_state.h"
#include "platform/platform.h"
#include "settings/error_notes.h"
#include "settings/log_upload.h"
#include "settings/usage_upload.h"

namespace online {

class UsageData : public settings::UsageUpload {
 public:
  UsageData(platform::Platform& platform, const base::MainState& state, settings::LogUpload& upload,
            settings::ErrorNotes& errors)
      : platform_(platform), state_(state), upload_(upload), errors_(errors) {}

  // Nothing is sent unless the SendData flag is 1 and there is a log. Error value 106.
  void SendData() override;

 private:
  platform::Platform& platform_;
  const base::MainState& state_;
  settings::LogUpload& upload_;
  settings::ErrorNotes& errors_;
};

}  // namespace online
