#include "base/text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/field_reader.h"

namespace base {
namespace {

std::vector<std::string> Fields(std::string_view content) {
  FieldReader reader(content);
  std::vector<std::string> fields;
  while (const auto field = reader.Next()) fields.push_back(*field);
  return fields;
}

using Texts = std::vector<std::string>;

TEST(FieldReader, AFieldEndsAtTheEndOfItsLine) {
  EXPECT_EQ(Fields("AutoUpdate=y\r\nSoundBit=128\r\n"), (Texts{"AutoUpdate=y", "SoundBit=128"}));
  EXPECT_EQ(Fields("a\rb\nc"), (Texts{"a", "b", "c"}));
}

TEST(FieldReader, ACommaEndsAField) {
  EXPECT_EQ(Fields("Language=EN,extra\r\nnext\r\n"), (Texts{"Language=EN", "extra", "next"}));
  EXPECT_EQ(Fields("a,,b"), (Texts{"a", "", "b"}));
}

TEST(FieldReader, BlanksAroundAFieldAreDropped) {
  EXPECT_EQ(Fields("  a b  , c \r\n\t d\t\r\n"), (Texts{"a b", "c", "d"}));
}

TEST(FieldReader, QuotesAreRemovedAndKeepWhatTheyHold) {
  EXPECT_EQ(Fields("\" a, b \",c\r\n"), (Texts{" a, b ", "c"}));
  EXPECT_EQ(Fields("\"a\"  ,b"), (Texts{"a", "b"}));
  EXPECT_EQ(Fields("\"never closed\r\nb"), (Texts{"never closed\r\nb"}));
  EXPECT_EQ(Fields("a \"b\" c"), (Texts{"a \"b\" c"}));
}

TEST(FieldReader, AnEmptyLineIsAnEmptyField) {
  EXPECT_EQ(Fields("a\r\n\r\nb\r\n"), (Texts{"a", "", "b"}));
  EXPECT_EQ(Fields("\r\n"), (Texts{""}));
  EXPECT_EQ(Fields(""), (Texts{}));
}

TEST(FieldReader, AtEndTellsWhetherAFieldFollows) {
  FieldReader reader("a\r\n");
  EXPECT_FALSE(reader.AtEnd());
  reader.Next();
  EXPECT_TRUE(reader.AtEnd());
}

TEST(FieldReader, NulBytesAreOrdinaryCharacters) {
  EXPECT_EQ(Fields(std::string_view("a\0b\r\n", 5)), (Texts{std::string("a\0b", 3)}));
}

TEST(Text, LowersAsciiLettersOnly) {
  EXPECT_EQ(ToLower("AutoUpdate=Y Ä"), "autoupdate=y Ä");
}

TEST(Text, RemovesEveryOccurrenceOfAMarker) {
  EXPECT_EQ(RemoveAll("\"C:\\My \"Tones\"\\a.tnf\" ", '"'), "C:\\My Tones\\a.tnf ");
}

TEST(Text, EndsWithComparesTheEnd) {
  EXPECT_TRUE(EndsWith("xtone16.dll", "tone16.dll"));
  EXPECT_FALSE(EndsWith("tone16.dll.exe", "tone16.dll"));
  EXPECT_FALSE(EndsWith("dll", "tone16.dll"));
}

}  // namespace
}  // namespace base
