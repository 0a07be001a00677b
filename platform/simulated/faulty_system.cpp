#include "platform/simulated/faulty_system.h"

#include <exception>
#include <utility>

namespace platform::simulated {
namespace {

using base::ErrorCode;

class FaultyDownload : public RunningDownload {
 public:
  FaultyDownload(std::unique_ptr<RunningDownload> real, Calls& calls)
      : real_(std::move(real)), calls_(calls) {}

  bool Over() const override { return !calls_.Next("download.Over") && real_->Over(); }
  bool PutInPlace() override { return !calls_.Next("download.PutInPlace") && real_->PutInPlace(); }

 private:
  std::unique_ptr<RunningDownload> real_;
  Calls& calls_;
};

}  // namespace

std::string FaultyEnvironment::Get(const std::string& name) {
  return calls_.Next("environment.Get", name) ? "" : real_.Get(name);
}

std::string FaultyEnvironment::Arguments() {
  calls_.Enter("environment.Arguments");
  return real_.Arguments();
}

std::string FaultyEnvironment::SystemFolder() {
  calls_.Enter("environment.SystemFolder");
  return real_.SystemFolder();
}

std::string FaultyEnvironment::ProgramFolder() {
  calls_.Enter("environment.ProgramFolder");
  return real_.ProgramFolder();
}

std::string FaultyEnvironment::ProgramName() {
  calls_.Enter("environment.ProgramName");
  return real_.ProgramName();
}

std::string FaultyEnvironment::FullPath(const std::string& path) {
  calls_.Enter("environment.FullPath", path);
  return real_.FullPath(path);
}

void FaultyEnvironment::SetCurrentFolder(const std::string& path) {
  calls_.Enter("environment.SetCurrentFolder", path);
  real_.SetCurrentFolder(path);
}

// What cannot be asked for is a point.
char FaultyEnvironment::DecimalSign() {
  return calls_.Next("environment.DecimalSign") ? '.' : real_.DecimalSign();
}

LocalTime FaultyClock::Now() {
  calls_.Enter("clock.Now");
  return real_.Now();
}

std::string FaultyClock::ShortDate() {
  calls_.Enter("clock.ShortDate");
  return real_.ShortDate();
}

std::string FaultyClock::ShortTime() {
  calls_.Enter("clock.ShortTime");
  return real_.ShortTime();
}

double FaultyRandom::Next() {
  calls_.Enter("random.Next");
  return real_.Next();
}

void FaultyPump::ProcessPending(const std::function<bool()>& enough) {
  calls_.Enter("pump.ProcessPending");
  pump_.ProcessPending(enough);
}

bool FaultyPump::ProcessUntil(const std::function<bool()>& done, int at_most_ms) {
  calls_.Enter("pump.ProcessUntil");
  return pump_.ProcessUntil(done, at_most_ms);
}

bool FaultyPump::Pass(const std::function<bool()>& stopped, Moment end, Grain grain) {
  calls_.Enter("pump.Pass");
  return pump_.Pass(stopped, end, grain);
}

void FaultyPump::SleepUntil(Moment end) {
  calls_.Enter("pump.SleepUntil");
  pump_.SleepUntil(end);
}

void FaultyPump::Sleep(int milliseconds) {
  calls_.Enter("pump.Sleep");
  pump_.Sleep(milliseconds);
}

void FaultyPump::Run() {
  calls_.Enter("pump.Run");
  pump_.Run();
}

std::unique_ptr<Timer> FaultyPump::Start(int period_ms, std::function<void()> tick) {
  calls_.Enter("timers.Start", std::to_string(period_ms));
  return timers_.Start(period_ms, std::move(tick));
}

std::vector<ProcessEntry> FaultyProcesses::Snapshot() {
  return calls_.Next("processes.Snapshot") ? std::vector<ProcessEntry>{} : real_.Snapshot();
}

bool FaultyProcesses::Terminate(std::uint32_t id) {
  return !calls_.Next("processes.Terminate") && real_.Terminate(id);
}

void FaultyProcesses::Start(const std::string& command) {
  calls_.Enter("processes.Start", command, ErrorCode::kFileNotFound);
  real_.Start(command);
}

void FaultyProcesses::StartHidden(const std::string& program, const std::string& command) {
  calls_.Enter("processes.StartHidden", command, ErrorCode::kFileNotFound);
  real_.StartHidden(program, command);
}

void FaultyProcesses::StartProgram(const std::string& program, const std::string& arguments) {
  calls_.Enter("processes.StartProgram", program, ErrorCode::kFileNotFound);
  real_.StartProgram(program, arguments);
}

void FaultyProcesses::EndProcess() {
  if (calls_.on_end) calls_.on_end();
  real_.EndProcess();
  std::terminate();
}

FaultyScreen::PixelsPerInch FaultyScreen::LogicalPixelsPerInch() {
  calls_.Enter("screen.LogicalPixelsPerInch", {}, ErrorCode::kDeviceError);
  return real_.LogicalPixelsPerInch();
}

FaultyScreen::Size FaultyScreen::Pixels() {
  calls_.Enter("screen.Pixels");
  return real_.Pixels();
}

VersionRecord FaultyVersion::Query() {
  calls_.Enter("version.Query", {}, ErrorCode::kInvalidCall);
  return system_.Query();
}

ProgramVersion FaultyVersion::Read() {
  calls_.Enter("version_resource.Read", {}, ErrorCode::kFileNotFound);
  return program_.Read();
}

std::int16_t FaultyDialogs::Show(const std::string& text, const std::string& title,
                                 MessageIcon icon, MessageButtons buttons) {
  if (calls_.Next("messages.Show", text)) return 0;
  return messages_.Show(text, title, icon, buttons);
}

std::string FaultyDialogs::Open(const OpenDialog& dialog) {
  return calls_.Next("file_dialogs.Open") ? "" : files_.Open(dialog);
}

std::optional<RegistryValue> FaultyRegistry::Read(RegistryRoot root, const std::string& key,
                                                  const std::string& value) {
  if (calls_.Next("registry.Read", key)) return std::nullopt;
  return real_.Read(root, key, value);
}

std::unique_ptr<RunningDownload> FaultyDownloader::Begin(const std::string& link,
                                                         const std::string& path,
                                                         std::size_t most_bytes) {
  calls_.Enter("downloader.Begin", link);
  return std::make_unique<FaultyDownload>(real_.Begin(link, path, most_bytes), calls_);
}

}  // namespace platform::simulated
