// One run of the program in which one call goes wrong, and all that can be seen of it.
#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/simulated/faulty_platform.h"
#include "tests/app/fixture.h"

namespace app::faults {

using platform::simulated::Calls;
using platform::simulated::Fault;
using platform::simulated::Simulation;

struct Step {
  std::chrono::milliseconds at;
  std::function<void(Application&)> act;  // not done while the error dialog is open
};

// What a user does. Calls count from the start of the program, or from a moment of it, and to 1.5
// s.
struct Scenario {
  std::string name;
  std::vector<int> values;  // error values of the handlers that it goes through
  std::function<void(Simulation&)> machine;
  std::vector<Step> user;
  bool from_the_start = false;
  bool reports = false;  // an error is reported even when nothing goes wrong beside it
  bool silent = false;   // nobody is told of anything
  std::chrono::milliseconds from{990};
  std::string ahead{};  // a call made ahead of a step that never comes: nobody is told of it
};

struct Outcome {
  int calls = 0;
  std::string hit;  // the call that went wrong
  std::string end;  // "ended", or what happened instead
  int plays_at_once = 0;
  bool stuck = false;   // neither Play nor Stop could be pressed, or Stop did not lead back to Play
  std::string twice;    // a sound that began while another one sounded
  std::string missing;  // a file that was played and was not there, or not whole
  std::string sounding;  // helpers that ran when the program had ended
  Lines messages;
  Lines error_log;
  int error_dialogs = 0;
  bool main_window = false;                 // whether it was on the screen after the user's steps
  std::map<std::string, std::string> disk;  // when the program had ended
};

inline constexpr std::size_t kWaveBytes = 176444;  // one second of a tone

class Scene {
 public:
  Scene(const Scenario& scenario, int n, Fault fault) : scenario_(scenario), n_(n), fault_(fault) {
    calls.on_end = [this] { NoteTheEnd(); };
    calls.on_call = [this](const char* call, std::string_view about) { Listen(call, about); };
    sim.messages.answers.assign(99, platform::kAnswerYes);
    sim.processes.become = {{"cmd /c play16.exe", "tone16.dll"},
                            {"cmd /c \"C:\\Tonmira\\play16.exe\"", "tone16.dll"},
                            {"tone32.dll", "tone32.dll"}};
  }

  Outcome Run() {
    if (scenario_.machine) scenario_.machine(sim);
    Schedule();
    try {
      const bool ended = sim.Run([this] {
        if (scenario_.from_the_start) calls.FaultAt(n_, fault_);
        program = std::make_unique<Application>(faulty.services);
        WatchPlays();
        program->Run();
      });
      outcome.end = ended ? "ended" : "waits for ever, with a window";
    } catch (const platform::simulated::Endless&) {
      outcome.end = "calls without end";
    } catch (const std::exception& error) {
      outcome.end = error.what();
    }
    NoteTheEnd();
    outcome.hit = calls.hit();
    outcome.messages = sim.journal.Texts({Kind::kMessage});
    for (const std::string& text : sim.journal.Texts({Kind::kWindow})) {
      if (text == "Form6 shown") ++outcome.error_dialogs;
    }
    return outcome;
  }

  Simulation sim;
  Calls calls;
  platform::simulated::FaultyPlatform faulty{sim.services, calls};
  std::unique_ptr<Application> program;
  Outcome outcome;

 private:
  void Schedule() {
    if (!scenario_.from_the_start) sim.At(scenario_.from, [this] { calls.FaultAt(n_, fault_); });
    for (const Step& step : scenario_.user) {
      sim.At(step.at, [this, &step] {
        if (!program->form6.Visible()) step.act(*program);
      });
    }
    sim.At(1500ms, [this] { StopCounting(); });
    for (const auto at : {1600ms, 1700ms, 1800ms}) {
      sim.At(at, [this] { LeaveTheErrorDialog(); });
    }
    sim.At(1900ms, [this] { StopWhatPlays(); });
    sim.At(1950ms, [this] { SeeWhetherItCouldPlay(); });
    // A call that waits may take its time.
    for (const auto at : {2000ms, 2100ms, 2200ms, 2300ms, 3000ms, 5000ms, 8000ms, 9000ms}) {
      sim.At(at, [this] { CloseWhatIsThere(); });
    }
  }

  void StopCounting() {
    outcome.calls = calls.count();
    calls.FaultAt(0, fault_);
  }

  void LeaveTheErrorDialog() {
    if (program->form6.Visible()) program->form6.Command1.Click();
  }

  void StopWhatPlays() {
    Form1& form1 = program->form1;
    outcome.main_window = form1.Visible();
    if (!outcome.main_window) return;
    if (!form1.Command2.Enabled() && !form1.Command3.Enabled()) outcome.stuck = true;
    form1.Command3.Click();
  }

  void SeeWhetherItCouldPlay() {
    const Form1& form1 = program->form1;
    if (form1.Visible() && (!form1.Command2.Enabled() || !form1.settings.Enabled())) {
      outcome.stuck = true;
    }
  }

  void CloseWhatIsThere() {
    LeaveTheErrorDialog();
    const std::initializer_list<ui::Window*> windows{
        &program->form7, &program->form5, &program->form4, &program->form9,    &program->form2,
        &program->form3, &program->form8, &program->form1, &program->frm_about};
    for (ui::Window* window : windows) {
      if (window->Visible()) window->Close();
    }
  }

  void WatchPlays() {
    for (ui::Button* play :
         {&program->form1.Command2, &program->form4.Command1, &program->form9.Command1}) {
      play->OnClick = [this, handler = play->OnClick] {
        const int before = calls.count();
        ++plays_;
        handler();
        // One that calls nothing is no play.
        if (calls.count() != before)
          outcome.plays_at_once = std::max(outcome.plays_at_once, plays_);
        --plays_;
      };
    }
  }

  // What this process itself plays goes with it; helpers do not.
  void Listen(std::string_view call, std::string_view about) {
    if (call == "waves.Play") {
      if (!sim.waves.playing.empty()) outcome.twice = about;
      const auto image = sim.files.Get(std::string(about));
      if (!image || image->size() != kWaveBytes) outcome.missing = about;
    } else if (call == "processes.StartHidden" &&
               sim.processes.become.contains(std::string(about)) &&
               !sim.processes.running.empty()) {
      outcome.twice = about;
    }
  }

  // Whatever runs after the end of the process, as the stack unwinds, has not happened.
  void NoteTheEnd() {
    if (std::exchange(noted_, true)) return;
    if (outcome.calls == 0) outcome.calls = calls.count();
    outcome.disk = sim.files.All();
    outcome.error_log = sim.Lines(kErrorLog);
    for (const auto& process : sim.processes.running) outcome.sounding += " " + process.name;
  }

  const Scenario& scenario_;
  int n_;
  Fault fault_;
  int plays_ = 0;
  bool noted_ = false;
};

}  // namespace app::faults
