#include "tools/native.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <memory>

namespace tools::native {
namespace {

Kind KindOf(const struct stat& status) {
  if (S_ISREG(status.st_mode)) return Kind::kFile;
  return S_ISDIR(status.st_mode) ? Kind::kFolder : Kind::kOther;
}

}  // namespace

std::FILE* OpenFile(const std::string& name, Open how) {
  return std::fopen(name.c_str(), how == Open::kForReading ? "rb" : "wb");
}

Kind KindOf(const std::string& name) {
  struct stat status {};
  return stat(name.c_str(), &status) == 0 ? KindOf(status) : Kind::kNothing;
}

Kind KindOf(std::FILE* file) {
  struct stat status {};
  return fstat(fileno(file), &status) == 0 ? KindOf(status) : Kind::kOther;
}

std::string Resolved(const std::string& name) {
  const std::unique_ptr<char, decltype(&std::free)> resolved(realpath(name.c_str(), nullptr),
                                                             &std::free);
  return resolved ? resolved.get() : name;
}

int Rename(const std::string& from, const std::string& to) {
  return std::rename(from.c_str(), to.c_str()) == 0 ? 0 : errno;
}

void Remove(const std::string& name) {
  std::remove(name.c_str());
}

bool IsTerminal(std::FILE* stream) {
  return isatty(fileno(stream)) == 1;
}

bool ObeysEscapes(std::FILE* stream) {
  const char* const terminal = std::getenv("TERM");
  return IsTerminal(stream) && terminal != nullptr && std::string_view(terminal) != "dumb";
}

void BeBinary(std::FILE*) {}

void PrintText(std::FILE* stream, std::string_view text) {
  std::fwrite(text.data(), 1, text.size(), stream);
}

}  // namespace tools::native
