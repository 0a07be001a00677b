// The news window.
#include "online/form3.h"
#include "tests/online/fixture.h"

namespace online {
namespace {

class NewsTest : public OnlineTest {
 protected:
  // Shows the news over the main window. True when the program ended.
  bool Run() {
    return sim.Run([this] {
      main_window.Show();
      news.ShowPage("https://www.tonmira.example/information.html");
      sim.pump.Run();
    });
  }

  Form3& News() { return news; }

  ui::Window status{sim.services.windows, {"Form8", "Starting Tonmira", 340, 112}};
  Form3 news{sim.services, state, errors, lang::ShippedLanguages(), status};
};

TEST_F(NewsTest, ThePageIsShownSilently) {
  EXPECT_FALSE(Run());
  EXPECT_TRUE(News().Visible());
  EXPECT_EQ(News().Caption(), "Tonmira online news");
  Lines steps;
  for (const std::string& text : sim.journal.Texts({Kind::kWindow, Kind::kControl})) {
    if (text.starts_with("Form3")) steps.push_back(text);
  }
  EXPECT_EQ(steps,
            (Lines{"Form3 loaded", "Form3 shown", "Form3.WebBrowser1 silent: yes",
                   "Form3.WebBrowser1 address: https://www.tonmira.example/information.html"}));
}

TEST_F(NewsTest, InDutchTheTitleIsDutch) {
  state.language = "nl";
  Run();
  EXPECT_EQ(News().Caption(), "Tonmira online nieuws (engels)");
}

TEST_F(NewsTest, ClosingTheNewsLeavesTheMainWindow) {
  sim.At(1s, [this] { News().Close(); });
  EXPECT_FALSE(Run());
  EXPECT_FALSE(News().Loaded());
  EXPECT_TRUE(main().Visible());
}

TEST_F(NewsTest, UnloadingTheNewsUnloadsTheStatusWindow) {
  Run();
  status.Show();
  News().Load();
  News().Unload();
  EXPECT_FALSE(status.Loaded());
}

TEST_F(NewsTest, AWindowThatThePageAsksForOpensInTheUsersBrowser) {
  Run();
  News().WebBrowser1.AskForWindow("https://a.example/b?c&d");
  EXPECT_EQ(Started(), (Lines{"start hidden cmd /c start https://a.example/b?c^&d"}));
}

TEST_F(NewsTest, AWindowForAnythingButAWebAddressIsNotOpened) {
  Run();
  for (const std::string address : {"file:///C:/Windows/notepad.exe", "calc", "", "about:blank",
                                    "javascript:alert(1)", "http://a b"}) {
    News().WebBrowser1.AskForWindow(address);
  }
  EXPECT_TRUE(Started().empty());
}

TEST_F(NewsTest, OnlyPagesAreShown) {
  Run();
  EXPECT_TRUE(News().WebBrowser1.MayNavigate("https://www.tonmira.example/information.html"));
  EXPECT_TRUE(News().WebBrowser1.MayNavigate("about:blank"));
  for (const std::string address :
       {"file://host/share/x.htm", "C:\\x.htm", "mailto:a@b.example", "http://a@b.example/"}) {
    EXPECT_FALSE(News().WebBrowser1.MayNavigate(address)) << address;
  }
  EXPECT_TRUE(Started().empty());
}

TEST_F(NewsTest, ABrowserThatIsAskedByNobodyShowsNothing) {
  ui::Window window{sim.services.windows, {"FormX", "x", 100, 100}};
  ui::WebBrowser browser(window, 1, "WebBrowser9", ui::Rect{0, 0, 10, 10});
  EXPECT_FALSE(browser.MayNavigate("https://www.tonmira.example/information.html"));
}

TEST_F(NewsTest, AMailLinkOpensTheUsersMailProgram) {
  Run();
  News().WebBrowser1.AskForWindow("mailto:support@tonmira.example");
  EXPECT_EQ(Started(), (Lines{"start hidden cmd /c start mailto:support@tonmira.example"}));
}

}  // namespace
}  // namespace online
