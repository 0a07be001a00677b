// What a page may do.
#include "platform/page_policy.h"

#include <gtest/gtest.h>

namespace platform {
namespace {

// Numbers of urlmon.h.
constexpr std::uint32_t kUrlActionCredentials = 0x1A00;
constexpr std::uint32_t kUrlPolicyAllow = 0x00;
constexpr std::uint32_t kUrlPolicyDisallow = 0x03;
constexpr std::uint32_t kUrlPolicyAnonymous = 0x30000;

TEST(PagePolicy, NobodyIsToldWhoTheUserIs) {
  EXPECT_EQ(PolicyOf(kUrlActionCredentials), kUrlPolicyAnonymous);
}

TEST(PagePolicy, AllElseIsForbidden) {
  for (std::uint32_t action = 0x1000; action < 0x3000; ++action) {
    if (action == kUrlActionCredentials) continue;
    ASSERT_EQ(PolicyOf(action), kUrlPolicyDisallow) << std::hex << action;
    ASSERT_NE(PolicyOf(action), kUrlPolicyAllow);
  }
}

TEST(PagePolicy, OnlyTheWebIsOfTheWeb) {
  EXPECT_TRUE(IsOfWeb(L"http://a.example/x"));
  EXPECT_TRUE(IsOfWeb(L"HTTPS://a.example/x"));
  for (const wchar_t* address : {L"file://host/share/x.png", L"\\\\host\\share\\x.png",
                                 L"about:blank", L"res://shell32.dll/x", L"mk:@MSITStore:x", L""}) {
    EXPECT_FALSE(IsOfWeb(address)) << testing::PrintToString(address);
  }
}

// 1 the page is going, 2 the user asked for it, 4 the first of its page, 8 a key was held.
TEST(PagePolicy, AWindowIsTheUsersWhenTheUserAskedForIt) {
  for (const std::uint32_t flags : {2u, 2u | 4u, 2u | 8u, 1u | 2u}) {
    EXPECT_TRUE(AskedByUser(flags)) << flags;
  }
  for (const std::uint32_t flags : {0u, 1u, 4u, 8u, 4u | 8u})
    EXPECT_FALSE(AskedByUser(flags)) << flags;
}

}  // namespace
}  // namespace platform
