// The maker's pages, opened from the menus and from the error dialog.
#include "tests/app/online_fixture.h"

namespace app {
namespace {

class LinksTest : public OnlineTest {
 protected:
  void ExpectPage(const std::string& entry, const std::string& address) {
    EXPECT_EQ(LogEntries().back(), entry);
    EXPECT_EQ(Started(), (Lines{"start hidden cmd /c start " + address}));
  }
};

TEST_F(LinksTest, ContactLogsADonationAndOpensTheContactPage) {
  At(1s, [](Form1& form1) { form1.contact.Click(); });
  Run();
  ExpectPage("> Visiting donation page", "https://www.tonmira.example/contact-us");
}

TEST_F(LinksTest, DonateOpensTheDonationPage) {
  At(1s, [](Form1& form1) { form1.donate.Click(); });
  Run();
  ExpectPage("> Visiting donation page", "https://www.tonmira.example/donate");
}

TEST_F(LinksTest, WebsiteOpensTheHomePage) {
  At(1s, [](Form1& form1) { form1.webpage.Click(); });
  Run();
  ExpectPage("> Visiting site", "https://www.tonmira.example/");
}

TEST_F(LinksTest, AnotherSiteIsOpenedWhenOneIsNamed) {
  sim.environment.variables["TONMIRA_SITE"] = "http://127.0.0.1:8080";
  At(1s, [](Form1& form1) { form1.donate.Click(); });
  Run();
  ExpectPage("> Visiting donation page", "http://127.0.0.1:8080/donate");
}

TEST_F(LinksTest, TheErrorDialogOpensTheHomePageAndLogsNothing) {
  At(1s, [this](Form1&) {
    program->form6.Present({"a", "b", "c", "d"});
    program->form6.Command2.Click();
  });
  const bool ended = Run();
  EXPECT_FALSE(ended);
  EXPECT_EQ(Started(), (Lines{"start hidden cmd /c start https://www.tonmira.example/"}));
  EXPECT_EQ(LogEntries().back(), ">> Program starting finished");
  EXPECT_EQ(program->form6.done_flag, 0);
}

TEST_F(LinksTest, ABrowserThatCannotBeStartedIsReportedByTheMenusAndNotByTheErrorDialog) {
  sim.processes.missing_commands.insert("cmd /c start https://www.tonmira.example/");
  At(1s, [](Form1& form1) { form1.webpage.Click(); });
  At(2s, [this](Form1&) { program->form6.Command2.Click(); });
  At(3s, [this](Form1&) { program->form6.Command1.Click(); });
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.Lines(kErrorLog)[0], "Error number:  53,   Error value:  32");
  EXPECT_TRUE(Messages().empty());
}

}  // namespace
}  // namespace app
