// The simulated services around the virtual clock: time, processes, sound, screen, messages.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/files.h"
#include "platform/simulated/journal.h"
#include "platform/system.h"

namespace platform::simulated {

class FixedEnvironment : public Environment {
 public:
  std::map<std::string, std::string> variables;
  std::string arguments;
  std::string system_folder = "C:\\Windows\\System32";
  std::string program_folder = "C:\\Tonmira";
  std::string program_name = "tonmira";
  std::string current_folder = "C:\\Users\\Tom";
  char decimal_sign = '.';

  std::string Get(const std::string& name) override;
  std::string Arguments() override { return arguments; }
  std::string SystemFolder() override { return system_folder; }
  std::string ProgramFolder() override { return program_folder; }
  std::string ProgramName() override { return program_name; }
  std::string FullPath(const std::string& path) override;
  void SetCurrentFolder(const std::string& path) override { current_folder = path; }
  char DecimalSign() override { return decimal_sign; }
};

// The date and the time of day stand still; only the pump's milliseconds run.
class FixedClock : public Clock {
 public:
  LocalTime now{2026, 11, 20, 14, 30, 5};

  LocalTime Now() override { return now; }
  std::string ShortDate() override;
  std::string ShortTime() override;
};

class ScriptedRandom : public Random {
 public:
  std::deque<double> first;  // these, and then always
  double next = 0.5;

  double Next() override {
    if (first.empty()) return next;
    const double number = first.front();
    first.pop_front();
    return number;
  }
};

class FakeProcesses : public Processes {
 public:
  // `at_end` happens when the process ends itself.
  FakeProcesses(Journal& journal, std::function<void()> at_end)
      : journal_(journal), at_end_(std::move(at_end)) {}

  std::vector<ProcessEntry> running;
  std::set<std::uint32_t> protected_ids;      // may not be ended
  std::set<std::uint32_t> fleeting_ids;       // are gone when they are to be ended
  std::set<std::string> missing_commands;     // cannot be started
  std::vector<std::string> hidden_programs;   // the files that were started hidden, by their paths
  std::map<std::string, std::string> become;  // command: name of the process that it starts

  std::vector<ProcessEntry> Snapshot() override { return running; }
  bool Terminate(std::uint32_t id) override;
  void Start(const std::string& command) override;
  void StartHidden(const std::string& program, const std::string& command) override;
  void StartProgram(const std::string& program, const std::string& arguments) override;
  [[noreturn]] void EndProcess() override;

 private:
  std::uint32_t next_id_ = 10000;

  void Begin(const std::string& command, const std::string& how);

  Journal& journal_;
  std::function<void()> at_end_;
};

// A file that is not there is silence.
class FakeWavePlayer : public WavePlayer {
 public:
  FakeWavePlayer(Journal& journal, FileSystem& files) : journal_(journal), files_(files) {}

  std::string playing;                   // path of the sound that sounds now, empty in silence
  std::function<void()> while_stopping;  // what happens before Stop returns

  void Play(const std::string& path, std::uint32_t flags) override;
  void Stop(std::uint32_t flags) override;

 private:
  Journal& journal_;
  FileSystem& files_;
};

// Blocks for the length of its sound.
class FakeBeeper : public Beeper {
 public:
  FakeBeeper(Journal& journal, MessagePump& pump) : journal_(journal), pump_(pump) {}

  void Beep(int pitch_hz, int duration_ms) override;

 private:
  Journal& journal_;
  MessagePump& pump_;
};

class FakeScreen : public Screen {
 public:
  PixelsPerInch pixels_per_inch{96, 96};
  Size size{1920, 1080};
  int failing_queries = 0;  // so many queries of the resolution from now throw

  PixelsPerInch LogicalPixelsPerInch() override;
  Size Pixels() override { return size; }
};

class FakeVersion : public SystemVersion {
 public:
  VersionRecord record{1, 2, 6, 1};
  int failing_queries = 0;  // so many queries from now throw

  VersionRecord Query() override;
};

// Answers come from a script; OK boxes without one are answered with OK.
class ScriptedMessages : public MessageBoxes {
 public:
  explicit ScriptedMessages(Journal& journal) : journal_(journal) {}

  std::deque<std::int16_t> answers;
  std::function<void()> while_open;  // what happens while a box is open

  std::int16_t Show(const std::string& text, const std::string& title, MessageIcon icon,
                    MessageButtons buttons) override;

 private:
  Journal& journal_;
};

}  // namespace platform::simulated
