// The language files that ship with the program.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>

#include "lang/language_file.h"

namespace lang {
namespace {

std::string Shipped(const std::string& name) {
  std::ifstream file(std::string(TONMIRA_LANGUAGES) + "/" + name, std::ios::binary);
  std::ostringstream content;
  content << file.rdbuf();
  return content.str();
}

TEST(ShippedLanguagesTest, AreValidAndComplete) {
  for (const std::string code : {"en", "nl"}) {
    const auto file = LanguageFile::Parse(Shipped("lng_" + code + ".dll"), code);
    ASSERT_TRUE(file) << code;
    for (std::size_t slot = 1; slot <= 88; ++slot) {
      EXPECT_FALSE(file->Text(slot).empty()) << code << " " << slot;
    }
    EXPECT_EQ(file->Text(89), "") << code;
  }
}

}  // namespace
}  // namespace lang
