// The Windows headers, at the level that the build sets (NT 5): no structure is larger and no
// function newer than what Windows 2000 knows.
#pragma once

#include <windows.h>
