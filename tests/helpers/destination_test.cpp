#include "helpers/destination.h"

#include <gtest/gtest.h>

#include <string>

namespace helpers {
namespace {

struct Base {
  std::string text;
  bool encrypted;
  std::string host;
  int port;
  std::string folder;
};

class DestinationTest : public testing::TestWithParam<Base> {};

TEST_P(DestinationTest, IsTheBaseTakenApart) {
  const Destination destination = DestinationOf(GetParam().text);
  EXPECT_EQ(destination.encrypted, GetParam().encrypted);
  EXPECT_EQ(destination.host, GetParam().host);
  EXPECT_EQ(destination.port, GetParam().port);
  EXPECT_EQ(destination.folder, GetParam().folder);
}

INSTANTIATE_TEST_SUITE_P(
    Bases, DestinationTest,
    testing::Values(Base{"https://www.tonmira.example", true, "www.tonmira.example", 443, ""},
                    Base{"http://a", false, "a", 80, ""},
                    Base{"HTTP://A.EXAMPLE", false, "A.EXAMPLE", 80, ""},
                    Base{"HttpS://a", true, "a", 443, ""},
                    Base{"http://127.0.0.1:8080", false, "127.0.0.1", 8080, ""},
                    Base{"https://a:65535/b/c.d", true, "a", 65535, "/b/c.d"},
                    Base{"http://a:80/b", false, "a", 80, "/b"},
                    Base{"https://a/tonmira", true, "a", 443, "/tonmira"}));

}  // namespace
}  // namespace helpers
