#pragma once

#include <windows.h>

// The process's heap keeps small blocks by size, which Windows does by itself and others may do
// when asked: the XML DOM frees and allocates several for every node. First thing in a program.
inline void heapPerPiccoliBlocchi() noexcept {
    ULONG modo = 2; // low-fragmentation heap
    HeapSetInformation(GetProcessHeap(), HeapCompatibilityInformation, &modo, sizeof(modo));
}
