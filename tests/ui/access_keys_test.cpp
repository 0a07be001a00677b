#include "ui/access_keys.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ui {
namespace {

using Captions = std::vector<std::string>;

TEST(AccessKeys, EveryCaptionGetsALetterOfItsOwn) {
  EXPECT_EQ(WithAccessKeys({"File", "Settings", "Low pitch", "High pitch", "Stop Sound"}),
            (Captions{"&File", "&Settings", "&Low pitch", "&High pitch", "S&top Sound"}));
}

TEST(AccessKeys, AFirstLetterIsNotTakenBySomeOtherCaptionsSecondWord) {
  EXPECT_EQ(WithAccessKeys({"Settings", "Spooky pitch", "Play Sound"}),
            (Captions{"&Settings", "Sp&ooky pitch", "&Play Sound"}));
}

TEST(AccessKeys, TheFirstLetterOfAnotherWordComesBeforeALetterInside) {
  EXPECT_EQ(WithAccessKeys({"Low pitch", "Low to high"}), (Captions{"&Low pitch", "Low &to high"}));
}

TEST(AccessKeys, ACaptionThatBeginsWithItsMarkComesBeforeAllOthers) {
  EXPECT_EQ(WithAccessKeys({"Stop", "OK", "&System Info..."}),
            (Captions{"S&top", "&OK", "&System Info..."}));
}

TEST(AccessKeys, TwoCaptionsWithTheSameMarkGetDifferentLetters) {
  EXPECT_EQ(WithAccessKeys({"&Stop", "&Start"}), (Captions{"&Stop", "S&tart"}));
}

TEST(AccessKeys, AnAmpersandElsewhereIsPartOfTheText) {
  EXPECT_EQ(WithAccessKeys({"R&B", "& so on", "&"}), (Captions{"&R&&B", "&& &so on", "&&"}));
}

TEST(AccessKeys, ACaptionWithoutAFreeLetterGetsNone) {
  EXPECT_EQ(WithAccessKeys({"A", "a", "+"}), (Captions{"&A", "a", "+"}));
}

TEST(AccessKeys, AnAmpersandOfTheTextStaysVisible) {
  EXPECT_EQ(WithAccessKeys({"R&D"}), (Captions{"&R&&D"}));
}

}  // namespace
}  // namespace ui
