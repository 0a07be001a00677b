// FTPSend: hands a file over to the upload program, which sends it by itself.
//
// The hand-over file is "snd.ini" in the temporary folder: line 1 the file to send, line 2 the
// name it is stored under. Two uploads in quick succession share it; the later one may win.
#pragma once

#include <string>

#include "platform/platform.h"
#include "settings/error_notes.h"
#include "settings/log_upload.h"

namespace online {

class UploadHandOver : public settings::LogUpload {
 public:
  UploadHandOver(platform::Platform& platform, settings::ErrorNotes& errors)
      : platform_(platform), errors_(errors) {}

  // Does not wait for the upload. Error value 1025.
  void FTPSend(const std::string& LocalFileName, const std::string& FileName) override;

 private:
  platform::Platform& platform_;
  settings::ErrorNotes& errors_;
};

}  // namespace online
