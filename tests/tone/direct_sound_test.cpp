#include "tests/tone/fixture.h"
#include "tone/wave_file.h"
#include "tone/wave_image.h"

namespace tone {
namespace {

using platform::simulated::DirectSoundCall;

class DirectSoundTest : public RoutesFixture {};

TEST_F(DirectSoundTest, AToneIsPlayedTwiceAndItsBufferStoppedAtTheEnd) {
  StopAt(150ms);
  direct_sound.ToneDXRND(440);
  EXPECT_EQ(Journal({Kind::kFile, Kind::kSound, Kind::kControl}),
            (Lines{"create " + kWavePath, "write " + kWavePath + ", 176444 bytes",
                   "play " + kWavePath + " 0x20009", "directsound root", "directsound device",
                   "directsound cooperative level 1",
                   "directsound buffer of 176400 bytes, 44100 Hz, 2 channels, 16 bits, flags 160",
                   "directsound buffer play 1", "Actual pitch (Hertz): 440",
                   "directsound buffer stop", "delete " + kWavePath}));
  // The first of the two sounds is silenced by KillAll alone.
  EXPECT_FALSE(sim.waves.playing.empty());
  support.KillAll();
  EXPECT_TRUE(sim.waves.playing.empty());
}

TEST_F(DirectSoundTest, AStopDuringATickSilencesTheBufferAtOnceAndEndsWithTheTick) {
  StopAt(150ms);
  direct_sound.ToneDXRND(440);
  const auto& entries = sim.journal.entries();
  const auto stop = std::find_if(entries.begin(), entries.end(), [](const auto& entry) {
    return entry.text == "directsound buffer stop";
  });
  ASSERT_NE(stop, entries.end());
  EXPECT_EQ(stop->at_ms, 150);
  EXPECT_EQ(sim.pump.now_ms(), 200);
}

TEST_F(DirectSoundTest, TheRootIsMadeOnceAndDeviceAndBufferAreReplaced) {
  for (int tone = 1; tone <= 3; ++tone) {
    StopAt(std::chrono::milliseconds(sim.pump.now_ms() + 100));
    state.stop_flag = 0;
    direct_sound.ToneDXRND(440);
    EXPECT_EQ(sim.direct_sound.live_objects, 3);
    EXPECT_EQ(sim.direct_sound.playing_buffers, 0);
  }
  const Lines sounds = Journal({Kind::kSound});
  EXPECT_EQ(std::count(sounds.begin(), sounds.end(), "directsound root"), 1);
  EXPECT_EQ(std::count(sounds.begin(), sounds.end(), "directsound device"), 3);
}

TEST_F(DirectSoundTest, NothingIsLeftWhenTheSoundObjectIsGone) {
  {
    DirectSoundRoutes routes(sim.services, scene, support);
    StopAt(100ms);
    routes.ToneDXRND(440);
    EXPECT_EQ(sim.direct_sound.live_objects, 3);
  }
  EXPECT_EQ(sim.direct_sound.live_objects, 0);
}

class FailingCallTest : public RoutesFixture,
                        public testing::WithParamInterface<DirectSoundCall> {};

TEST_P(FailingCallTest, EndsTheProcedureThereAndKillAllSilencesTheRest) {
  sim.direct_sound.Fail(GetParam());
  StopAt(500ms);
  {
    DirectSoundRoutes routes(sim.services, scene, support);
    EXPECT_NO_THROW(routes.ToneDXRND(440));
  }
  EXPECT_EQ(sim.waves.playing, kWavePath);
  EXPECT_EQ(sim.direct_sound.live_objects, 0);
  EXPECT_EQ(sim.direct_sound.playing_buffers, 0);
  EXPECT_TRUE(Journal({Kind::kMessage}).empty());
  support.KillAll();
  EXPECT_TRUE(sim.waves.playing.empty());
  EXPECT_FALSE(sim.files.Exists(kWavePath));
}

TEST_F(FailingCallTest, WhatCannotBeWrittenIsNotPlayed) {
  sim.files.FailWritesIn("C:\\Temp", ErrorCode::kDiskFull);
  direct_sound.ToneDXRND(440);
  direct_sound.ToneDXRNDTMP(440, 100);
  EXPECT_TRUE(Journal({Kind::kSound}).empty());
}

INSTANTIATE_TEST_SUITE_P(Calls, FailingCallTest,
                         testing::Values(DirectSoundCall::kRoot, DirectSoundCall::kDevice,
                                         DirectSoundCall::kLevel, DirectSoundCall::kBuffer,
                                         DirectSoundCall::kPlay, DirectSoundCall::kStop));

TEST_F(DirectSoundTest, AToneOfFixedLengthStopsItsBufferAndDeletesTheFile) {
  direct_sound.ToneDXRNDTMP(700, 250);
  EXPECT_EQ(sim.pump.now_ms(), 250);
  const Lines sounds = Journal({Kind::kSound, Kind::kControl});
  EXPECT_EQ(sounds.front(), "directsound root");
  EXPECT_EQ(sounds.back(), "directsound buffer stop");
  EXPECT_FALSE(sim.files.Exists(kWavePath));
}

TEST_F(DirectSoundTest, APreparedFileKeepsItsFileAndTakesTheDelayAsFrequency) {
  sim.files.Put("tonedx3.dll", WaveImage(SineSecond(440), 44100, 16));
  StopAt(100ms);
  direct_sound.ToneDX(440, "3", 22050);
  EXPECT_EQ(Journal({Kind::kFile, Kind::kSound, Kind::kControl}),
            (Lines{"directsound root", "directsound device", "directsound cooperative level 1",
                   "directsound buffer of 176400 bytes, 44100 Hz, 2 channels, 16 bits, flags 160",
                   "directsound buffer play 1", "directsound buffer frequency 22050",
                   "Actual pitch (Hertz): 440", "directsound buffer stop"}));
  EXPECT_TRUE(sim.files.Exists("tonedx3.dll"));
}

TEST_F(DirectSoundTest, AMissingPreparedFileEndsTheProcedureQuietly) {
  EXPECT_NO_THROW(direct_sound.ToneDX(440, "3", 0));
  EXPECT_EQ(sim.pump.now_ms(), 0);
}

const std::string kHeader(
    "RIFF\x2C\0\0\0WAVEfmt \x10\0\0\0\x01\0\x02\0\x44\xAC\0\0\x10\xB1\x02\0"
    "\x04\0\x10\0data\x08\0\0\0",
    44);

TEST(WaveFileTest, AFormatAndItsWholeFramesAreRead) {
  const auto wave = ParseWaveFile(kHeader + "abcdefgh");
  ASSERT_TRUE(wave);
  EXPECT_EQ(wave->format.channels, 2);
  EXPECT_EQ(wave->format.sample_rate, 44100);
  EXPECT_EQ(wave->format.bits_per_sample, 16);
  EXPECT_EQ(wave->data, "abcdefgh");
}

TEST(WaveFileTest, ATruncatedFileGivesTheWholeFramesThatAreThere) {
  const auto wave = ParseWaveFile(kHeader + "abcdef");
  ASSERT_TRUE(wave);
  EXPECT_EQ(wave->data, "abcd");
}

TEST(WaveFileTest, OtherChunksArePassedOver) {
  std::string image = kHeader + "abcdefgh";
  image.insert(36, std::string("LIST\x03\0\0\0xyz\0", 12));
  const auto wave = ParseWaveFile(image);
  ASSERT_TRUE(wave);
  EXPECT_EQ(wave->data, "abcdefgh");
}

TEST(WaveFileTest, WhatIsNoPcmWaveFileIsRefused) {
  std::string compressed = kHeader + "abcdefgh";
  compressed[20] = 2;
  std::string silent_frame = kHeader + "abcdefgh";
  silent_frame[22] = 0;
  std::string odd_bits = kHeader + "abcdefgh";
  odd_bits[34] = 24;
  for (const std::string& image :
       {std::string(), std::string("RIFF"), std::string("RIFF\0\0\0\0WAVE", 12), compressed,
        silent_frame, odd_bits, kHeader, kHeader.substr(0, 30), std::string(100, '\xFF')}) {
    EXPECT_FALSE(ParseWaveFile(image)) << image.size();
  }
}

}  // namespace
}  // namespace tone
