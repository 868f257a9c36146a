#pragma once

#include "support/windows/maniglie_win.h"

#include <string>
#include <string_view>

// A file being written whole: unless it is confirmed, nothing of it stays on disk. Replaces a file
// of that name. Nobody else can write to it meanwhile.
class FileNuovo {
public:
    // Raises the run-time error of the failure.
    explicit FileNuovo(std::wstring percorso);
    FileNuovo(const FileNuovo&) = delete;
    FileNuovo& operator=(const FileNuovo&) = delete;
    ~FileNuovo();

    // Raises the run-time error of the failure.
    void scrivi(std::string_view byte);
    // The file is complete: closes and keeps it.
    void conferma() noexcept;

private:
    std::wstring percorso_;
    ManigliaFile file_;
};

// Finds out whether a file can be made at a path where the listing shows none: one is, and goes
// again at once. Raises the run-time error of the failure; a hidden file that stands there is none.
void provaCreazione(const std::wstring& percorso);
