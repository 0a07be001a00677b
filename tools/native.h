// What the standard library does not say about files and terminals; one source file for each
// system.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace tools::native {

enum class Open { kForReading, kForWriting };

// Opens a file by its UTF-8 name, for bytes; nullptr with errno set if it cannot be. Writing makes
// it empty first.
std::FILE* OpenFile(const std::string& name, Open how);

enum class Kind { kNothing, kFile, kFolder, kOther };  // a device, a pipe
Kind KindOf(const std::string& name);
Kind KindOf(std::FILE* file);

// The name behind symbolic links.
std::string Resolved(const std::string& name);

// 0, or errno. What was there under the new name is replaced in one step.
int Rename(const std::string& from, const std::string& to);
void Remove(const std::string& name);

bool IsTerminal(std::FILE* stream);
// Whether a terminal obeys escape sequences, which it is asked for where that is needed.
bool ObeysEscapes(std::FILE* stream);
// Bytes as they are, from now on.
void BeBinary(std::FILE* stream);
// UTF-8 text, readable on a terminal too.
void PrintText(std::FILE* stream, std::string_view text);

}  // namespace tools::native
