// What the driver reads and sets of the Windows session beside its windows.
#pragma once

#include <windows.h>

#include <cstddef>
#include <string>

// How many handles a process has open.
std::ptrdiff_t HandlesOf(DWORD process);

// Stores a value under the machine's root of the registry, its bytes as they are.
void StoreValue(const std::wstring& key, const std::wstring& name, DWORD type,
                const std::string& bytes);

// Deletes a key under the machine's root; nothing happens when there is none.
void ForgetKey(const std::wstring& key);
