// The services of the surrounding system, one small abstract class each.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace platform {

class Environment {
 public:
  virtual ~Environment() = default;

  // Value of an environment variable, empty when it is not set.
  virtual std::string Get(const std::string& name) = 0;

  // The command line after the program's own name, as it was given.
  virtual std::string Arguments() = 0;

  // The folder of the system's own programs and libraries, without a backslash at its end.
  virtual std::string SystemFolder() = 0;

  // The folder of the program's executable file, without a backslash at its end.
  virtual std::string ProgramFolder() = 0;

  // The name of that file, without a folder and without ".exe".
  virtual std::string ProgramName() = 0;

  virtual std::string FullPath(const std::string& path) = 0;
  virtual void SetCurrentFolder(const std::string& path) = 0;

  // What the user's locale writes for the point of a number.
  virtual char DecimalSign() = 0;
};

struct LocalTime {
  int year = 0;
  int month = 0;  // 1 to 12
  int day = 0;    // 1 to 31
  int hour = 0;
  int minute = 0;
  int second = 0;
};

class Clock {
 public:
  virtual ~Clock() = default;

  virtual LocalTime Now() = 0;

  // The current date and time in the system's short formats.
  virtual std::string ShortDate() = 0;
  virtual std::string ShortTime() = 0;
};

class Random {
 public:
  virtual ~Random() = default;

  // A pseudo-random number in [0, 1).
  virtual double Next() = 0;
};

// A point of a clock that never goes back, counted from some beginning.
using Moment = std::chrono::microseconds;

// How exactly a wait ends: by the system's timer, up to 16 ms late, or by a finer one, which costs
// the whole machine power.
enum class Grain { kCoarse, kFine };

// The message queue of the program's one thread. Nothing else waits.
class MessagePump {
 public:
  virtual ~MessagePump() = default;

  // Handles the messages that are pending. With `enough` given, stops as soon as it holds after a
  // message: what the user did next is left for whoever pumps next, so that a stopped loop ends
  // before the input that follows is handled.
  virtual void ProcessPending(const std::function<bool()>& enough = {}) = 0;

  // Handles messages as they come until `done` holds or `at_most_ms` are over; returns whether it
  // holds. The thread blocks while there is nothing to do.
  virtual bool ProcessUntil(const std::function<bool()>& done, int at_most_ms) = 0;

  // Handles messages as they come until `stopped`, which only they change, holds or `end` is
  // reached; returns whether it holds. The input that follows it is left to whoever pumps next.
  virtual bool Pass(const std::function<bool()>& stopped, Moment end, Grain grain) = 0;

  virtual Moment Now() const = 0;

  // Blocks the thread; messages wait, but in a long sleep windows are still drawn. Returns at once
  // for 0 and less.
  virtual void Sleep(int milliseconds) = 0;
  virtual void SleepUntil(Moment end) = 0;

  // Handles messages until no window is left that could be used.
  virtual void Run() = 0;
};

struct ProcessEntry {
  std::uint32_t id = 0;
  std::string name;  // name of the executable file, without a folder
};

class Processes {
 public:
  virtual ~Processes() = default;

  virtual std::vector<ProcessEntry> Snapshot() = 0;

  // Ends a process with exit code 0. False when it is gone or may not be ended.
  virtual bool Terminate(std::uint32_t id) = 0;

  // Starts a command without waiting for it. Its program is looked for as the system does it, first
  // in this program's own folder, which is the new one's current folder. Throws base::RuntimeError
  // with what prevents that (platform/start_errors.h).
  virtual void Start(const std::string& command) = 0;

  // Starts `program`, a full path, and no other, with the command line `command` and with its
  // window hidden. In all else as Start.
  virtual void StartHidden(const std::string& program, const std::string& command) = 0;

  // Starts `program`, a full path, with the command line `program`, a blank, `arguments`. Throws as
  // Start does.
  virtual void StartProgram(const std::string& program, const std::string& arguments) = 0;

  // Ends this process at once. No handler, trap or destructor of the program runs after it.
  // Downloads that are not over are given up.
  [[noreturn]] virtual void EndProcess() = 0;
};

// Flags of the multimedia player's PlaySound function (winmm), as documented for it.
inline constexpr std::uint32_t kPlayAsync = 0x1;
inline constexpr std::uint32_t kPlayNoDefault = 0x2;
inline constexpr std::uint32_t kPlayLoop = 0x8;
inline constexpr std::uint32_t kPlayFilename = 0x20000;

class WavePlayer {
 public:
  virtual ~WavePlayer() = default;

  // Starts a file, replacing the sound that is playing. Failure is silent.
  virtual void Play(const std::string& path, std::uint32_t flags) = 0;

  // Stops whatever this process is playing.
  virtual void Stop(std::uint32_t flags) = 0;
};

// The system's own beep.
class Beeper {
 public:
  virtual ~Beeper() = default;

  // Sounds and returns when it is over. A duration of 0 and less is no sound.
  virtual void Beep(int pitch_hz, int duration_ms) = 0;
};

class Screen {
 public:
  virtual ~Screen() = default;

  struct PixelsPerInch {
    std::int32_t horizontal = 0;
    std::int32_t vertical = 0;
  };
  struct Size {
    std::int32_t width = 0;  // pixels
    std::int32_t height = 0;
  };

  virtual PixelsPerInch LogicalPixelsPerInch() = 0;
  virtual Size Pixels() = 0;
};

struct VersionRecord {
  std::int32_t success = 0;   // the call's own result, 1 when it succeeded
  std::int32_t platform = 0;  // 2 = NT family
  std::int32_t major = 0;
  std::int32_t minor = 0;
};

class SystemVersion {
 public:
  virtual ~SystemVersion() = default;

  virtual VersionRecord Query() = 0;
};

enum class MessageIcon { kNone, kExclamation, kCritical };
enum class MessageButtons { kOk, kYesNo };

// Answer codes of the system's message box.
inline constexpr std::int16_t kAnswerOk = 1;
inline constexpr std::int16_t kAnswerYes = 6;
inline constexpr std::int16_t kAnswerNo = 7;

class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;

  // Shows a message box and returns the answer code. Messages of other windows are handled while
  // it is open.
  virtual std::int16_t Show(const std::string& text, const std::string& title, MessageIcon icon,
                            MessageButtons buttons) = 0;
};

}  // namespace platform
