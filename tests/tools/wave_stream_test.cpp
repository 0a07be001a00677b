// Tone programs as WAV files.
#include "tools/wave_stream.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "tone/wave_image.h"

namespace tools {
namespace {

using program_files::Tone;
using program_files::ToneRenderer;

class Collected : public Destination {
 public:
  explicit Collected(Kind kind) : kind_(kind) {}

  Kind kind() const override { return kind_; }
  void Write(std::string_view piece) override {
    largest = std::max(largest, piece.size());
    size += piece.size();
    if (size <= most_kept) bytes += piece;
    if (size > most_written) throw Failure("it is full");
  }
  void Finish() override { finished = true; }

  std::string bytes;
  std::size_t size = 0;
  std::size_t largest = 0;
  std::size_t most_kept = 1UL << 24;
  std::size_t most_written = 1UL << 24;
  bool finished = false;

 private:
  Kind kind_;
};

program_files::ToneProgram ProgramOf(std::int16_t extra_time_ms, std::vector<Tone> tones) {
  program_files::ToneProgram program;
  program.extra_time_ms = extra_time_ms;
  program.tones = std::move(tones);
  return program;
}

Collected Written(const program_files::ToneProgram& program, Destination::Kind kind,
                  std::size_t most = 1UL << 24) {
  ToneRenderer renderer(program);
  Collected collected(kind);
  collected.most_written = most;
  try {
    WriteWave(renderer, collected);
  } catch (const Failure& failure) {
    EXPECT_GT(collected.size, most) << failure.what();
  }
  return collected;
}

std::uint32_t Field(const std::string& bytes, std::size_t at) {
  std::uint32_t value = 0;
  for (std::size_t i = 4; i-- > 0;) value = value << 8 | static_cast<unsigned char>(bytes[at + i]);
  return value;
}

// The program's own image of one second, as it is played in a loop.
TEST(WaveStreamTest, TheBytesAreThoseOfTheProgramsImagesLooped) {
  for (const int hz : {440, 4711, 22050, 32000}) {
    const auto pitch = static_cast<std::int16_t>(hz);
    const std::string image = tone::WaveImage(tone::SineSecond(pitch), 44100, 16);
    const Collected one = Written(ProgramOf(1, {{pitch, 999}}), Destination::Kind::kFile);
    EXPECT_TRUE(one.bytes == image) << pitch;
    EXPECT_TRUE(one.finished);
    const std::string second = image.substr(tone::kWaveHeaderBytes);
    const Collected three = Written(ProgramOf(500, {{pitch, 2000}}), Destination::Kind::kFile);
    EXPECT_TRUE(three.bytes.substr(44) == second + second + second.substr(0, second.size() / 2));
    EXPECT_EQ(Field(three.bytes, 40), 441000u);
    EXPECT_EQ(Field(three.bytes, 4), 441036u);
  }
}

TEST(WaveStreamTest, EveryToneBeginsAnew) {
  const Collected two = Written(ProgramOf(1, {{440, 9}, {440, 9}}), Destination::Kind::kFile);
  const std::string samples = two.bytes.substr(44);
  ASSERT_EQ(samples.size(), 2u * 441 * 4);
  EXPECT_EQ(samples.substr(0, 441 * 4), samples.substr(441 * 4));
}

TEST(WaveStreamTest, ATerminalGetsNoSamplesButAHint) {
  ToneRenderer renderer(ProgramOf(1, {{440, 9}}));
  Collected terminal(Destination::Kind::kTerminal);
  std::string message;
  try {
    WriteWave(renderer, terminal);
  } catch (const Failure& failure) {
    message = failure.what();
  }
  EXPECT_EQ(message, "a terminal cannot show samples; name a file with -o, or send them on");
  EXPECT_EQ(terminal.size, 0u);
}

TEST(WaveStreamTest, ItIsWrittenInPieces) {
  const Collected minute = Written(ProgramOf(1, {{440, 29999}}), Destination::Kind::kFile);
  EXPECT_EQ(minute.size, 44u + 30 * 176400);
  EXPECT_LE(minute.largest, 65536u);
}

// 24347 s of samples are 4294810800 bytes; 4294967259 fit.
TEST(WaveStreamTest, AFileOfMoreThan4GibIsRefusedBeforeAnythingIsWritten) {
  std::vector<Tone> tones(996, {440, 24000});
  tones.resize(995);
  // 995 tones of 24469 ms are 24346.655 s; one more of 24470 ms makes too many.
  for (Tone& tone : tones) tone.duration_ms = 24468;
  EXPECT_GT(Written(ProgramOf(1, tones), Destination::Kind::kFile, 1000).size, 1000u);
  ToneRenderer too_long(ProgramOf(1, std::vector<Tone>(996, {440, 24468})));
  Collected refused(Destination::Kind::kFile);
  EXPECT_THROW(WriteWave(too_long, refused), Failure);
  EXPECT_EQ(refused.size, 0u);
  EXPECT_FALSE(refused.finished);
}

TEST(WaveStreamTest, AStreamHasNoSuchLimit) {
  const Collected stream = Written(ProgramOf(32000, std::vector<Tone>(996, {440, 32000})),
                                   Destination::Kind::kStream, 1000);
  EXPECT_EQ(Field(stream.bytes, 4), 0xFFFFFFFFu);
  EXPECT_EQ(Field(stream.bytes, 40), 0xFFFFFFFFu);
  EXPECT_EQ(Field(Written(ProgramOf(1, {{440, 9}}), Destination::Kind::kStream).bytes, 40), 1764u);
}

TEST(WaveStreamTest, ATerminalIsNotGivenSamples) {
  ToneRenderer renderer(ProgramOf(1, {{440, 9}}));
  Collected terminal(Destination::Kind::kTerminal);
  EXPECT_THROW(WriteWave(renderer, terminal), Failure);
  EXPECT_EQ(terminal.size, 0u);
}

TEST(WaveStreamTest, WhatCannotBeWrittenIsNotFinished) {
  EXPECT_FALSE(Written(ProgramOf(1, {{440, 9}}), Destination::Kind::kFile, 100).finished);
}

}  // namespace
}  // namespace tools
