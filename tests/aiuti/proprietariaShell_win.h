#pragma once

#include <windows.h>

#include <vector>

// While it lives, writes down which window this program gives the shell as the owner of what it
// opens; the shell itself opens it all the same. One at a time.
class ProprietariaShell {
public:
    ProprietariaShell();
    ProprietariaShell(const ProprietariaShell&) = delete;
    ProprietariaShell& operator=(const ProprietariaShell&) = delete;
    ~ProprietariaShell();

    // In the order of the calls.
    [[nodiscard]] static const std::vector<HWND>& viste() noexcept;

private:
    // Where this program keeps the function's address, and what stands there by itself.
    ULONG_PTR* posto_ = nullptr;
    ULONG_PTR vera_ = 0;
};
