#include "platform/simulated/services.h"

#include <algorithm>
#include <stdexcept>

#include "base/errors.h"

namespace platform::simulated {
namespace {

std::string TwoDigits(int number) {
  return (number < 10 ? "0" : "") + std::to_string(number);
}

std::string Hexadecimal(std::uint32_t number) {
  std::string digits;
  do {
    digits.insert(digits.begin(), "0123456789abcdef"[number % 16]);
    number /= 16;
  } while (number != 0);
  return "0x" + digits;
}

std::string IconName(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::kNone:
      return "plain";
    case MessageIcon::kExclamation:
      return "exclamation";
    case MessageIcon::kCritical:
      break;
  }
  return "critical";
}

}  // namespace

std::string FixedEnvironment::Get(const std::string& name) {
  const auto variable = variables.find(name);
  return variable == variables.end() ? "" : variable->second;
}

std::string FixedEnvironment::FullPath(const std::string& path) {
  const bool rooted = path.find(':') != std::string::npos || path.starts_with("\\");
  return rooted ? path : current_folder + "\\" + path;
}

std::string FixedClock::ShortDate() {
  return std::to_string(now.day) + "-" + std::to_string(now.month) + "-" + std::to_string(now.year);
}

std::string FixedClock::ShortTime() {
  return TwoDigits(now.hour) + ":" + TwoDigits(now.minute);
}

bool FakeProcesses::Terminate(std::uint32_t id) {
  const auto process = std::find_if(running.begin(), running.end(),
                                    [id](const ProcessEntry& entry) { return entry.id == id; });
  if (process == running.end() || protected_ids.contains(id)) return false;
  if (fleeting_ids.contains(id)) {
    running.erase(process);
    return false;
  }
  journal_.Add(Kind::kProcess, "terminate " + process->name);
  running.erase(process);
  return true;
}

void FakeProcesses::Start(const std::string& command) {
  Begin(command, "start ");
}

void FakeProcesses::StartHidden(const std::string& program, const std::string& command) {
  Begin(command, "start hidden ");
  hidden_programs.push_back(program);
}

void FakeProcesses::StartProgram(const std::string& program, const std::string& arguments) {
  Begin(program + " " + arguments, "start ");
}

void FakeProcesses::EndProcess() {
  at_end_();
  journal_.Add(Kind::kProcess, "end");
  throw ProcessEnded{};
}

void FakeProcesses::Begin(const std::string& command, const std::string& how) {
  if (missing_commands.contains(command)) {
    throw base::RuntimeError(base::ErrorCode::kFileNotFound);
  }
  journal_.Add(Kind::kProcess, how + command);
  const auto process = become.find(command);
  if (process != become.end()) running.push_back({next_id_++, process->second});
}

void FakeWavePlayer::Play(const std::string& path, std::uint32_t flags) {
  playing = files_.Exists(path) ? path : "";
  journal_.Add(Kind::kSound, "play " + path + " " + Hexadecimal(flags));
}

void FakeWavePlayer::Stop(std::uint32_t flags) {
  playing.clear();
  journal_.Add(Kind::kSound, "stop " + Hexadecimal(flags));
  if (while_stopping) while_stopping();
}

void FakeBeeper::Beep(int pitch_hz, int duration_ms) {
  journal_.Add(Kind::kSound,
               "beep " + std::to_string(pitch_hz) + " " + std::to_string(duration_ms));
  pump_.Sleep(duration_ms);
}

FakeScreen::PixelsPerInch FakeScreen::LogicalPixelsPerInch() {
  if (failing_queries > 0) {
    --failing_queries;
    throw base::RuntimeError(base::ErrorCode::kDeviceError);
  }
  return pixels_per_inch;
}

VersionRecord FakeVersion::Query() {
  if (failing_queries > 0) {
    --failing_queries;
    throw base::RuntimeError(base::ErrorCode::kInvalidCall);
  }
  return record;
}

std::int16_t ScriptedMessages::Show(const std::string& text, const std::string& title,
                                    MessageIcon icon, MessageButtons buttons) {
  journal_.Add(Kind::kMessage, IconName(icon) +
                                   (buttons == MessageButtons::kYesNo ? " yes/no" : "") + " [" +
                                   title + "] " + text);
  if (while_open) while_open();
  if (answers.empty()) {
    if (buttons == MessageButtons::kOk) return kAnswerOk;
    throw std::logic_error("no answer scripted for: " + text);
  }
  const std::int16_t answer = answers.front();
  answers.pop_front();
  return answer;
}

}  // namespace platform::simulated
