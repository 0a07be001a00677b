#include "tools/command_line.h"

#include <CLI/CLI.hpp>
#include <functional>
#include <map>
#include <sstream>

#include "base/version.h"
#include "tools/commands.h"
#include "tools/help.h"

namespace tools {
namespace {

using Colours = Commands::Colours;
using Stream = Surroundings::Stream;

// What the arguments say. Every command has its own help; those that have something in common name
// it the same.
struct Wishes {
  std::vector<std::string> files;
  std::string file = "-";
  std::string output;
  std::string text;
  bool smooth = false;
  std::int32_t octave_of_a440 = 4;
  MorseWishes morse;
  Colours colours = Colours::kAutomatic;
};

// The arguments of tnf, and the command that they choose.
class CommandLine {
 public:
  CommandLine() {
    app_.name("tnf");
    app_.set_version_flag("--version", "tnf " + std::string(base::kVersion));
    app_.footer(kGuide);
    app_.require_subcommand(1);
    app_.allow_windows_style_options(false);
    app_.fallthrough();  // --color stands wherever it is wanted
    app_.set_help_flag("-h,--help", "This help");
    app_.get_option("--version")->description("The version");
    app_.get_formatter()->column_width(30);
    app_.get_formatter()->label("Positionals", "Arguments");
    app_.get_formatter()->label("SUBCOMMAND", "COMMAND");
    app_.get_formatter()->label("REQUIRED", "");
    AddColours(app_);
    AddCheck();
    AddInfo();
    AddRender();
    AddImport();
    AddExport();
  }

  // Throws CLI::ParseError, also for help and version.
  void Parse(std::vector<std::string> arguments) {
    std::reverse(arguments.begin(), arguments.end());
    app_.parse(std::move(arguments));
  }

  ExitCode Run(Surroundings& surroundings) {
    Commands commands(surroundings, wishes_.colours);
    return command_(commands);
  }

  // The code, and the text for either stream.
  int Explain(const CLI::ParseError& error, std::ostream& out, std::ostream& err) {
    app_.failure_message([](const CLI::App*, const CLI::Error& what) {
      return std::string("tnf: ") + what.what() + "\n\"tnf --help\" tells more.\n";
    });
    return app_.exit(error, out, err) == 0 ? 0 : static_cast<int>(ExitCode::kFailed);
  }

 private:
  using Command = std::function<ExitCode(Commands&)>;

  static CLI::App& AddGroup(CLI::App& above, const char* name, const char* description) {
    CLI::App& app = *above.add_subcommand(name, description);
    app.group("Commands");
    app.footer("");
    app.require_subcommand(1);
    return app;
  }

  CLI::App& Add(CLI::App& above, const char* name, const char* description, const char* footer,
                Command command) {
    CLI::App& app = AddGroup(above, name, description);
    app.require_subcommand(0);
    app.footer(footer);
    app.parse_complete_callback([this, command = std::move(command)] { command_ = command; });
    return app;
  }

  void AddColours(CLI::App& app) {
    const std::map<std::string, Colours> names{
        {"auto", Colours::kAutomatic}, {"always", Colours::kAlways}, {"never", Colours::kNever}};
    app.add_option("--color,--colour", wishes_.colours,
                   "Colours: auto (on a terminal), always or never")
        ->type_name("WHEN")
        ->transform(CLI::CheckedTransformer(names).description(""));
  }

  void AddFile(CLI::App& app, const char* what) {
    app.add_option("FILE", wishes_.file, what)->type_name("");
  }

  void AddOutput(CLI::App& app, const char* type, const char* what) {
    app.add_option("-o,--output", wishes_.output, what)->type_name(type);
  }

  void AddOctave(CLI::App& app) {
    app.add_option("--a440", wishes_.octave_of_a440,
                   "The octave whose A is 440 Hz: 4, or 5 as in older tables")
        ->type_name("OCTAVE")
        ->check(CLI::IsMember({4, 5}).description(""));
  }

  void AddCheck() {
    CLI::App& app = Add(app_, "check", "Say what is wrong with tone programs, by line", kCheckGuide,
                        [this](Commands& commands) { return commands.Check(wishes_.files); });
    app.add_option("FILE", wishes_.files, "Tone programs; - is standard input")
        ->type_name("")
        ->required();
  }

  void AddInfo() {
    CLI::App& app = Add(app_, "info", "Tell what a tone program plays", "",
                        [this](Commands& commands) { return commands.Info(wishes_.file); });
    AddFile(app, "The tone program; - is standard input");
    app.get_option("FILE")->required();
  }

  void AddRender() {
    CLI::App& app = Add(app_, "render", "Write what a tone program plays as a WAV file",
                        kRenderGuide, [this](Commands& commands) {
                          return commands.Render(wishes_.file, wishes_.output, wishes_.smooth);
                        });
    AddFile(app, "The tone program; - is standard input");
    app.get_option("FILE")->required();
    AddOutput(app, "OUT.wav", "The file to write; - is standard output");
    app.get_option("--output")->required();
    app.add_flag("--smooth", wishes_.smooth, "Fade the edges of each tone, so that none clicks");
  }

  void AddImport() {
    CLI::App& import = AddGroup(app_, "import", "Make a tone program of something else");
    CLI::App& rtttl =
        Add(import, "rtttl", "Make a tone program of a ring tone text", kRtttlGuide,
            [this](Commands& commands) {
              return commands.ImportRingTone(wishes_.file, wishes_.output, wishes_.octave_of_a440);
            });
    AddFile(rtttl, "The text; standard input if none is named");
    AddOctave(rtttl);
    CLI::App& morse =
        Add(import, "morse", "Make a tone program of a text, as Morse code", kMorseGuide,
            [this](Commands& commands) {
              return commands.ImportMorse(wishes_.text, wishes_.output, wishes_.morse);
            });
    morse.add_option("TEXT", wishes_.text, "The text to send")->type_name("")->required();
    morse.add_option("--speed", wishes_.morse.speed, "ms added to every symbol, 0 to 500")
        ->type_name("MS")
        ->check(CLI::Range(0, 500).description(""));
    morse
        .add_option("--pitch", wishes_.morse.pitch_hz, "Pitch in Hz, 50 to 32000; 700 if not said")
        ->type_name("HZ")
        ->check(CLI::Range(50, 32000).description(""));
    morse.add_flag("--textbook", wishes_.morse.textbook, "The standard's own code and timing");
    for (CLI::App* app : {&rtttl, &morse}) {
      AddOutput(*app, "OUT.tnf", "The file to write; - is standard output");
      app->get_option("--output")->required();
    }
  }

  void AddExport() {
    CLI::App& all = AddGroup(app_, "export", "Make something else of a tone program");
    CLI::App& rtttl = Add(all, "rtttl", "Make a ring tone text of a tone program", kExportGuide,
                          [this](Commands& commands) {
                            return commands.ExportRingTone(
                                wishes_.file, wishes_.output.empty() ? "-" : wishes_.output,
                                wishes_.octave_of_a440);
                          });
    AddFile(rtttl, "The tone program; - is standard input");
    rtttl.get_option("FILE")->required();
    AddOutput(rtttl, "OUT", "The file to write; standard output if none is named");
    AddOctave(rtttl);
  }

  CLI::App app_{"Checks, renders and converts tone programs (.tnf)."};
  Wishes wishes_;
  Command command_;
};

}  // namespace

int RunTnf(const std::vector<std::string>& arguments, Surroundings& surroundings) {
  try {
    CommandLine line;
    try {
      line.Parse(arguments);
    } catch (const CLI::ParseError& error) {
      std::ostringstream out;
      std::ostringstream err;
      const int code = line.Explain(error, out, err);
      surroundings.Print(Stream::kOutput, out.str());
      surroundings.Print(Stream::kErrors, err.str());
      return code;
    }
    return static_cast<int>(line.Run(surroundings));
  } catch (const Failure& failure) {
    surroundings.Print(Stream::kErrors, std::string("tnf: ") + failure.what() + "\n");
    return static_cast<int>(ExitCode::kFailed);
  }
}

}  // namespace tools
