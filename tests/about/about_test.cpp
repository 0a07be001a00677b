// The about box on a simulated machine.
#include "about/frm_about.h"

#include <gtest/gtest.h>

#include "about/value_text.h"
#include "platform/simulated/simulation.h"
#include "tests/lang/file_of.h"
#include "tests/lang/noting_errors.h"

namespace about {
namespace {

using lang::FileOf;
using Lines = std::vector<std::string>;
using platform::RegistryRoot;
using platform::RegistryType;
using platform::simulated::Kind;

constexpr char kToolKey[] = "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
constexpr char kFolderKey[] = "SOFTWARE\\Microsoft\\Shared Tools Location";
constexpr char kUnavailable[] = "plain [Tonmira] System Information Is Unavailable At This Time";
constexpr char kEnglishDescription[] =
    "Create the most annoying sounds with Tonmira! Any problems? Mail to: support@tonmira.example";
constexpr char kDutchDescription[] =
    "Maak de meest vervelende geluiden met Tonmira! Problemen? Mail dan naar: "
    "support@tonmira.example";

class AboutTest : public testing::Test {
 protected:
  void Open() { box().Show(); }

  void PutTool(const std::string& path) {
    sim.registry.Put(RegistryRoot::kLocalMachine, kToolKey, "PATH", RegistryType::kText, path);
  }

  void PutFolder(const std::string& path) {
    sim.registry.Put(RegistryRoot::kLocalMachine, kFolderKey, "MSINFO", RegistryType::kText, path);
  }

  // What pressing the button starts or says.
  Lines PressSysInfo() {
    Open();
    sim.journal.Clear();
    box().cmdSysInfo.Click();
    return sim.journal.Texts({Kind::kProcess, Kind::kMessage});
  }

  frmAbout& box() { return window; }

  platform::simulated::Simulation sim;
  lang::NotingErrors errors;
  lang::Captions captions{[this](std::int16_t formval) {
                            return formval == lang::kAboutBox ? box().Captions()
                                                              : std::vector<lang::CaptionSlot>{};
                          },
                          [](const lang::LanguageFile&, std::int16_t) {}};
  lang::LanguageLoader languages{sim.services, captions, errors};
  frmAbout window{sim.services, errors, [this] { languages.LanguageAPI("en", lang::kAboutBox); }};
};

TEST_F(AboutTest, ItTellsTitleVersionAndDescription) {
  Open();
  EXPECT_TRUE(box().Visible());
  EXPECT_EQ(box().Caption(), "About Tonmira");
  EXPECT_EQ(box().lblTitle.Caption(), "Tonmira");
  EXPECT_EQ(box().lblVersion.Caption(), "Version 2.3.6");
  EXPECT_EQ(box().lblDescription.Caption(), kEnglishDescription);
  EXPECT_EQ(box().cmdOK.Caption(), "OK");
  EXPECT_EQ(box().cmdSysInfo.Caption(), "&System Info...");
}

TEST_F(AboutTest, TitleAndVersionAreThoseOfTheVersionResource) {
  sim.version_resource.version = {"Tonmira Pro", 10, 0, 65535};
  Open();
  EXPECT_EQ(box().Caption(), "About Tonmira Pro");
  EXPECT_EQ(box().lblTitle.Caption(), "Tonmira Pro");
  EXPECT_EQ(box().lblVersion.Caption(), "Version 10.0.65535");
}

TEST_F(AboutTest, TheLanguageFilesEntry72IsTheButtonsCaption) {
  sim.files.Put("lng_en.dll", FileOf("en", 82));
  Open();
  EXPECT_EQ(box().cmdSysInfo.Caption(), "text 72");
  EXPECT_EQ(box().cmdOK.Caption(), "OK");
  EXPECT_EQ(box().lblDescription.Caption(), kEnglishDescription);
}

TEST_F(AboutTest, AFileOf70EntriesLeavesTheButtonWithoutACaption) {
  sim.files.Put("lng_en.dll", FileOf("en", 70));
  Open();
  EXPECT_EQ(box().cmdSysInfo.Caption(), "");
}

TEST_F(AboutTest, TheDescriptionIsDutchWhereTheOldLanguageFileIs) {
  sim.files.Put("nl.ini", "");
  Open();
  EXPECT_EQ(box().lblDescription.Caption(), kDutchDescription);
  EXPECT_EQ(box().lblVersion.Caption(), "Version 2.3.6");
}

TEST_F(AboutTest, OkEnterEscapeAndTheFrameCloseIt) {
  Open();
  EXPECT_EQ(box().DefaultButton(), &box().cmdOK);
  EXPECT_EQ(box().CancelButton(), &box().cmdOK);
  box().cmdOK.Click();
  EXPECT_FALSE(box().Loaded());
  Open();
  EXPECT_TRUE(box().Visible());
  box().Close();
  EXPECT_FALSE(box().Loaded());
}

TEST_F(AboutTest, TheToolThatTheRegistryNamesIsStarted) {
  PutTool("C:\\Program Files\\Common Files\\MSInfo\\MSINFO32.EXE");
  PutFolder("C:\\Elsewhere");
  EXPECT_EQ(PressSysInfo(),
            (Lines{"start \"C:\\Program Files\\Common Files\\MSInfo\\MSINFO32.EXE\""}));
}

TEST_F(AboutTest, APathThatIsQuotedAlreadyIsNotQuotedTwice) {
  PutTool("\"C:\\Tools\\MSINFO32.EXE\"");
  EXPECT_EQ(PressSysInfo(), (Lines{"start \"C:\\Tools\\MSINFO32.EXE\""}));
}

TEST_F(AboutTest, WithoutThePathTheFolderOfTheSharedToolsIsTried) {
  PutFolder("C:\\Tools");
  sim.files.Put("C:\\Tools\\MSINFO32.EXE", "");
  EXPECT_EQ(PressSysInfo(), (Lines{"start \"C:\\Tools\\MSINFO32.EXE\""}));
}

TEST_F(AboutTest, AFolderWithoutTheToolIsNoUse) {
  PutFolder("C:\\Tools");
  EXPECT_EQ(PressSysInfo(), (Lines{kUnavailable}));
}

TEST_F(AboutTest, WithoutTheKeysThereIsOnlyTheMessage) {
  EXPECT_EQ(PressSysInfo(), (Lines{kUnavailable}));
  EXPECT_TRUE(box().Visible());
}

TEST_F(AboutTest, ANamedToolThatIsMissingLeadsToTheMessage) {
  PutTool("C:\\Gone\\MSINFO32.EXE");
  PutFolder("C:\\Tools");
  sim.files.Put("C:\\Tools\\MSINFO32.EXE", "");
  sim.processes.missing_commands = {"\"C:\\Gone\\MSINFO32.EXE\""};
  EXPECT_EQ(PressSysInfo(), (Lines{kUnavailable}));
  EXPECT_EQ(errors.notes, Lines{});
}

TEST_F(AboutTest, AnEmptyPathLeadsToTheMessage) {
  for (const std::string path : {"", "\"\""}) {
    PutTool(path);
    EXPECT_EQ(PressSysInfo(), (Lines{kUnavailable})) << path;
  }
}

TEST_F(AboutTest, WithoutAVersionResourceOpeningItIsAnErrorOfItsOpener) {
  sim.version_resource.version.reset();
  const auto error = base::Caught([this] { Open(); });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->number(), 53);
  EXPECT_EQ(errors.notes, Lines{});
}

TEST_F(AboutTest, GetKeyValueReadsUnderTheGivenRoot) {
  sim.registry.Put(RegistryRoot::kCurrentUser, "Key", "Value", RegistryType::kText, "text");
  Open();
  EXPECT_EQ(box().GetKeyValue(RegistryRoot::kCurrentUser, "Key", "Value"), "text");
  EXPECT_EQ(box().GetKeyValue(RegistryRoot::kLocalMachine, "Key", "Value"), std::nullopt);
  EXPECT_EQ(box().GetKeyValue(RegistryRoot::kCurrentUser, "Key", "Other"), std::nullopt);
  EXPECT_EQ(box().GetKeyValue(RegistryRoot::kCurrentUser, "Other", "Value"), std::nullopt);
}

using namespace std::string_literals;

TEST(ValueText, ATextEndsAtItsTerminatingZeroOrWithItsBytes) {
  const std::vector<std::pair<std::string, std::string>> cases{{"C:\\Tools\0"s, "C:\\Tools"},
                                                               {"C:\\Tools", "C:\\Tools"},
                                                               {"", ""},
                                                               {"\0"s, ""},
                                                               {"a\0\0\0"s, "a"},
                                                               {"a\0rest\0"s, "a"}};
  for (const auto& [data, text] : cases) {
    EXPECT_EQ(ValueText({RegistryType::kText, data}), text);
  }
}

TEST(ValueText, ALongTextIsWhole) {
  const std::string longer(5000, 'x');
  EXPECT_EQ(ValueText({RegistryType::kText, longer + '\0'}), longer);
}

TEST(ValueText, ANumberIsItsHexadecimalDigitsMostSignificantByteFirst) {
  const std::vector<std::pair<std::string, std::string>> cases{{"\x2A\0\0\0"s, "&h0000002A"},
                                                               {"\x78\x56\x34\x12", "&h12345678"},
                                                               {"\x10\x9A\xBC\xE0", "&hE0BC9A10"},
                                                               {"\xFF\xFF\xFF\xFF", "&hFFFFFFFF"},
                                                               {"\0\0\0\0"s, "&h00000000"}};
  for (const auto& [data, text] : cases) {
    EXPECT_EQ(ValueText({RegistryType::kNumber, data}), text);
  }
}

TEST(ValueText, AnythingElseIsItsRawBytes) {
  for (const std::string& data : {"\x01\x00\xFF"s, ""s, "\0\0"s}) {
    EXPECT_EQ(ValueText({RegistryType::kOther, data}), data);
  }
}

}  // namespace
}  // namespace about
