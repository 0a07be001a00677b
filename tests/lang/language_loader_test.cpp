// Loading a language file into a window that has a few captions.
#include "tests/lang/fixture.h"

namespace lang {
namespace {

using platform::simulated::Operation;

constexpr char kDutch[] = "lng_nl.dll";

TEST_F(LanguageLoaderTest, EveryCaptionOfTheWindowTakesTheTextOfItsSlot) {
  sim.files.Put(kDutch, FileOf("nl", 79));
  loader.LanguageAPI("nl", kMainWindow);
  EXPECT_EQ(window.Option1.Caption(), "text 4");
  EXPECT_EQ(window.exit.Caption(), "text 20");
  EXPECT_EQ(window.Label1.Caption(), "text 73");
  EXPECT_EQ(window.Caption(), "text 48");
  EXPECT_EQ(asked, (Lines{"1"}));
}

TEST_F(LanguageLoaderTest, TheMessageTextsAreTakenOverAfterTheCaptions) {
  sim.files.Put(kDutch, FileOf("nl", 79));
  loader.LanguageAPI("nl", kMainWindow);
  EXPECT_EQ(texts.status, "text 29");
  EXPECT_EQ(texts.microphone_prefix, "text 56, text 57");
  EXPECT_EQ(taken, (Lines{"1 with Option1 as text 4"}));
}

TEST_F(LanguageLoaderTest, AnotherWindowNumberChangesNoCaptionButTakesTheMessageTexts) {
  sim.files.Put(kDutch, FileOf("nl", 79));
  loader.LanguageAPI("nl", 7);
  EXPECT_EQ(window.Option1.Caption(), "Low pitch");
  EXPECT_EQ(texts.status, "text 29");
  EXPECT_EQ(taken, (Lines{"7 with Option1 as Low pitch"}));
}

TEST_F(LanguageLoaderTest, ATextThatMayBeMissingLeavesItsCaption) {
  sim.files.Put(kDutch, FileOf("nl", 72));
  loader.LanguageAPI("nl", kMainWindow);
  EXPECT_EQ(window.Option1.Caption(), "text 4");
  EXPECT_EQ(window.Label1.Caption(), "Select a mode");
}

TEST_F(LanguageLoaderTest, ALanguageThatIsNotShippedNeedsItsFileOnly) {
  sim.files.Put("lng_fr.dll", FileOf("fr", 82));
  loader.LanguageAPI("fr", kMainWindow);
  EXPECT_EQ(window.Option1.Caption(), "text 4");
}

TEST_F(LanguageLoaderTest, AMissingFileChangesNothing) {
  loader.LanguageAPI("nl", kMainWindow);
  EXPECT_EQ(window.Option1.Caption(), "Low pitch");
  EXPECT_EQ(taken, Lines{});
  EXPECT_EQ(errors.notes, Lines{});
}

TEST_F(LanguageLoaderTest, AReadErrorIsReportedUnderItsErrorValue) {
  sim.files.Put(kDutch, FileOf("nl", 79));
  sim.files.Fail(Operation::kRead, kDutch, base::ErrorCode::kDeviceError);
  loader.LanguageAPI("nl", kMainWindow);
  EXPECT_EQ(errors.notes, (Lines{"error 57, value 1015"}));
  EXPECT_EQ(window.Option1.Caption(), "Low pitch");
}

struct BadFile {
  std::string name;
  std::string content;
};

class BadLanguageFileTest : public LanguageLoaderTest,
                            public testing::WithParamInterface<BadFile> {};

TEST_P(BadLanguageFileTest, ChangesNothingAndShowsNothing) {
  sim.files.Put(kDutch, GetParam().content);
  loader.LanguageAPI("nl", kMainWindow);
  EXPECT_EQ(window.Option1.Caption(), "Low pitch");
  EXPECT_EQ(texts.status, "Actual pitch (Hertz):");
  EXPECT_TRUE(sim.journal.Texts({Kind::kMessage}).empty());
  EXPECT_EQ(errors.notes, Lines{});
}

std::string Without(const std::string& content, char removed) {
  std::string rest;
  for (const char c : content) {
    if (c != removed) rest += c;
  }
  return rest;
}

INSTANTIATE_TEST_SUITE_P(
    Files, BadLanguageFileTest,
    testing::Values(BadFile{"Empty", ""}, BadFile{"OneEntry", "%valid%\r\n"},
                    BadFile{"WrongMarker", FileOf("nl", 79, {{1, "%Valid%"}})},
                    BadFile{"LanguageInCapitals", FileOf("nl", 79, {{2, "lang=NL"}})},
                    BadFile{"WrongLanguage", FileOf("en", 79)},
                    BadFile{"WrongThirdLine", FileOf("nl", 79, {{3, "<2>"}})},
                    BadFile{"EmptyText", FileOf("nl", 79, {{20, ""}})},
                    BadFile{"TextOfOneBlank", FileOf("nl", 79, {{31, "\" \""}})},
                    BadFile{"TooFewEntries", FileOf("nl", 67)},
                    BadFile{"NoLineEnds", Without(Without(FileOf("nl", 79), '\r'), '\n')},
                    BadFile{"Binary", std::string(5000, '\x80') + std::string(100, '\0')},
                    BadFile{"AVeryLongLine", std::string(10 << 20, 'x')},
                    BadFile{"AQuoteThatIsNeverClosed", FileOf("nl", 79, {{4, "\"never closed"}})},
                    BadFile{"ACommaThatShiftsAnEmptyTextIntoACheckedSlot",
                            FileOf("nl", 79, {{10, "a,b"}, {30, ""}})}),
    [](const auto& bad) { return bad.param.name; });

}  // namespace
}  // namespace lang
