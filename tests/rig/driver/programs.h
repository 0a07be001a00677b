// The programs that the driver starts, or takes as if it had started them.
#pragma once

#include <windows.h>

#include <map>
#include <memory>
#include <string>

#include "tests/rig/driver/text.h"

struct HandleCloser {
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using UniqueHandle = std::unique_ptr<void, HandleCloser>;

class Programs {
 public:
  // `arguments` follow the program's name as they are. Returns the process id.
  DWORD Start(const std::string& exe, const std::string& folder, std::wstring environment,
              const std::string& arguments = "");
  void Adopt(const std::string& pid);
  HANDLE Get(const std::string& pid) const;

 private:
  std::map<DWORD, UniqueHandle> processes_;
};

// The bodies of the commands of the same names.
void Start(Programs& programs, const Fields& fields);
void Launch(Programs& programs, const Fields& fields);
