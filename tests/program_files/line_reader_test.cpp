#include "program_files/line_reader.h"

#include <gtest/gtest.h>

#include <vector>

#include "base/errors.h"
#include "platform/simulated/files.h"

namespace program_files {
namespace {

using Lines = std::vector<std::string>;

class LineReaderTest : public testing::Test {
 protected:
  std::unique_ptr<platform::InputFile> Open(const std::string& bytes) {
    files_.Put("C:\\a.tnf", bytes);
    return files_.OpenForReading("C:\\a.tnf");
  }

  Lines Read(const std::string& bytes) {
    const auto file = Open(bytes);
    LineReader reader(*file, 1 << 24);
    Lines lines;
    while (const auto line = reader.Next()) lines.push_back(*line);
    return lines;
  }

  std::int32_t Count(const std::string& bytes, std::int32_t most = 1000000) {
    return CountLines(*Open(bytes), most);
  }

 private:
  platform::simulated::Journal journal_;
  platform::simulated::Files files_{journal_};
};

TEST_F(LineReaderTest, EveryLineEndAndWhatIsNone) {
  const std::vector<std::pair<std::string, Lines>> cases{
      {"", {}},
      {"a", {"a"}},
      {"a\r\n", {"a"}},
      {"a\r", {"a"}},
      {"a\r\nb", {"a", "b"}},
      {"a\rb", {"a", "b"}},
      {"a\nb", {"a\nb"}},
      {"a\n", {"a\n"}},
      {"\n", {"\n"}},
      {"\r\n", {""}},
      {"\r\r", {"", ""}},
      {"\r\r\n", {"", ""}},
      {"\n\r", {"\n"}},
      {"a\r\n\r\nb\r\n", {"a", "", "b"}},
      {"a\r\nb\rc\nd\r\n", {"a", "b", "c\nd"}},
      {std::string("a\0b\r\n", 5), {std::string("a\0b", 3)}},
      {std::string("\xff\xfe"
                   "a\0\r\0\n\0",
                   8),
       {std::string("\xff\xfe"
                    "a\0",
                    4),
        std::string("\0\n\0", 3)}}};
  for (const auto& [bytes, lines] : cases) {
    EXPECT_EQ(Read(bytes), lines) << testing::PrintToString(bytes);
    EXPECT_EQ(Count(bytes), std::ssize(lines)) << testing::PrintToString(bytes);
  }
}

TEST_F(LineReaderTest, ALineEndOnTheBorderOfTwoBlocks) {
  for (const std::size_t length : {4094u, 4095u, 4096u, 4097u}) {
    const std::string line(length, 'x');
    EXPECT_EQ(Read(line + "\r\nend"), (Lines{line, "end"})) << length;
    EXPECT_EQ(Read(line + "\rend"), (Lines{line, "end"})) << length;
    EXPECT_EQ(Count(line + "\r\nend"), 2) << length;
  }
}

TEST_F(LineReaderTest, ALongLineIsReadWhole) {
  const std::string line(10 * 1024 * 1024, '%');
  EXPECT_EQ(Read(line + "valid\r\n"), (Lines{line + "valid"}));
}

TEST_F(LineReaderTest, MoreTextThanMayBeHandedOutIsAnError) {
  const auto file = Open("12345\r\n67890\r\n");
  LineReader reader(*file, 9);
  EXPECT_EQ(reader.Next(), "12345");
  try {
    reader.Next();
    FAIL() << "no error";
  } catch (const base::RuntimeError& error) {
    EXPECT_EQ(error.code(), base::ErrorCode::kOutOfMemory);
  }
}

TEST_F(LineReaderTest, CountingStopsWhereItIsTold) {
  std::string bytes;
  for (int line = 0; line < 100000; ++line) bytes += "\r\n";
  EXPECT_EQ(Count(bytes), 100000);
  EXPECT_EQ(Count(bytes, 32774), 32774);
}

}  // namespace
}  // namespace program_files
