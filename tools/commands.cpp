#include "tools/commands.h"

#include <algorithm>
#include <array>

#include "tools/diagnosis.h"
#include "tools/information.h"
#include "tools/rtttl.h"
#include "tools/rtttl_writer.h"
#include "tools/wave_stream.h"

namespace tools {
namespace {

using program_files::ReadProgram;
using program_files::ToneProgram;

constexpr char kMorseName[] = "Morse code";

// How a file is named to the user.
std::string Shown(const std::string& file) {
  return file == "-" ? "standard input" : file;
}

bool HasError(const std::vector<Problem>& problems) {
  return std::any_of(problems.begin(), problems.end(),
                     [](const Problem& problem) { return problem.severity == Severity::kError; });
}

// One byte more than may be is enough to know that there are too many.
std::string AllOf(base::ByteSource& source, std::size_t most) {
  std::string text;
  std::array<char, 4096> block{};
  while (text.size() <= most) {
    const std::size_t count = source.Read(block);
    if (count == 0) break;
    text.append(block.data(), count);
  }
  return text;
}

}  // namespace

ExitCode Commands::Check(const std::vector<std::string>& files) {
  ExitCode worst = ExitCode::kGood;
  for (const std::string& file : files) {
    ExitCode code = ExitCode::kFailed;
    try {
      code = CheckFile(file);
    } catch (const Failure& failure) {
      surroundings_.Print(Stream::kErrors, std::string("tnf: ") + failure.what() + "\n");
    }
    worst = std::max(worst, code);
  }
  return worst;
}

ExitCode Commands::CheckFile(const std::string& file) {
  const ReadProgram read = Read(file);
  Tell(Stream::kOutput, Shown(file), Diagnose(read));
  TellMessages(Stream::kOutput, Shown(file), read);
  return read.findings.empty() ? ExitCode::kGood : ExitCode::kNotLegal;
}

ExitCode Commands::Info(const std::string& file) {
  ToneProgram program;
  if (!ReadLegal(file, program)) return ExitCode::kNotLegal;
  surroundings_.Print(Stream::kOutput, InformationOn(Shown(file), program));
  return ExitCode::kGood;
}

ExitCode Commands::Render(const std::string& file, const std::string& output, bool smooth) {
  ToneProgram program;
  if (!ReadLegal(file, program)) return ExitCode::kNotLegal;
  using Edges = program_files::ToneRenderer::Edges;
  program_files::ToneRenderer renderer(program, smooth ? Edges::kSmooth : Edges::kAsPlayed);
  WriteWave(renderer, *surroundings_.Create(output));
  return ExitCode::kGood;
}

ExitCode Commands::ImportRingTone(const std::string& file, const std::string& output,
                                  std::int32_t octave_of_a440) {
  const std::string text = AllOf(*surroundings_.Open(file), kMostRingToneText);
  const RingTone tune = ReadRingTone(text, octave_of_a440);
  Tell(Stream::kErrors, Shown(file), tune.problems);
  if (HasError(tune.problems)) return ExitCode::kNotLegal;
  Write(output, tune.tones.File(tune.name));
  return ExitCode::kGood;
}

ExitCode Commands::ImportMorse(const std::string& text, const std::string& output,
                               const MorseWishes& wishes) {
  const MorseTones morse = MorseOf(text, wishes);
  for (const std::string& character : morse.without_code) {
    const std::string shown = character.size() > 1 ? "\"" + character + "\"" : Quoted(character);
    surroundings_.Print(Stream::kErrors,
                        "tnf: warning: there is no Morse code for " + shown + "\n");
  }
  const char* error = nullptr;
  if (morse.too_long) error = "the text is too long for the 996 tones of a tone program";
  if (!morse.sounds) error = "the text has nothing to sound";
  if (error != nullptr) {
    surroundings_.Print(Stream::kErrors, std::string("tnf: error: ") + error + "\n");
    return ExitCode::kNotLegal;
  }
  Write(output, morse.tones.File(kMorseName + (": " + text)));
  return ExitCode::kGood;
}

ExitCode Commands::ExportRingTone(const std::string& file, const std::string& output,
                                  std::int32_t octave_of_a440) {
  ToneProgram program;
  if (!ReadLegal(file, program)) return ExitCode::kNotLegal;
  const RingToneText tune = WriteRingTone(program, octave_of_a440);
  Tell(Stream::kErrors, Shown(file), tune.problems);
  if (!tune.problems.empty()) return ExitCode::kNotLegal;
  Write(output, tune.text + "\n");
  return ExitCode::kGood;
}

ReadProgram Commands::Read(const std::string& file) {
  return program_files::ReadToneProgram(*surroundings_.Open(file));
}

bool Commands::ReadLegal(const std::string& file, ToneProgram& program) {
  const ReadProgram read = Read(file);
  program = read.program;
  if (read.findings.empty()) return true;
  Tell(Stream::kErrors, Shown(file), Diagnose(read));
  return false;
}

void Commands::Tell(Stream stream, const std::string& file, const std::vector<Problem>& problems) {
  const bool colours = colours_ == Colours::kAlways ||
                       (colours_ == Colours::kAutomatic && surroundings_.ShowsColours(stream));
  std::string text;
  for (const Problem& problem : problems) text += Formatted(file, problem, colours);
  if (!text.empty()) surroundings_.Print(stream, text);
}

void Commands::TellMessages(Stream stream, const std::string& file, const ReadProgram& read) {
  if (read.findings.empty()) return;
  surroundings_.Print(stream,
                      file + ": the player would say:\n" + PlayersMessages(file, read.findings));
}

void Commands::Write(const std::string& output, const std::string& bytes) {
  const auto destination = surroundings_.Create(output);
  destination->Write(bytes);
  destination->Finish();
}

}  // namespace tools
