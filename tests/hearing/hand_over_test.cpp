// The hand-over file of the main program.
#include "hearing/hand_over.h"

#include <gtest/gtest.h>

#include <string>

namespace hearing {
namespace {

TEST(HandOver, TheSecondLineIsTheLanguage) {
  EXPECT_EQ(LanguageOf("128\r\nnl\r\n"), Language::kDutch);
  EXPECT_EQ(LanguageOf("128\r\nen\r\n"), Language::kEnglish);
  for (const std::string code : {"16", "32", "64", "256"}) {
    EXPECT_EQ(LanguageOf(code + "\r\nnl\r\n"), Language::kDutch) << code;
  }
}

TEST(HandOver, BlanksAndLineEndsMayDiffer) {
  EXPECT_EQ(LanguageOf(" 128 \n nl\t"), Language::kDutch);
  EXPECT_EQ(LanguageOf("128\rnl\r"), Language::kDutch);
}

TEST(HandOver, ADamagedFileIsEnglish) {
  for (const std::string file :
       {"", "\r\n", "nl", "nl\r\nnl\r\n", "128", "128\r\n", "128\r\n\r\nnl\r\n", "1280\r\nnl\r\n",
        "-128\r\nnl\r\n", "128\r\nNL\r\n", "128\r\nnld\r\n", "128\r\nn\r\n", "128 nl\r\n",
        "128\r\nnl\r\nmore\r\n", "128\r\nde\r\n"}) {
    EXPECT_EQ(LanguageOf(file), Language::kEnglish) << file;
  }
  EXPECT_EQ(LanguageOf(std::string("128\r\nnl\0\r\n", 9)), Language::kEnglish);
  EXPECT_EQ(LanguageOf(std::string(100000, '1')), Language::kEnglish);
}

}  // namespace
}  // namespace hearing
