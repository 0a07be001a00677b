// One HTTP PUT with the system's own HTTP functions.
#pragma once

#include <span>

#include "helpers/destination.h"
#include "helpers/wide_text.h"

namespace helpers {

// Puts `content` at `path` on the destination's host, by the user's proxy settings. Asks the user
// nothing, sends neither cookies nor a password, and follows no redirection. True if the server has
// taken the content; with https only if its certificate is good.
bool Put(const Destination& destination, const WideText& path, std::span<char> content);

}  // namespace helpers
