// The command interpreter is the system's own.
#include "platform/interpreter.h"

#include <gtest/gtest.h>

#include "platform/simulated/simulation.h"

namespace platform {
namespace {

using Lines = std::vector<std::string>;

TEST(Interpreter, IsTheOneOfTheSystemsFolderAndTheCommandStaysAsItIs) {
  simulated::Simulation sim;
  sim.environment.system_folder = "D:\\WINNT\\system32";
  StartInterpreter(sim.services, "cmd /c play16.exe");
  EXPECT_EQ(sim.processes.hidden_programs, (Lines{"D:\\WINNT\\system32\\cmd.exe"}));
  EXPECT_EQ(sim.journal.Texts({simulated::Kind::kProcess}),
            (Lines{"start hidden cmd /c play16.exe"}));
}

}  // namespace
}  // namespace platform
