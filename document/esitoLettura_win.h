#pragma once

#include "document/perdite.h"
#include "document/statoFile_win.h"

#include <optional>
#include <vector>

// What reading a feed tells besides its document.
struct EsitoLettura {
    // What the next save of the document drops.
    std::vector<Perdita> perdite;
    // The file as it was read.
    std::optional<StatoFile> file;
};
