// Where a download may be sent on to.
#include "platform/redirections.h"

#include <gtest/gtest.h>

namespace platform {
namespace {

TEST(Redirection, StaysOnTheWeb) {
  EXPECT_TRUE(MayFollow(L"http://a.example/x", L"http://b.example/y"));
  EXPECT_TRUE(MayFollow(L"HTTP://a.example/x", L"Http://b.example/y"));
  for (const wchar_t* to : {L"file:///C:/x", L"\\\\host\\share\\x", L"ftp://a/x", L"res://x", L"",
                            L"httpx://a", L"http:", L"data:text/plain,237"}) {
    EXPECT_FALSE(MayFollow(L"http://a.example/x", to)) << testing::PrintToString(to);
    EXPECT_FALSE(MayFollow(L"https://a.example/x", to)) << testing::PrintToString(to);
  }
}

TEST(Redirection, MayBecomeEncryptedButNeverTheOtherWayRound) {
  EXPECT_TRUE(MayFollow(L"http://a.example/x", L"https://a.example/x"));
  EXPECT_TRUE(MayFollow(L"https://a.example/x", L"https://b.example/x"));
  EXPECT_TRUE(MayFollow(L"https://a.example/x", L"HTTPS://b.example/x"));
  EXPECT_FALSE(MayFollow(L"https://a.example/x", L"http://a.example/x"));
  EXPECT_FALSE(MayFollow(L"HTTPS://a.example/x", L"HTTP://a.example/x"));
  EXPECT_FALSE(MayFollow(L"", L"http://a.example/x"));
}

}  // namespace
}  // namespace platform
