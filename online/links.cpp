#include "online/links.h"

#include "online/web_link.h"
#include "platform/interpreter.h"

namespace online {

Addresses SiteAddresses(platform::Environment& environment) {
  return Addresses(environment.Get(kSiteVariable));
}

void OpenInBrowser(platform::Platform& platform, const std::string& address) {
  platform::StartInterpreter(platform, StartCommand(address));
}

}  // namespace online
