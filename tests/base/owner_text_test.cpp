#include "base/owner_text.h"

#include <gtest/gtest.h>

namespace base {
namespace {

TEST(OwnerText, IsTheProcessAndWhenItBegan) {
  EXPECT_EQ(OwnerText({4711, 133000000000000000}), "4711 133000000000000000");
}

TEST(OwnerText, IsReadBack) {
  for (const Owner owner : {Owner{0, 0}, Owner{8, 1}, Owner{0xFFFFFFFF, 0xFFFFFFFFFFFFFFFF}}) {
    EXPECT_EQ(ParseOwner(OwnerText(owner)), owner);
  }
}

TEST(OwnerText, NothingElseIs) {
  for (const char* text : {"", " ", "1", "1 ", " 1 2", "1  2", "1 2 ", "1 2 3", "-1 2", "1 -2",
                           "1,2", "a b", "4294967296 1", "1 18446744073709551616", "1\t2"}) {
    EXPECT_EQ(ParseOwner(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace base
