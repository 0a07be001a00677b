// The services of the surrounding system, counted. What has no error of its own runs out of memory,
// or answers as its header says that a failure does.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/downloader.h"
#include "platform/file_dialogs.h"
#include "platform/registry.h"
#include "platform/simulated/calls.h"
#include "platform/system.h"
#include "platform/timers.h"
#include "platform/version_resource.h"

namespace platform::simulated {

class FaultyEnvironment : public Environment {
 public:
  FaultyEnvironment(Environment& real, Calls& calls) : real_(real), calls_(calls) {}

  // A variable that cannot be read is empty.
  std::string Get(const std::string& name) override;
  std::string Arguments() override;
  std::string SystemFolder() override;
  std::string ProgramFolder() override;
  std::string ProgramName() override;
  std::string FullPath(const std::string& path) override;
  void SetCurrentFolder(const std::string& path) override;
  char DecimalSign() override;

 private:
  Environment& real_;
  Calls& calls_;
};

class FaultyClock : public Clock {
 public:
  FaultyClock(Clock& real, Calls& calls) : real_(real), calls_(calls) {}

  LocalTime Now() override;
  std::string ShortDate() override;
  std::string ShortTime() override;

 private:
  Clock& real_;
  Calls& calls_;
};

class FaultyRandom : public Random {
 public:
  FaultyRandom(Random& real, Calls& calls) : real_(real), calls_(calls) {}

  double Next() override;

 private:
  Random& real_;
  Calls& calls_;
};

class FaultyPump : public MessagePump, public Timers {
 public:
  FaultyPump(MessagePump& pump, Timers& timers, Calls& calls)
      : pump_(pump), timers_(timers), calls_(calls) {}

  void ProcessPending(const std::function<bool()>& enough = {}) override;
  bool ProcessUntil(const std::function<bool()>& done, int at_most_ms) override;
  bool Pass(const std::function<bool()>& stopped, Moment end, Grain grain) override;
  Moment Now() const override { return pump_.Now(); }  // not counted: it cannot fail
  void Sleep(int milliseconds) override;
  void SleepUntil(Moment end) override;
  void Run() override;
  std::unique_ptr<Timer> Start(int period_ms, std::function<void()> tick) override;

 private:
  MessagePump& pump_;
  Timers& timers_;
  Calls& calls_;
};

class FaultyProcesses : public Processes {
 public:
  FaultyProcesses(Processes& real, Calls& calls) : real_(real), calls_(calls) {}

  std::vector<ProcessEntry> Snapshot() override;
  bool Terminate(std::uint32_t id) override;
  void Start(const std::string& command) override;
  void StartHidden(const std::string& program, const std::string& command) override;
  void StartProgram(const std::string& program, const std::string& arguments) override;

  // Not counted: it cannot fail.
  [[noreturn]] void EndProcess() override;

 private:
  Processes& real_;
  Calls& calls_;
};

class FaultyScreen : public Screen {
 public:
  FaultyScreen(Screen& real, Calls& calls) : real_(real), calls_(calls) {}

  PixelsPerInch LogicalPixelsPerInch() override;
  Size Pixels() override;

 private:
  Screen& real_;
  Calls& calls_;
};

class FaultyVersion : public SystemVersion, public VersionResource {
 public:
  FaultyVersion(SystemVersion& system, VersionResource& program, Calls& calls)
      : system_(system), program_(program), calls_(calls) {}

  VersionRecord Query() override;
  ProgramVersion Read() override;

 private:
  SystemVersion& system_;
  VersionResource& program_;
  Calls& calls_;
};

// A message box or dialog that does not come up has no answer.
class FaultyDialogs : public MessageBoxes, public FileDialogs {
 public:
  FaultyDialogs(MessageBoxes& messages, FileDialogs& files, Calls& calls)
      : messages_(messages), files_(files), calls_(calls) {}

  std::int16_t Show(const std::string& text, const std::string& title, MessageIcon icon,
                    MessageButtons buttons) override;
  std::string Open(const OpenDialog& dialog) override;

 private:
  MessageBoxes& messages_;
  FileDialogs& files_;
  Calls& calls_;
};

class FaultyRegistry : public Registry {
 public:
  FaultyRegistry(Registry& real, Calls& calls) : real_(real), calls_(calls) {}

  std::optional<RegistryValue> Read(RegistryRoot root, const std::string& key,
                                    const std::string& value) override;

 private:
  Registry& real_;
  Calls& calls_;
};

class FaultyDownloader : public Downloader {
 public:
  FaultyDownloader(Downloader& real, Calls& calls) : real_(real), calls_(calls) {}

  void Prepare() override { real_.Prepare(); }  // not counted: it cannot fail

  std::unique_ptr<RunningDownload> Begin(const std::string& link, const std::string& path,
                                         std::size_t most_bytes) override;

 private:
  Downloader& real_;
  Calls& calls_;
};

}  // namespace platform::simulated
