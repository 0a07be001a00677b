// The maker's pages in the user's browser.
#include "online/links.h"
#include "tests/online/fixture.h"

namespace online {
namespace {

class OpenInBrowserTest : public OnlineTest {};

TEST_F(OpenInBrowserTest, AnAddressIsStartedHidden) {
  OpenInBrowser(sim.services, SiteAddresses(sim.environment).ContactUs());
  EXPECT_EQ(Started(), (Lines{"start hidden cmd /c start https://www.tonmira.example/contact-us"}));
}

TEST_F(OpenInBrowserTest, TheSystemsOwnInterpreterStartsIt) {
  OpenInBrowser(sim.services, SiteAddresses(sim.environment).Home());
  EXPECT_EQ(sim.processes.hidden_programs, (Lines{"C:\\Windows\\System32\\cmd.exe"}));
}

TEST_F(OpenInBrowserTest, AnotherSiteIsOpenedWhenOneIsNamed) {
  sim.environment.variables["TONMIRA_SITE"] = "http://127.0.0.1:8080";
  OpenInBrowser(sim.services, SiteAddresses(sim.environment).Donate());
  EXPECT_EQ(Started(), (Lines{"start hidden cmd /c start http://127.0.0.1:8080/donate"}));
}

TEST_F(OpenInBrowserTest, ABrowserThatCannotBeStartedIsAnError) {
  sim.processes.missing_commands.insert("cmd /c start https://www.tonmira.example/");
  const auto error =
      base::Caught([this] { OpenInBrowser(sim.services, SiteAddresses(sim.environment).Home()); });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->number(), 53);
}

}  // namespace
}  // namespace online
