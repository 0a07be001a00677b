// The maker's web pages in the user's browser.
#pragma once

#include <string>

#include "online/addresses.h"
#include "platform/platform.h"

namespace online {

// The site that this environment names.
Addresses SiteAddresses(platform::Environment& environment);

// Opens a web address in the default browser without waiting for it. Throws base::RuntimeError
// when the command cannot be started.
void OpenInBrowser(platform::Platform& platform, const std::string& address);

}  // namespace online
