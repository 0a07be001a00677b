// tone16.dll and tone32.dll: plays what the hand-over file asks for until it is terminated, that
// file is gone or who started it has ended. Ends at once with kNoRequest if the file is missing or
// holds anything else.
#include <cstdint>
#include <optional>

#include "helpers/busy_pointer.h"
#include "helpers/request_file.h"
#include "helpers/tone_player.h"
#include "platform/windows/api/system_library.h"
#include "platform/windows/api/windows_api.h"

namespace {

constexpr int kNoRequest = 1;
constexpr helpers::AtTop kAtTop =
    TONMIRA_ENDS_AT_TOP ? helpers::AtTop::kEnd : helpers::AtTop::kStaySilent;

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  platform::windows::LoadFromSystemFolderOnly();
  SetErrorMode(SEM_FAILCRITICALERRORS);
  helpers::RequestFile file;
  const std::optional<std::uint32_t> request = file.Read();
  if (!request) return kNoRequest;
  helpers::EndBusyPointer();
  SetThreadPriority(GetCurrentThread(), THREAD_PRIORITY_TIME_CRITICAL);
  helpers::TonePlayer(file, *request, kAtTop).Run();
  return 0;
}
