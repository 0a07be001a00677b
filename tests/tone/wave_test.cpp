#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/errors.h"
#include "platform/simulated/simulation.h"
#include "tone/process_killer.h"
#include "tone/wave_image.h"
#include "tone/wave_output.h"

namespace tone {
namespace {

using base::ErrorCode;
using platform::simulated::Kind;
using platform::simulated::Operation;
using Lines = std::vector<std::string>;

constexpr char kWave[] = "C:\\Temp\\tnfwinmmtmp.wav";

std::uint32_t Field(const std::string& image, std::size_t offset, int bytes) {
  std::uint32_t value = 0;
  for (int i = bytes - 1; i >= 0; --i) {
    value = value << 8 | static_cast<unsigned char>(image[offset + static_cast<std::size_t>(i)]);
  }
  return value;
}

TEST(WaveImageTest, OneStereoSecondHasTheExpectedHeader) {
  const std::string image = WaveImage(SampleBuffer(2, 44100), 44100, 16);
  ASSERT_EQ(image.size(), 176444u);
  EXPECT_EQ(image.substr(0, 4), "RIFF");
  EXPECT_EQ(Field(image, 4, 4), 176436u);
  EXPECT_EQ(image.substr(8, 8), "WAVEfmt ");
  EXPECT_EQ(Field(image, 16, 4), 16u);
  EXPECT_EQ(Field(image, 20, 2), 1u);
  EXPECT_EQ(Field(image, 22, 2), 2u);
  EXPECT_EQ(Field(image, 24, 4), 44100u);
  EXPECT_EQ(Field(image, 28, 4), 176400u);
  EXPECT_EQ(Field(image, 32, 2), 4u);
  EXPECT_EQ(Field(image, 34, 2), 16u);
  EXPECT_EQ(image.substr(36, 4), "data");
  EXPECT_EQ(Field(image, 40, 4), 176400u);
}

TEST(WaveImageTest, SamplesAreLittleEndianFrameByFrame) {
  SampleBuffer samples(2, 2);
  samples.Set(0, 0, 0x1234);
  samples.Set(1, 0, -2);
  samples.Set(0, 1, 0x7FFFF);  // only the low 16 bits are written
  samples.Set(1, 1, -32768);
  const std::string image = WaveImage(samples, 44100, 16);
  EXPECT_EQ(image.substr(44), std::string("\x34\x12\xFE\xFF\xFF\xFF\x00\x80", 8));
}

TEST(WaveImageTest, ASineMadeInPlaceIsTheSameImageForOnePitchAfterTheOther) {
  SineImage image;
  for (const std::int32_t pitch_hz : {440, 31999, 4, 22050}) {
    EXPECT_TRUE(image.Of(pitch_hz) == WaveImage(SineSecond(pitch_hz), 44100, 16)) << pitch_hz;
  }
  EXPECT_THROW(image.Of(48697), base::RuntimeError);
  EXPECT_TRUE(image.Of(440) == WaveImage(SineSecond(440), 44100, 16)) << "after an overflow";
}

TEST(WaveImageTest, EightBitSamplesAreTheLowByte) {
  SampleBuffer samples(1, 3);
  samples.Set(0, 0, 128);
  samples.Set(0, 1, 0x1FF);
  samples.Set(0, 2, -1);
  const std::string image = WaveImage(samples, 8000, 8);
  EXPECT_EQ(image.substr(44), std::string("\x80\xFF\xFF", 3));
  EXPECT_EQ(Field(image, 28, 4), 8000u);
  EXPECT_EQ(Field(image, 32, 2), 1u);
  EXPECT_EQ(Field(image, 34, 2), 8u);
}

TEST(WaveHeaderTest, TheSizesAreThoseOfTheData) {
  const std::string header = WaveHeader({2, 44100, 16, 1000});
  ASSERT_EQ(header.size(), 44u);
  EXPECT_EQ(Field(header, 4, 4), 1036u);
  EXPECT_EQ(Field(header, 40, 4), 1000u);
  EXPECT_EQ(Field(WaveHeader({2, 44100, 16, kMostDataBytes}), 4, 4), 0xFFFFFFFFu);
}

TEST(WaveHeaderTest, AStreamWithoutEndHasTheGreatestSizes) {
  const std::string header = WaveHeader({2, 44100, 16, kEndlessData});
  EXPECT_EQ(Field(header, 4, 4), 0xFFFFFFFFu);
  EXPECT_EQ(Field(header, 40, 4), 0xFFFFFFFFu);
}

TEST(WaveImageTest, ARateBeyond32BitsOverflows) {
  EXPECT_THROW(WaveImage(SampleBuffer(2, 1), 0x7FFFFFFF, 16), base::RuntimeError);
}

class WaveOutputTest : public testing::Test {
 protected:
  platform::simulated::Simulation sim;
  WaveOutput output{sim.services};
};

TEST_F(WaveOutputTest, OtherThan8Or16BitsEndTheProgramAtOnce) {
  EXPECT_TRUE(sim.Run([this] { output.CreateWaveArray(SampleBuffer(2, 1), 44100, 24); }));
  EXPECT_EQ(sim.journal.Texts({Kind::kProcess}), (Lines{"end"}));
  EXPECT_FALSE(sim.Run([this] { output.CreateWaveArray(SampleBuffer(2, 1), 44100, 8); }));
}

TEST_F(WaveOutputTest, AMissingFileIsCreated) {
  output.WriteWave(kWave, "image");
  EXPECT_EQ(sim.files.Get(kWave), "image");
  EXPECT_EQ(sim.journal.Texts({Kind::kFile}),
            (Lines{std::string("create ") + kWave, std::string("write ") + kWave + ", 5 bytes"}));
}

TEST_F(WaveOutputTest, AnExistingFileIsReplacedWhole) {
  sim.files.Put(kWave, "a much longer image than the new one");
  output.WriteWave(kWave, "image");
  EXPECT_EQ(sim.files.Get(kWave), "image");
  EXPECT_EQ(sim.journal.Texts({Kind::kFile})[0], std::string("delete ") + kWave);
}

TEST_F(WaveOutputTest, AFailedDeleteStillLeavesNoStaleTail) {
  sim.files.Put(kWave, "a much longer image than the new one");
  sim.files.Fail(Operation::kDelete, kWave, ErrorCode::kPermissionDenied);
  output.WriteWave(kWave, "image");
  EXPECT_EQ(sim.files.Get(kWave), "image");
}

TEST_F(WaveOutputTest, AFileThatCannotBeReadIsNotDeletedFirst) {
  sim.files.Put(kWave, "old");
  sim.files.Fail(Operation::kOpenForReading, kWave, ErrorCode::kPermissionDenied);
  output.WriteWave(kWave, "image");
  EXPECT_EQ(sim.journal.Texts({Kind::kFile})[0], std::string("create ") + kWave);
}

TEST_F(WaveOutputTest, AFileThatCannotBeWrittenLeavesNothingBehindAndNoMessage) {
  for (const Operation operation :
       {Operation::kOpenForWriting, Operation::kWrite, Operation::kClose}) {
    sim.files.Heal();
    sim.files.Fail(operation, kWave, ErrorCode::kDiskFull);
    EXPECT_NO_THROW(output.WriteWave(kWave, "image"));
    EXPECT_FALSE(sim.files.Exists(kWave));
  }
  EXPECT_TRUE(sim.journal.Texts({Kind::kMessage}).empty());
}

TEST_F(WaveOutputTest, PlaysOnceOrLoopedWithoutWaiting) {
  output.WavPlay(kWave, false, false);
  output.WavPlay(kWave, true, false);
  EXPECT_EQ(sim.journal.Texts({Kind::kSound}), (Lines{std::string("play ") + kWave + " 0x20001",
                                                      std::string("play ") + kWave + " 0x20009"}));
}

TEST_F(WaveOutputTest, KillAllStopsPlaybackWhateverThePath) {
  output.WavPlay(kWave, true, false);
  output.WavPlay("0", false, true);
  EXPECT_TRUE(sim.waves.playing.empty());
  EXPECT_EQ(sim.journal.Texts({Kind::kSound}).back(), "stop 0x2");
}

TEST_F(WaveOutputTest, DelayBlocksWithoutHandlingMessages) {
  bool handled = false;
  sim.At(std::chrono::milliseconds(10), [&handled] { handled = true; });
  output.delay(208);
  EXPECT_EQ(sim.pump.now_ms(), 208);
  EXPECT_FALSE(handled);
}

class KillProcessTest : public testing::Test {
 protected:
  platform::simulated::Simulation sim;
  ProcessKiller killer{sim.services};
};

TEST_F(KillProcessTest, AnEmptyNameEndsNothing) {
  sim.processes.running = {{1, "tone32.dll"}};
  EXPECT_EQ(killer.KillProcess(""), 0);
  EXPECT_EQ(sim.processes.running.size(), 1u);
}

TEST_F(KillProcessTest, NamesAreComparedAtTheirEndIgnoringCase) {
  sim.processes.running = {
      {1, "mytone32.dll"}, {2, "Tone32.DLL"}, {3, "tone32.dll.exe"}, {4, "tone16.dll"}};
  EXPECT_EQ(killer.KillProcess("TONE32.dll"), 2);
  ASSERT_EQ(sim.processes.running.size(), 2u);
  EXPECT_EQ(sim.processes.running[0].id, 3u);
  EXPECT_EQ(sim.processes.running[1].id, 4u);
}

TEST_F(KillProcessTest, AProcessThatMayNotBeEndedIsPassedOver) {
  sim.processes.running = {{1, "tone32.dll"}, {2, "tone32.dll"}};
  sim.processes.protected_ids = {1};
  EXPECT_EQ(killer.KillProcess("tone32.dll"), 1);
}

TEST_F(KillProcessTest, FindsItsProcessAmongHundreds) {
  for (std::uint32_t id = 1; id <= 700; ++id) sim.processes.running.push_back({id, "other.exe"});
  sim.processes.running[350].name = "tone16.dll";
  EXPECT_EQ(killer.KillProcess("TONE16.dll"), 1);
  EXPECT_EQ(sim.processes.running.size(), 699u);
}

}  // namespace
}  // namespace tone
