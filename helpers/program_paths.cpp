#include "helpers/program_paths.h"

namespace helpers {

WideText Beside(std::wstring_view program, std::wstring_view name) {
  const std::wstring_view folder(program.data(), program.find_last_of(L"\\/") + 1);
  return WideText().Append(folder).Append(name);
}

WideText CommandLine(std::wstring_view program) {
  // A path holds no quotes, so nothing in it needs an escape.
  return WideText().Append(L"\"").Append(program).Append(L"\"");
}

}  // namespace helpers
