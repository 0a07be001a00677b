// Sending the error log to the maker, as far as the settings room knows of it.
#pragma once

#include <string>

namespace settings {

class LogUpload {
 public:
  virtual ~LogUpload() = default;

  // Hands `LocalFileName` over to be stored under the name `FileName`.
  virtual void FTPSend(const std::string& LocalFileName, const std::string& FileName) = 0;
};

}  // namespace settings
