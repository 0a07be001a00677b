// What tnf does, one function for each command, with its arguments read already.
//
// Each returns the exit code: 0, or 1 where a text is not what it should be; its problems are told
// then. What cannot be read or written throws Failure (tools/surroundings.h).
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "program_files/program_reader.h"
#include "tools/morse_text.h"
#include "tools/problem.h"
#include "tools/surroundings.h"

namespace tools {

enum class ExitCode : std::int8_t { kGood = 0, kNotLegal = 1, kFailed = 2 };

class Commands {
 public:
  enum class Colours { kAutomatic, kAlways, kNever };

  Commands(Surroundings& surroundings, Colours colours)
      : surroundings_(surroundings), colours_(colours) {}

  // Problems go to standard output. A file that cannot be read does not end the checks: its exit
  // code is kFailed, the greatest of all files' counts.
  ExitCode Check(const std::vector<std::string>& files);

  ExitCode Info(const std::string& file);
  ExitCode Render(const std::string& file, const std::string& output, bool smooth);
  ExitCode ImportRingTone(const std::string& file, const std::string& output,
                          std::int32_t octave_of_a440);
  ExitCode ImportMorse(const std::string& text, const std::string& output,
                       const MorseWishes& wishes);
  ExitCode ExportRingTone(const std::string& file, const std::string& output,
                          std::int32_t octave_of_a440);

 private:
  using Stream = Surroundings::Stream;

  ExitCode CheckFile(const std::string& file);
  program_files::ReadProgram Read(const std::string& file);
  // The program of a legal file; tells the problems of any other.
  bool ReadLegal(const std::string& file, program_files::ToneProgram& program);
  void Tell(Stream stream, const std::string& file, const std::vector<Problem>& problems);
  void TellMessages(Stream stream, const std::string& file, const program_files::ReadProgram& read);
  void Write(const std::string& output, const std::string& bytes);

  Surroundings& surroundings_;
  Colours colours_;
};

}  // namespace tools
