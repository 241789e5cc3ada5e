#pragma once

#include "platform/WinTypes.h"

// The executable's own full path. Copies at most size - 1 characters and a
// terminator; returns the length copied, or size when the path was cut.
// The module handle must be null (the executable itself).
DWORD GetModuleFileNameA(void* module, char* buffer, DWORD size);
