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
  std::optional<std::uint32_t> Read();

  // What was read is not there any more: no file is, or one that was written since, for another
  // helper. A file that merely cannot be looked at for the moment is not missing.
  bool Missing() const;

 private:
  WideText path_;
  std::uint64_t written_ = 0;  // when what was read was written, in the system's units
};

}  // namespace helpers
