#include "base/errors.h"
#include "tests/app/fixture.h"

namespace app {
namespace {

using base::ErrorCode;

// What of the surroundings is missing, and how the program answers.
struct FolderFault {
  std::string name;
  std::function<void(platform::simulated::Simulation&)> arrange;
  Lines messages;
  std::string dialog;  // the second line of the error dialog, where there is one
};

class FolderFaultTest : public ProgramTest, public testing::WithParamInterface<FolderFault> {};

TEST_P(FolderFaultTest, EndsTheProgramWithOneMessageAndNoHang) {
  GetParam().arrange(sim);
  sim.At(1s, [this] {
    EXPECT_TRUE(program->form6.Visible());
    EXPECT_EQ(program->form6.List1.Items()[1], GetParam().dialog);
    program->form6.Command1.Click();
  });
  EXPECT_TRUE(Run());
  EXPECT_EQ(Messages(), GetParam().messages);
  EXPECT_EQ(sim.pump.now_ms() >= 1000, GetParam().messages.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Folders, FolderFaultTest,
    testing::Values(
        FolderFault{"TempUnset",
                    [](auto& sim) { sim.environment.variables.erase("TEMP"); },
                    {},
                    "<Path not found> Not writable: (TEMP)"},
        FolderFault{"TempMissing",
                    [](auto& sim) { sim.files.RemoveFolder(platform::simulated::kTemp); },
                    {},
                    "<Path not found> Not writable: C:\\Temp"},
        FolderFault{"TempFull",
                    [](auto& sim) {
                      sim.files.FailWritesIn(platform::simulated::kTemp, ErrorCode::kDiskFull);
                    },
                    {},
                    "<Disk full> Not writable: C:\\Temp"},
        FolderFault{"TempReadOnly",
                    [](auto& sim) {
                      sim.files.FailWritesIn(platform::simulated::kTemp,
                                             ErrorCode::kPermissionDenied);
                    },
                    {},
                    "<Permission denied> Not writable: C:\\Temp"},
        FolderFault{"AppDataUnset",
                    [](auto& sim) { sim.environment.variables.erase("APPDATA"); },
                    {"exclamation [Write error] Write error"},
                    ""},
        FolderFault{"AppDataMissing",
                    [](auto& sim) { sim.files.RemoveFolder(platform::simulated::kAppData); },
                    {"exclamation [Write error] Write error"},
                    ""}),
    [](const auto& fault) { return fault.param.name; });

}  // namespace
}  // namespace app
