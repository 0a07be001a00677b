// The upload of anonymous usage data, as the settings ask for it.
#pragma once

namespace settings {

class UsageUpload {
 public:
  virtual ~UsageUpload() = default;

  // Sends the activity log, if there is one and the user allowed it.
  virtual void SendData() = 0;
};

}  // namespace settings
