// FTPSend: hands a file over to the upload program, which sends it by itself.
//
// The hand-over file is "snd.ini" in the temporary folder: line 1 the file to send, line 2 the
// name it is stored under. Two uploads in quick succession share it; the later one may win.
#pragma once

#include <string>

#include "base/error_trap.h"
#include "platform/platform.h"
#include "settings/log_upload.h"

namespace online {

class UploadHandOver : public settings::LogUpload {
 public:
  UploadHandOver(platform::Platform& platform, base::ErrorReporter& errors)
      : platform_(platform), errors_(errors) {}

  // Does not wait for the upload. Error value kFTPSend.
  void FTPSend(const std::string& LocalFileName, const std::string& FileName) override;

 private:
  platform::Platform& platform_;
  base::ErrorReporter& errors_;
};

}  // namespace online
