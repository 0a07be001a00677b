#include "online/links.h"

#include "online/web_link.h"

namespace online {

Addresses SiteAddresses(platform::Environment& environment) {
  return Addresses(environment.Get(kSiteVariable));
}

void OpenInBrowser(platform::Processes& processes, const std::string& address) {
  processes.StartHidden(StartCommand(address));
}

}  // namespace online
