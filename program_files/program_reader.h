// Reading a tone program (program_files/tone_program.h): a file's first pass, which fills the line
// table, its second pass, which counts the lines once more, and the one call that reads a program
// whole.
//
// What reading bytes throws goes through.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/byte_source.h"
#include "program_files/line_reader.h"
#include "program_files/program_checks.h"
#include "program_files/tone_program.h"

namespace program_files {

// The first pass, line by line. At most 2000 lines and kMostText bytes of text are read.
class FirstPass {
 public:
  enum class Progress {
    kGoesOn,
    kDone,     // the end of the file
    kGivenUp,  // more lines or text than are read: there are no checks, nothing is played
  };
  struct Step {
    Progress progress;
    std::vector<Finding> findings;
  };
  using Decode = std::function<std::string(std::string)>;

  // Fills `lines` from index 1 on with what `decode` makes of the lines, or with the lines as they
  // stand where there is none.
  FirstPass(base::ByteSource& file, Table<std::string>& lines, Decode decode = nullptr)
      : reader_(file, kMostText), lines_(lines), decode_(std::move(decode)) {}

  // Reads the next line. Line 2000 is a finding, and so is too much text.
  Step ReadLine();

  std::int16_t LinesRead() const { return lines_read_; }

 private:
  Step TakeLine(std::string&& line);

  LineReader reader_;
  Table<std::string>& lines_;
  Decode decode_;
  std::int16_t lines_read_ = 0;
};

// The second pass: how many lines there are, or a number of which the line count overflows.
std::int32_t SecondPass(base::ByteSource& file);

// What one call tells about a file.
struct ReadProgram {
  ToneProgram program;
  std::vector<Finding> findings;  // in file order; none for a legal file
  std::int32_t lines = 0;         // how many lines were read
  bool given_up = false;          // after the last finding: nothing of the file is played
  // The last line where no entry could begin any more; nothing if the last one belongs to an entry.
  std::optional<std::string> ignored_line;
};

// Reads and checks a whole program. The bytes are in a code page that has ASCII in its lower half;
// names and found lines are such bytes, too.
ReadProgram ReadToneProgram(base::ByteSource& bytes);
ReadProgram ReadToneProgram(std::string_view bytes);

}  // namespace program_files
