#include "online/web_link.h"

#include <gtest/gtest.h>

#include <string>

namespace online {
namespace {

class WebAddress : public testing::TestWithParam<std::string> {};

TEST_P(WebAddress, MayBeOpened) {
  EXPECT_TRUE(IsWebAddress(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Links, WebAddress,
                         testing::Values("http://a", "https://www.tonmira.example/setup-2.3.7.exe",
                                         "HTTPS://A.EXAMPLE/", "http://127.0.0.1:8080/x",
                                         "http://[::1]/x", "http://a/b?c=1,2;3&d=%20#e",
                                         "http://a/b|c<d>e^f(g)h%TEMP%", "http://a/@b",
                                         "http://a?x@y", "http://a&calc"));

class NoWebAddress : public testing::TestWithParam<std::string> {};

TEST_P(NoWebAddress, IsNotStarted) {
  EXPECT_FALSE(IsWebAddress(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(
    Links, NoWebAddress,
    testing::Values("", "calc", "calc.exe", "C:\\Windows\\notepad.exe", "\\\\host\\share\\x.exe",
                    "//a/b", "www.tonmira.example", "file:///C:/Windows/notepad.exe", "ftp://a/b",
                    "javascript:alert(1)", "mailto:a@b.example", "ms-settings://x",
                    "http:", "http:/", "http://", "http:///x", "http://?x", "http://#x",
                    "http://:80/x", "http:\\\\a", "xhttp://a", " http://a", "http://a ",
                    "http://a b", "http://a/!", "http://a/!TEMP!", "http://a\tb", "http://a\"b",
                    "http://a'b", "http://a`b", "http://a\r\ncalc", "http://a\ncalc",
                    "http://a\x7F", std::string("http://a\0calc", 13), "http://a/\xC3\xA4",
                    "http://a/\xEF\xBC\x82", "http://user@a/",
                    "http://www.tonmira.example@b.example/", "http://user:word@a/"));

TEST(WebAddress, OfMoreThanFifteenHundredCharactersIsNotStarted) {
  const std::string longest = "http://a/" + std::string(1491, 'b');
  EXPECT_TRUE(IsWebAddress(longest));
  EXPECT_FALSE(IsWebAddress(longest + "b"));
  EXPECT_FALSE(IsWebAddress("http://a/" + std::string(10'000'000, 'b')));
}

TEST(PageAddress, IsOfTheWebAndWithoutAName) {
  for (const char* address : {"about:blank", "http://a", "HTTPS://a.example/b?c='!'#d",
                              "http://a/@b", "http://[::1]:8080/"}) {
    EXPECT_TRUE(IsPageAddress(address)) << address;
  }
  for (const char* address :
       {"", "about:", "about:blank#x", "file:///C:/x.htm", "file://host/share/x",
        "\\\\host\\share\\x", "mailto:a@b.example", "res://x", "ftp://a", "javascript:x",
        "http://user@a/", "http://:x@a/", "http://", "http:///x", "C:\\x.htm"}) {
    EXPECT_FALSE(IsPageAddress(address)) << address;
  }
}

TEST(MailAddress, IsOnePersonAndNothingMore) {
  for (const char* link : {"mailto:support@tonmira.example", "MAILTO:a.b_c+d-e@f-g.example"}) {
    EXPECT_TRUE(IsMailAddress(link)) << link;
  }
  const std::string longest = "mailto:" + std::string(311, 'a') + "@b";
  EXPECT_TRUE(IsMailAddress(longest));
  EXPECT_FALSE(IsMailAddress(longest + "c"));
  for (const char* link :
       {"", "mailto:", "mailto:a", "mailto:@b", "mailto:a@", "mailto:a@b@c", "mailto: a@b", "a@b",
        "mailto:a@b?subject=x", "mailto:a@b&calc", "mailto:a@b,c@d", "mailto:a@b;c",
        "mailto:a@b%20", "mailto:\"a\"@b", "mailto:a@b!", "http://a@b", "mailto:a@b\r\ncalc"}) {
    EXPECT_FALSE(IsMailAddress(link)) << link;
  }
}

TEST(StartCommand, AnOrdinaryLinkStandsThereAsItIs) {
  EXPECT_EQ(StartCommand("https://www.tonmira.example/files/setup-2.3.7.exe?from=2.3.6,a;b#top"),
            "cmd /c start "
            "https://www.tonmira.example/files/setup-2.3.7.exe?from=2.3.6,a;b#top");
}

TEST(StartCommand, WhatTheCommandInterpreterActsOnIsMarked) {
  EXPECT_EQ(StartCommand("http://a/&calc"), "cmd /c start http://a/^&calc");
  EXPECT_EQ(StartCommand("http://a/&&calc"), "cmd /c start http://a/^&^&calc");
  EXPECT_EQ(StartCommand("http://a/|calc"), "cmd /c start http://a/^|calc");
  EXPECT_EQ(StartCommand("http://a/>b<c"), "cmd /c start http://a/^>b^<c");
  EXPECT_EQ(StartCommand("http://a/(b)"), "cmd /c start http://a/^(b^)");
  EXPECT_EQ(StartCommand("http://a/^"), "cmd /c start http://a/^^");
  EXPECT_EQ(StartCommand("http://a/^&calc"), "cmd /c start http://a/^^^&calc");
}

TEST(StartCommand, NoVariableIsPutIntoTheAddress) {
  EXPECT_EQ(StartCommand("http://a/%20b%2fc"), "cmd /c start http://a/^%^20b^%^2fc");
  EXPECT_EQ(StartCommand("http://a/%TEMP%"), "cmd /c start http://a/^%^25TEMP^%^25");
  EXPECT_EQ(StartCommand("http://a/%PATH:~0,1%"), "cmd /c start http://a/^%^25PATH:~0,1^%^25");
  EXPECT_EQ(StartCommand("http://a/%%%&"), "cmd /c start http://a/^%^25^%^25^%^25^&");
  EXPECT_EQ(StartCommand("http://a/%2"), "cmd /c start http://a/^%^252");
}

// The command interpreter takes no more than 8191 characters.
TEST(StartCommand, TheLongestLinkFitsIntoACommand) {
  for (const char c : std::string("&%")) {
    EXPECT_LE(StartCommand("http://a/" + std::string(1491, c)).size(), 8191u);
  }
}

}  // namespace
}  // namespace online
