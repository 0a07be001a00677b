// SendData: sends the activity log to the maker, when the user has agreed to that.
#pragma once

#include "base/error_trap.h"
#include "platform/platform.h"
#include "settings/log_upload.h"
#include "settings/main_state.h"
#include "settings/usage_upload.h"

namespace online {

class UsageData : public settings::UsageUpload {
 public:
  UsageData(platform::Platform& platform, const settings::MainState& state,
            settings::LogUpload& upload, base::ErrorReporter& errors)
      : platform_(platform), state_(state), upload_(upload), errors_(errors) {}

  // Nothing is sent unless the SendData flag is 1 and there is a log. Error value kSendData.
  void SendData() override;

 private:
  platform::Platform& platform_;
  const settings::MainState& state_;
  settings::LogUpload& upload_;
  base::ErrorReporter& errors_;
};

}  // namespace online
