#include "platform/windows/web/downloader.h"

#include <atomic>
#include <memory>
#include <string>
#include <utility>

#include "base/errors.h"
#include "platform/windows/api/handles.h"
#include "platform/windows/api/system_library.h"
#include "platform/windows/api/wide_text.h"
#include "platform/windows/system/file_system.h"
#include "platform/windows/system/random_name.h"
#include "platform/windows/web/download_callback.h"
#include "platform/windows/web/unsized_answer.h"

namespace platform::windows {

namespace {
enum class Stage { kRunning, kArrived, kFailed };
}

// What the thread and whoever waits for it share.
struct DownloadJob {
  std::wstring link;
  std::wstring arrival;  // the name that the file arrives under
  std::wstring path;
  std::size_t most_bytes = 0;
  DWORD thread = 0;  // that downloads
  DWORD waiter = 0;  // thread
  std::atomic<Stage> stage{Stage::kRunning};
  std::atomic<bool> given_up{false};
  std::atomic<HWND> ear{nullptr};  // kEnd to this window of the thread ends the download
};

namespace {

using InitializeFunction = HRESULT(WINAPI*)(LPVOID, DWORD);
using UninitializeFunction = void(WINAPI*)();
using DownloadFunction = HRESULT(WINAPI*)(LPUNKNOWN, LPCWSTR, LPCWSTR, DWORD, LPBINDSTATUSCALLBACK);

constexpr UINT kEnd = WM_APP;
constexpr DWORD kLongestEndMs = 200;

using Job = DownloadJob;
using JobPointer = std::shared_ptr<Job>;

LRESULT CALLBACK EarProcedure(HWND handle, UINT message, WPARAM wparam, LPARAM lparam) noexcept {
  if (message != kEnd) return DefWindowProcW(handle, message, wparam, lparam);
  reinterpret_cast<DownloadCallback*>(GetWindowLongPtrW(handle, GWLP_USERDATA))->End();
  return 0;
}

// A window that is nowhere on the screen. The service lets the messages of its thread be handled
// while it waits for the host, so what is to happen on that thread can be sent there.
class Ear {
 public:
  Ear(Job& job, DownloadCallback& callback) : job_(job) {
    const HWND handle =
        CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    if (handle == nullptr) return;
    SetWindowLongPtrW(handle, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&callback));
    SetWindowLongPtrW(handle, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&EarProcedure));
    job_.ear = handle;
  }
  ~Ear() {
    if (const HWND handle = job_.ear.exchange(nullptr)) DestroyWindow(handle);
  }
  Ear(const Ear&) = delete;
  Ear& operator=(const Ear&) = delete;

 private:
  Job& job_;
};

// The functions of the system that a download needs.
struct Service {
  InitializeFunction initialize;
  UninitializeFunction uninitialize;
  DownloadCallback::Allocator allocate;
  DownloadFunction download;

  Service()
      : download(
            FunctionOf<DownloadFunction>(LoadSystemLibrary(L"urlmon.dll"), "URLDownloadToFileW")) {
    const HMODULE ole = LoadSystemLibrary(L"ole32.dll");
    initialize = FunctionOf<InitializeFunction>(ole, "CoInitializeEx");
    uninitialize = FunctionOf<UninitializeFunction>(ole, "CoUninitialize");
    allocate = FunctionOf<DownloadCallback::Allocator>(ole, "CoTaskMemAlloc");
  }

  bool complete() const {
    return initialize != nullptr && uninitialize != nullptr && allocate != nullptr &&
           download != nullptr;
  }
};

unsigned long long SizeOf(const std::wstring& path) {
  WIN32_FILE_ATTRIBUTE_DATA data{};
  if (!GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data)) return 0;
  return (static_cast<unsigned long long>(data.nFileSizeHigh) << 32) | data.nFileSizeLow;
}

bool ReadUnsized(const Job& job, const std::wstring& link) {
  const auto content = FetchUnsized(link, job.most_bytes, job.given_up);
  if (!content) return false;
  try {
    WindowsFileSystem files;
    const auto file = files.OpenForWriting(Narrow(job.arrival));
    file->Write(*content);
    file->Close();
  } catch (const base::RuntimeError&) {
    return false;
  }
  return true;
}

// Services differ on whether a host that hangs up early, or at once, is a failure.
bool Fetch(Job& job, const Service& service) {
  const ComOwner<DownloadCallback> callback(
      new DownloadCallback(job.link, job.arrival, job.most_bytes, service.allocate));
  const Ear ear(job, *callback);
  if (job.given_up) return false;
  const HRESULT result =
      service.download(nullptr, job.link.c_str(), job.arrival.c_str(), 0, callback.get());
  if (callback->unsized()) return ReadUnsized(job, callback->link());
  return result == S_OK && !callback->ended() && callback->IsWhole(SizeOf(job.arrival));
}

bool FetchWithService(Job& job) {
  const Service service;
  if (!service.complete() || FAILED(service.initialize(nullptr, COINIT_APARTMENTTHREADED))) {
    return false;
  }
  const bool arrived = Fetch(job, service);
  service.uninitialize();
  return arrived;
}

DWORD WINAPI RunJob(void* parameter) noexcept {
  const std::unique_ptr<JobPointer> owner(static_cast<JobPointer*>(parameter));
  Job& job = **owner;
  const bool arrived = FetchWithService(job);
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

DWORD WINAPI LoadService(void*) noexcept {
  const Service service;
  return service.complete() ? 1 : 0;
}

// What is over is nobody's any more.
void GiveUp(Job& job) {
  job.given_up = true;
  if (const HWND ear = job.ear) {
    SendNotifyMessageW(ear, kEnd, 0, 0);
    // The service may sleep until a message is posted.
    PostThreadMessageW(job.thread, WM_NULL, 0, 0);
  }
  if (job.stage == Stage::kArrived) DeleteFileW(job.arrival.c_str());
}

bool IsOver(HANDLE thread, DWORD patience_ms) {
  return WaitForSingleObject(thread, patience_ms) != WAIT_TIMEOUT;
}

class ThreadDownload final : public RunningDownload {
 public:
  explicit ThreadDownload(JobPointer job) : job_(std::move(job)) {}

  ~ThreadDownload() override { GiveUp(*job_); }

  bool Over() const override { return job_->stage != Stage::kRunning; }

  bool PutInPlace() override {
    return job_->stage == Stage::kArrived &&
           MoveFileExW(job_->arrival.c_str(), job_->path.c_str(), MOVEFILE_REPLACE_EXISTING) != 0;
  }

 private:
  JobPointer job_;
};

}  // namespace

void WindowsDownloader::Prepare() {
  Own(CreateThread(nullptr, 0, LoadService, nullptr, 0, nullptr));
}

std::unique_ptr<RunningDownload> WindowsDownloader::Begin(const std::string& link,
                                                          const std::string& path,
                                                          std::size_t most_bytes) {
  std::erase_if(begun_, [](const Begun& begun) {
    return begun.job.use_count() == 1 && IsOver(begun.thread.get(), 0);
  });
  const auto job = std::make_shared<Job>();
  job->link = Widen(link);
  job->path = Widen(path);
  job->arrival = RandomNameBeside(job->path);
  job->most_bytes = most_bytes;
  job->waiter = GetCurrentThreadId();
  auto owner = std::make_unique<JobPointer>(job);
  DWORD thread_id = 0;
  KernelHandle thread = Own(CreateThread(nullptr, 0, RunJob, owner.get(), 0, &thread_id));
  if (thread) {
    static_cast<void>(owner.release());
    job->thread = thread_id;
    begun_.push_back({job, std::move(thread)});
  } else {
    job->stage = Stage::kFailed;
  }
  return std::make_unique<ThreadDownload>(job);
}

void WindowsDownloader::GiveUpAll() {
  for (const Begun& begun : begun_) GiveUp(*begun.job);
  const DWORD begin = GetTickCount();
  for (const Begun& begun : begun_) {
    const DWORD passed = GetTickCount() - begin;
    IsOver(begun.thread.get(), passed < kLongestEndMs ? kLongestEndMs - passed : 0);
    DeleteFileW(begun.job->arrival.c_str());
  }
}

}  // namespace platform::windows
