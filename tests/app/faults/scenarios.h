// What is done while everything fails once.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "tests/app/faults/scene.h"
#include "tests/app/online_fixture.h"
#include "tests/lang/file_of.h"
#include "tests/program_files/tone_files.h"

namespace app::faults {

inline constexpr const char* kSoundCodes[] = {"16", "32", "64", "128", "256"};

inline std::string SettingsOf(const std::string& sound_bit, const std::string& language = "EN",
                              const std::string& others = "n") {
  return "AutoUpdate=" + others + "\r\nSoundBit=" + sound_bit + "\r\nLanguage=" + language +
         "\r\nSendData=" + others + "\r\nMicrophone=1\r\nMicrophoneON=" + others + "\r\n";
}

inline void PutLanguages(Simulation& sim) {
  sim.files.Put("lng_en.dll", lang::FileOf("en", 79));
  sim.files.Put("lng_nl.dll", lang::FileOf("nl", 79));
}

inline std::function<void(Simulation&)> With(const std::string& settings) {
  return [settings](Simulation& sim) {
    PutLanguages(sim);
    sim.files.Put(kSettings, settings);
  };
}

inline std::function<void(Simulation&)> Online(const std::string& settings,
                                               const std::string& link) {
  return [settings, link](Simulation& sim) {
    With(settings)(sim);
    sim.files.Put(kLog, "of an earlier run\r\n");
    sim.downloader.answers[kUpdateAddress] = {"237\r\n" + link + "\r\n", 0ms};
    sim.downloader.answers[kTestAddress] = {"test", 0ms};
  };
}

inline std::function<void(Simulation&)> Opened(const std::string& sound_bit,
                                               const program_files::Lines& lines) {
  return [sound_bit, lines](Simulation& sim) {
    With(SettingsOf(sound_bit))(sim);
    sim.files.Put(program_files::kFile, program_files::FileOf(lines));
    sim.environment.arguments = program_files::kFile;
  };
}

inline Step MainStep(std::chrono::milliseconds at, std::function<void(Form1&)> act) {
  return {at, [act = std::move(act)](Application& program) { act(program.form1); }};
}

// Chooses a mode and plays it, presses Play again all the time, once right after Stop, and stops.
inline Scenario Play(int mode, const std::string& code) {
  Scenario scenario{"play " + std::to_string(mode) + " in " + code,
                    {16 + mode, 4, 5},
                    With(SettingsOf(code)),
                    {},
                    false};
  const auto press = [](Form1& form1) { form1.Command2.Click(); };
  scenario.user = {MainStep(1000ms,
                            [mode](Form1& form1) {
                              form1.Options()[static_cast<std::size_t>(mode - 1)]->Click();
                            }),
                   MainStep(1010ms, press),
                   MainStep(1100ms, press),
                   MainStep(1200ms, press),
                   MainStep(1300ms,
                            [](Form1& form1) {
                              form1.Command3.Click();
                              form1.Command2.Click();
                            }),
                   MainStep(1400ms, [](Form1& form1) { form1.Command3.Click(); })};
  return scenario;
}

inline Scenario Menu(const std::string& name, std::vector<int> values,
                     std::function<ui::MenuItem&(Form1&)> item) {
  return {name,
          std::move(values),
          With(SettingsOf("128")),
          {MainStep(1000ms, [](Form1& form1) { form1.Option2.Click(); }),
           MainStep(1010ms, [item](Form1& form1) { item(form1).Click(); })},
          false};
}

inline Scenario StartUp(const std::string& name, std::function<void(Simulation&)> machine,
                        std::vector<Step> user = {}) {
  return {name, {14}, std::move(machine), std::move(user), true};
}

inline std::vector<Scenario> Starts() {
  const Step decline{500ms, [](Application& program) { program.form7.Command2.Click(); }};
  const Step accept{500ms, [](Application& program) { program.form7.Command1.Click(); }};
  std::vector<Scenario> all{
      StartUp("start", With(SettingsOf("128"))),
      StartUp("start in Dutch with all services and an update declined",
              Online(SettingsOf("64", "NL", "y"), "http://a.example/new"), {decline}),
      StartUp("update accepted", Online(SettingsOf("128", "EN", "y"), "http://a.example/new"),
              {accept}),
      StartUp("update with a bad link", Online(SettingsOf("128", "EN", "y"), "calc.exe"), {accept}),
  };
  all[1].values = {14, 702, 301};
  all[2].values = {14, 701, 301};
  all[3].values = {14, 701, 301};
  // The program ends before it looks whether the site is there.
  all[2].ahead = "downloader.Begin https://www.tonmira.example/testcon.dat";
  return all;
}

inline std::vector<Scenario> FirstRuns() {
  const auto on_dialog = [](std::function<void(settings::Form5&)> act) {
    return Step{1000ms, [act = std::move(act)](Application& program) { act(program.form5); }};
  };
  const auto machine = [](Simulation& sim) { PutLanguages(sim); };
  return {{"first run accepted",
           {14, 15, 502},
           machine,
           {on_dialog([](settings::Form5& dialog) { dialog.Command1.Click(); })},
           true},
          {"first run accepted in Dutch",
           {15, 501, 502},
           machine,
           {on_dialog([](settings::Form5& dialog) {
             dialog.Combo1.Choose(1);
             dialog.Check1.Click();
             dialog.Command1.Click();
           })},
           false},
          {"first run declined",
           {503, 15},
           machine,
           {on_dialog([](settings::Form5& dialog) { dialog.Command2.Click(); })},
           false},
          {"damaged settings",
           {14, 15, 502},
           With("AutoUpdate=n\r\nSoundBit=5\r\n"),
           {on_dialog([](settings::Form5& dialog) { dialog.Command1.Click(); })},
           true}};
}

inline std::vector<Scenario> Shutdowns() {
  const auto leave = MainStep(1300ms, [](Form1& form1) { form1.exit.Click(); });
  std::vector<Scenario> all{
      {"exit", {13, 15}, With(SettingsOf("128")), {leave}, false},
      {"exit with an upload", {13, 15}, With(SettingsOf("128", "EN", "y")), {leave}, false}};
  for (const char* code : kSoundCodes) {
    Scenario scenario = Play(3, code);
    scenario.name = std::string("exit while playing in ") + code;
    scenario.values = {19, 4, 13, 15};
    scenario.user.resize(4);
    scenario.user.push_back(leave);
    all.push_back(scenario);
    scenario.name = std::string("log off while playing in ") + code;
    scenario.user.back() = MainStep(1300ms, [](Form1& form1) { form1.SessionEnds(); });
    scenario.from = 1295ms;
    scenario.silent = true;
    all.push_back(std::move(scenario));
  }
  return all;
}

// An error, and everything fails while it is reported.
inline std::vector<Scenario> Reports() {
  Scenario scenario = Play(9, "128");
  scenario.name = "an error is reported";
  scenario.machine = [](Simulation& sim) {
    With(SettingsOf("128"))(sim);
    sim.processes.missing_commands = {"hearage.dll"};
  };
  scenario.user.resize(2);
  scenario.reports = true;
  Scenario sent = scenario;
  sent.name = "an error is reported and sent";
  sent.machine = [](Simulation& sim) {
    With(
        "AutoUpdate=n\r\nSoundBit=128\r\nLanguage=EN\r\nSendData=y\r\nMicrophone=1\r\n"
        "MicrophoneON=n\r\n")(sim);
    sim.processes.missing_commands = {"hearage.dll"};
  };
  return {scenario, sent};
}

inline std::vector<Scenario> Menus() {
  return {Menu("to Dutch", {18, 11}, [](Form1& f) -> ui::MenuItem& { return f.dutch; }),
          Menu("Classic", {18, 28}, [](Form1& f) -> ui::MenuItem& { return f.sndclassic; }),
          Menu("Sound32", {18, 30}, [](Form1& f) -> ui::MenuItem& { return f.sndsound32; }),
          Menu("DirectSound", {18, 29}, [](Form1& f) -> ui::MenuItem& { return f.snddirectsound; }),
          Menu("Automatic", {18, 27}, [](Form1& f) -> ui::MenuItem& { return f.sndautomatic; }),
          Menu("Winmm", {18, 31}, [](Form1& f) -> ui::MenuItem& { return f.sndwinmm; }),
          Menu("update check", {18, 2}, [](Form1& f) -> ui::MenuItem& { return f.autoupdate; }),
          Menu("microphone", {18, 39}, [](Form1& f) -> ui::MenuItem& { return f.microinputonoff; }),
          Menu("website", {18, 32}, [](Form1& f) -> ui::MenuItem& { return f.webpage; }),
          Menu("contact", {18, 9}, [](Form1& f) -> ui::MenuItem& { return f.contact; }),
          Menu("donate", {18, 10}, [](Form1& f) -> ui::MenuItem& { return f.donate; }),
          Menu("about", {18, 1}, [](Form1& f) -> ui::MenuItem& { return f.about; }),
          Menu("open file", {18, 16}, [](Form1& f) -> ui::MenuItem& { return f.openfile; })};
}

inline std::vector<Scenario> TonePrograms() {
  const program_files::Lines good = program_files::ProgramWith({{440, 100}, {880, 100}});
  std::vector<Scenario> all;
  for (const char* code : kSoundCodes) {
    all.push_back(StartUp(std::string("tone program in ") + code, Opened(code, good)));
  }
  all.push_back(StartUp("invisible tone program", Opened("256", program_files::Invisible(good))));
  all.push_back(StartUp("damaged tone program", Opened("256", {"%valid%", "nothing"})));
  all.push_back({"tone program again and exit",
                 {},
                 Opened("32", good),
                 {{1000ms, [](Application& program) { program.form9.Command1.Click(); }},
                  {1100ms, [](Application& program) { program.form9.Command1.Click(); }},
                  {1200ms, [](Application& program) { program.form9.Command2.Click(); }},
                  {1450ms, [](Application& program) { program.form9.Command3.Click(); }}},
                 false});
  return all;
}

inline std::vector<Scenario> MorseMessages() {
  std::vector<Scenario> all;
  for (const char* code : {"16", "32", "128", "256"}) {
    all.push_back({std::string("Morse message in ") + code,
                   {24, 4},
                   With(SettingsOf(code)),
                   {MainStep(1000ms, [](Form1& form1) { form1.Option8.Click(); }),
                    MainStep(1010ms, [](Form1& form1) { form1.Command2.Click(); }),
                    {1050ms,
                     [](Application& program) {
                       if (!program.form4.Visible()) return;
                       program.form4.Text1.Edit("a b");
                       program.form4.Command1.Click();
                     }},
                    {1350ms, [](Application& program) { program.form4.Command2.Click(); }}},
                   false});
  }
  return all;
}

inline std::vector<Scenario> AllScenarios() {
  std::vector<Scenario> all = Starts();
  const auto add = [&all](std::vector<Scenario> more) {
    for (Scenario& scenario : more) all.push_back(std::move(scenario));
  };
  add(FirstRuns());
  add(Shutdowns());
  add(Menus());
  add(Reports());
  add(TonePrograms());
  add(MorseMessages());
  for (int mode = 1; mode <= 9; ++mode) {
    for (const char* code : kSoundCodes) {
      const bool tool = mode == 6 || mode >= 8;
      if (!tool || std::string(code) != "64") all.push_back(Play(mode, code));
    }
  }
  return all;
}

}  // namespace app::faults
