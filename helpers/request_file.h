// The hand-over file "sound.ini" in the folder that the environment variable TEMP names.
#pragma once

#include <cstdint>
#include <optional>

#include "helpers/wide_text.h"

namespace helpers {

class RequestFile {
 public:
  RequestFile();

  // What it asks for (helpers/request.h). Nothing if it cannot be read or asks for nothing.
  std::optional<std::uint32_t> Read() const;

  // It is not there. A file that merely cannot be looked at for the moment is not missing.
  bool Missing() const;

 private:
  WideText path_;
};

}  // namespace helpers
