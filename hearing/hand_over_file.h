// Takes what the main program handed over.
#pragma once

#include <string>

#include "hearing/hand_over.h"
#include "platform/files.h"

namespace hearing {

inline constexpr char kHandOverFile[] = "testhearing.ini";  // in the temporary folder

// The language that the file in `folder` asks for; the file is deleted. Whatever prevents either is
// no error: then the language is English, or the file stays.
Language TakeHandOver(platform::FileSystem& files, const std::string& folder);

}  // namespace hearing
