#include "platform/windows/downloader.h"

#include <atomic>
#include <memory>
#include <string>
#include <utility>

#include "platform/windows/download_callback.h"
#include "platform/windows/handles.h"
#include "platform/windows/system_library.h"
#include "platform/windows/wide_text.h"

namespace platform::windows {
namespace {

using InitializeFunction = HRESULT(WINAPI*)(LPVOID, DWORD);
using UninitializeFunction = void(WINAPI*)();
using DownloadFunction = HRESULT(WINAPI*)(LPUNKNOWN, LPCWSTR, LPCWSTR, DWORD, LPBINDSTATUSCALLBACK);

enum class Stage { kRunning, kArrived, kFailed };

// What the thread and whoever waits for it share.
struct Job {
  std::wstring link;
  std::wstring arrival;  // the name that the file arrives under
  std::wstring path;
  std::size_t most_bytes = 0;
  DWORD waiter = 0;  // thread
  std::atomic<Stage> stage{Stage::kRunning};
  std::atomic<bool> given_up{false};
};
using JobPointer = std::shared_ptr<Job>;

bool Fetch(const Job& job) {
  const HMODULE ole = LoadSystemLibrary(L"ole32.dll");
  const HMODULE service = LoadSystemLibrary(L"urlmon.dll");
  const auto initialize = FunctionOf<InitializeFunction>(ole, "CoInitializeEx");
  const auto uninitialize = FunctionOf<UninitializeFunction>(ole, "CoUninitialize");
  const auto download = FunctionOf<DownloadFunction>(service, "URLDownloadToFileW");
  if (initialize == nullptr || uninitialize == nullptr || download == nullptr) return false;
  if (FAILED(initialize(nullptr, COINIT_APARTMENTTHREADED))) return false;
  const ComOwner<DownloadCallback> callback(new DownloadCallback(job.most_bytes, job.given_up));
  const HRESULT result =
      download(nullptr, job.link.c_str(), job.arrival.c_str(), 0, callback.get());
  uninitialize();
  return result == S_OK && !callback->ended() && !job.given_up;
}

DWORD WINAPI RunJob(void* parameter) noexcept {
  const std::unique_ptr<JobPointer> owner(static_cast<JobPointer*>(parameter));
  Job& job = **owner;
  const bool arrived = Fetch(job);
  if (!arrived) DeleteFileW(job.arrival.c_str());
  job.stage = arrived ? Stage::kArrived : Stage::kFailed;
  // Whichever of the two sides is later to say so deletes what nobody takes any more.
  if (job.given_up) {
    DeleteFileW(job.arrival.c_str());
  } else {
    PostThreadMessageW(job.waiter, WM_NULL, 0, 0);
  }
  return 0;
}

class ThreadDownload final : public RunningDownload {
 public:
  explicit ThreadDownload(JobPointer job) : job_(std::move(job)) {}

  ~ThreadDownload() override {
    job_->given_up = true;
    if (job_->stage == Stage::kArrived) DeleteFileW(job_->arrival.c_str());
  }

  bool Over() const override { return job_->stage != Stage::kRunning; }

  bool PutInPlace() override {
    return job_->stage == Stage::kArrived &&
           MoveFileExW(job_->arrival.c_str(), job_->path.c_str(), MOVEFILE_REPLACE_EXISTING) != 0;
  }

 private:
  JobPointer job_;
};

}  // namespace

std::unique_ptr<RunningDownload> WindowsDownloader::Begin(const std::string& link,
                                                          const std::string& path,
                                                          std::size_t most_bytes) {
  const auto job = std::make_shared<Job>();
  job->link = Widen(link);
  job->path = Widen(path);
  job->arrival = job->path + L"." + std::to_wstring(GetCurrentProcessId()) + L"-" +
                 std::to_wstring(++begun_) + L".tmp";
  job->most_bytes = most_bytes;
  job->waiter = GetCurrentThreadId();
  auto owner = std::make_unique<JobPointer>(job);
  const KernelHandle thread = Own(CreateThread(nullptr, 0, RunJob, owner.get(), 0, nullptr));
  if (thread) {
    owner.release();
  } else {
    job->stage = Stage::kFailed;
  }
  return std::make_unique<ThreadDownload>(job);
}

}  // namespace platform::windows
