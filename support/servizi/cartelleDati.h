#pragma once

#include <string>

// Where the program keeps what hangs beside the user's files. Each folder is made at the first
// need; an empty name is one that cannot be made.
struct CartelleDati {
    // Copies of files as they were before they were replaced.
    std::wstring copie;
    // Work that is in no file.
    std::wstring diario;
};
