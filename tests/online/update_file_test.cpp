#include "online/update_file.h"

#include <gtest/gtest.h>

#include <string>

namespace online {
namespace {

std::string Repeated(const std::string& text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

TEST(UpdateFile, LineOneIsTheVersionAndLineTwoTheLinkWithItsCommas) {
  const auto file = ParseUpdateFile("237\r\nhttp://a/b,c \r\nthird\r\n");
  ASSERT_TRUE(file);
  EXPECT_EQ(file->version, "237");
  EXPECT_EQ(file->link, "http://a/b,c ");
}

TEST(UpdateFile, LinesMayEndInAnyWayAndTheLastNeedNotEnd) {
  for (const std::string content : {"237\nlink", "237\rlink", "237\r\nlink", "237\nlink\r\n"}) {
    const auto file = ParseUpdateFile(content);
    ASSERT_TRUE(file);
    EXPECT_EQ(file->version, "237");
    EXPECT_EQ(file->link, "link");
  }
}

TEST(UpdateFile, AnEmptyOneHasEmptyLines) {
  const auto file = ParseUpdateFile("");
  ASSERT_TRUE(file);
  EXPECT_EQ(file->version, "");
  EXPECT_EQ(file->link, "");
}

TEST(UpdateFile, EightLinesAreTakenAndNineAreNot) {
  EXPECT_TRUE(ParseUpdateFile(Repeated("237\r\n", 8)));
  EXPECT_TRUE(ParseUpdateFile(Repeated("\r\n", 8)));
  EXPECT_FALSE(ParseUpdateFile(Repeated("237\r\n", 9)));
  EXPECT_FALSE(ParseUpdateFile(Repeated("237\r\n", 8) + "x"));
  EXPECT_FALSE(ParseUpdateFile(Repeated("\r\n", 9)));
  EXPECT_FALSE(ParseUpdateFile(Repeated("237\r\n", 10'000)));
}

TEST(UpdateFile, ALineOfAnyLengthAndContentIsTaken) {
  const std::string line = std::string(1'000'000, '\xFF') + std::string(3, '\0');
  const auto file = ParseUpdateFile(line + "\r\n" + line);
  ASSERT_TRUE(file);
  EXPECT_EQ(file->version, line);
  EXPECT_EQ(file->link, line);
}

TEST(Version, OnlyANumberAbove236IsNewer) {
  for (const std::string version : {"237", "1000", "236.5", " 237", "237abc", "+237", "1e3",
                                    "237 <html>", "99999999999999999999", "1e99999"}) {
    EXPECT_TRUE(IsNewer(version)) << version;
  }
  for (const std::string version :
       {"236", "235", "0", "", "2.3.7", "2.37", "-237", "abc237", "<html>", "v237", ".", "-",
        "\xFF\xFE", "1e-99999", "-1e99999", "\t-1e99999", "0x1000", "e9"}) {
    EXPECT_FALSE(IsNewer(version)) << version;
  }
  EXPECT_FALSE(
      IsNewer(std::string("\0"
                          "237",
                          4)));
  EXPECT_TRUE(IsNewer(std::string(1'000'000, '9')));
  EXPECT_FALSE(IsNewer(std::string(1'000'000, '0')));
}

TEST(Version, ItsFirstThreeCharactersAreShownWithPoints) {
  EXPECT_EQ(DottedVersion("237"), "2.3.7");
  EXPECT_EQ(DottedVersion("1000"), "1.0.0");
  EXPECT_EQ(DottedVersion("9e"), "9.e.");
  EXPECT_EQ(DottedVersion("9"), "9..");
  EXPECT_EQ(DottedVersion(""), "..");
  EXPECT_EQ(DottedVersion(" 237"), " .2.3");
}

}  // namespace
}  // namespace online
