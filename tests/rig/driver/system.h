// What the driver reads and sets of the Windows session beside its windows.
#pragma once

#include <windows.h>

#include <cstddef>
#include <map>
#include <string>

// How many handles a process has open.
std::ptrdiff_t HandlesOf(DWORD process);

// Stores a value under the machine's root of the registry, its bytes as they are.
void StoreValue(const std::wstring& key, const std::wstring& name, DWORD type,
                const std::string& bytes);

// Deletes a key under the machine's root; nothing happens when there is none.
void ForgetKey(const std::wstring& key);

// The variables of this program's own environment, some of them replaced, as CreateProcessW wants
// them.
std::wstring EnvironmentWith(const std::map<std::wstring, std::wstring>& replaced);
