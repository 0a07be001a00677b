#include "display/dx_record.h"

#include <gtest/gtest.h>

#include <chrono>
#include <optional>

#include "platform/simulated/simulation.h"
#include "settings/error_notes.h"
#include "settings/form6.h"

namespace display {
namespace {

using namespace std::chrono_literals;
using platform::simulated::CaptureCall;
using platform::simulated::Kind;
using Lines = std::vector<std::string>;

class NoScene : public settings::ErrorScene {
 public:
  explicit NoScene(ui::WindowSystem& windows)
      : dialog_(
            windows, [] {}, [] {}) {}

  settings::Form6& ErrorDialog() override { return dialog_; }
  void HideOtherWindows() override {}

 private:
  settings::Form6 dialog_;
};

class NoUpload : public settings::LogUpload {
 public:
  void FTPSend(const std::string&, const std::string&) override {}
};

class RecordTest : public testing::Test {
 protected:
  RecordTest() { Make(); }

  void Make() {
    record.emplace(sim.services, errors, owner);
    record->GotWaveData = [this](auto block, auto bits, auto channels) {
      blocks.emplace_back(block.begin(), block.end());
      EXPECT_EQ(bits, 16);
      EXPECT_EQ(channels, 2);
    };
  }

  std::string Initialize() { return record->Initialize(44100, 16, 2, 0, ""); }

  // Lets the buffer be filled for a while.
  void Listen(std::chrono::milliseconds time) {
    for (auto passed = 0ms; passed < time; passed += 10ms) {
      sim.pump.Sleep(10);
      sim.pump.ProcessPending();
    }
  }

  Lines Calls() const { return sim.journal.Texts({Kind::kSound}); }

  platform::simulated::Simulation sim;
  NoScene scene{sim.windows};
  NoUpload upload;
  settings::MainState state;
  settings::ErrorNotes errors{sim.services, state, scene, upload};
  ui::Window owner{sim.windows, {"Owner", "", 10, 10}};
  std::optional<frmDX_Record> record;
  std::vector<std::vector<std::uint8_t>> blocks;
};

TEST_F(RecordTest, InitializePreparesTheFirstDeviceInItsOrder) {
  sim.sound_capture.devices = {"first", "second"};
  EXPECT_EQ(Initialize(), "");
  EXPECT_EQ(Calls(),
            (Lines{"capture root", "capture devices", "capture device first",
                   "capture buffer of 35280 bytes, 44100 Hz, 16 bits, 2 channels", "capture event",
                   "capture event", "capture event", "capture positions 1 17640 -1"}));
}

TEST_F(RecordTest, TheFormatFollowsFromItsArguments) {
  EXPECT_EQ(Initialize(), "");
  EXPECT_EQ(record->Format().format_tag, 1);
  EXPECT_EQ(record->Format().channels, 2);
  EXPECT_EQ(record->Format().samples_per_second, 44100);
  EXPECT_EQ(record->Format().bits_per_sample, 16);
  EXPECT_EQ(record->Format().block_alignment, 4);
  EXPECT_EQ(record->Format().average_bytes_per_second, 176400);
  EXPECT_EQ(record->HalfBufferSize(), 17640);
  EXPECT_EQ(record->BufferSize(), 35280);
}

TEST_F(RecordTest, AGivenHalfBufferIsRoundedDownToWholeSamplesOfAllChannels) {
  EXPECT_EQ(record->Initialize(44100, 16, 2, 1003, ""), "");
  EXPECT_EQ(record->HalfBufferSize(), 1000);
  EXPECT_EQ(record->BufferSize(), 2000);
  // 22050 x 1 byte, a tenth of it 2205.
  EXPECT_EQ(record->Initialize(22050, 8, 1, -5, ""), "");
  EXPECT_EQ(record->HalfBufferSize(), 2205);
  // 11025 x 4 bytes / 10 = 4410, a multiple of 4 is 4408.
  EXPECT_EQ(record->Initialize(11025, 16, 2, 0, ""), "");
  EXPECT_EQ(record->HalfBufferSize(), 4408);
}

TEST_F(RecordTest, ANamedDeviceIsTakenWithoutAskingForOthers) {
  EXPECT_EQ(record->Initialize(44100, 16, 2, 0, "second"), "");
  EXPECT_EQ(Calls()[1], "capture device second");
}

TEST_F(RecordTest, FormatsThatDoNotFitAreAFailureNotAnError) {
  EXPECT_NE(record->Initialize(44100, 16, 32767, 0, ""), "");
  EXPECT_NE(record->Initialize(2000000000, 16, 2, 0, ""), "");
  EXPECT_NE(record->Initialize(44100, 0, 2, 0, ""), "");
  EXPECT_NE(record->Initialize(44100, 16, 2, 2000000000, ""), "");
}

TEST_F(RecordTest, TheFirstEventReadsTheSecondHalfAndTheSecondEventTheFirst) {
  sim.sound_capture.sound = [](std::uint32_t at) {
    return static_cast<std::uint8_t>(at < 17640 ? 1 : 2);
  };
  Initialize();
  record->SoundPlay();
  sim.journal.Clear();
  Listen(210ms);
  EXPECT_EQ(Calls(), (Lines{"capture read 0 to 17639", "capture read 17640 to 35279"}));
  ASSERT_EQ(blocks.size(), 2u);
  EXPECT_EQ(blocks[0], std::vector<std::uint8_t>(17640, 1));
  EXPECT_EQ(blocks[1], std::vector<std::uint8_t>(17640, 2));
}

TEST_F(RecordTest, TheStopEventAndUnknownOnesRaiseNothing) {
  Initialize();
  sim.journal.Clear();
  for (const std::int32_t id : {503, 0, -1, 77}) record->DirectXEvent8_DXCallback(id);
  EXPECT_TRUE(Calls().empty());
  EXPECT_TRUE(blocks.empty());
}

TEST_F(RecordTest, NotificationsAfterTheBufferIsGoneAreIgnored) {
  Initialize();
  record->SoundPlay();
  auto late = sim.sound_capture.callbacks;
  record->UninitializeSound();
  for (const auto& [id, callback] : late) callback(id);
  EXPECT_TRUE(blocks.empty());
}

TEST_F(RecordTest, PlayAndStopWithoutABufferDoNothing) {
  EXPECT_TRUE(record->SoundPlay());
  EXPECT_TRUE(record->SoundStop());
  record->UninitializeSound();
  EXPECT_TRUE(Calls().empty());
}

TEST_F(RecordTest, PlayLoopsAndStopEnds) {
  Initialize();
  sim.journal.Clear();
  EXPECT_TRUE(record->SoundPlay());
  EXPECT_EQ(sim.sound_capture.running_buffers, 1);
  EXPECT_TRUE(record->SoundStop());
  EXPECT_EQ(sim.sound_capture.running_buffers, 0);
  EXPECT_EQ(Calls(), (Lines{"capture start 1", "capture stop"}));
}

TEST_F(RecordTest, EveryStepThatFailsIsToldAndLeavesNothingBehind) {
  for (const CaptureCall call :
       {CaptureCall::kRoot, CaptureCall::kDevices, CaptureCall::kDevice, CaptureCall::kBuffer,
        CaptureCall::kEvent, CaptureCall::kPositions}) {
    sim.sound_capture.Fail(call);
    EXPECT_NE(Initialize(), "") << static_cast<int>(call);
    record->SoundPlay();
    EXPECT_EQ(sim.sound_capture.running_buffers, 0);
    record.reset();
    EXPECT_EQ(sim.sound_capture.live_objects, 0);
    sim.sound_capture.Heal();
    Make();
  }
  EXPECT_EQ(Initialize(), "");
}

TEST_F(RecordTest, WithoutADeviceTheFailureSaysSo) {
  sim.sound_capture.devices.clear();
  EXPECT_EQ(Initialize(), "No recording device was found.");
}

// Some systems refuse the list of devices, others the device or its buffer.
TEST_F(RecordTest, WhereWindowsDoesNotAllowItTheFailureSaysWhereToAllowIt) {
  for (const CaptureCall call :
       {CaptureCall::kDevices, CaptureCall::kDevice, CaptureCall::kBuffer}) {
    sim.sound_capture.Fail(call, base::ErrorCode::kPermissionDenied);
    EXPECT_EQ(Initialize(),
              "Windows does not let this program use the microphone. Allow it in the Windows "
              "settings: Privacy, Microphone, \"Let desktop apps access your microphone\".");
    sim.sound_capture.Heal();
  }
}

TEST_F(RecordTest, ADeviceThatIsUnpluggedWhileItRecordsHandsOverNothing) {
  Initialize();
  record->SoundPlay();
  auto under_way = sim.sound_capture.callbacks;
  sim.sound_capture.plugged_in = false;
  for (const auto& [id, callback] : under_way) callback(id);
  Listen(500ms);
  EXPECT_TRUE(blocks.empty());
  EXPECT_TRUE(sim.journal.Texts({Kind::kMessage, Kind::kWindow}).empty());
  EXPECT_TRUE(record->SoundStop());
}

TEST_F(RecordTest, ClosingTheFormReleasesEverything) {
  Initialize();
  record->SoundPlay();
  EXPECT_GT(sim.sound_capture.live_objects, 0);
  record.reset();
  EXPECT_EQ(sim.sound_capture.live_objects, 0);
  EXPECT_EQ(sim.sound_capture.running_buffers, 0);
  EXPECT_EQ(sim.pump.running_timers(), 0u);
}

TEST_F(RecordTest, AnErrorWhileABlockIsHandledIsReportedAs9901) {
  Initialize();
  record->GotWaveData = [](auto, auto, auto) {
    throw base::RuntimeError(base::ErrorCode::kOutOfMemory);
  };
  sim.At(1s, [this] { scene.ErrorDialog().Command1.Click(); });
  record->DirectXEvent8_DXCallback(501);
  EXPECT_EQ(sim.Lines("C:\\Temp\\error.log")[0], "Error number:  7,   Error value:  9901");
}

}  // namespace
}  // namespace display
