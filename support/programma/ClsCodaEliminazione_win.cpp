#include "support/programma/ClsCodaEliminazione.h"

#include "support/errori/errore.h"
#include "support/testi/ansi_win.h"

#include <windows.h>

#include <cstdint>
#include <exception>
#include <limits>
#include <utility>

void ClsCodaEliminazione::Push(std::wstring file) {
    if (file_.size() >= std::numeric_limits<std::int16_t>::max()) {
        solleva(errori::overflow);
    }
    file_.push_back(std::move(file));
}

std::wstring ClsCodaEliminazione::Pop() noexcept {
    if (!filePresenti()) {
        return {};
    }
    std::wstring ultimo = std::move(file_.back());
    file_.pop_back();
    return ultimo;
}

void ClsCodaEliminazione::CancellaFile() noexcept {
    while (filePresenti()) {
        const std::wstring file = Pop();
        try {
            DeleteFileA(inAnsi(file).c_str());
        } catch (const std::exception&) {
            // No memory for the name: dropped like a file that cannot be deleted.
            continue;
        }
    }
}
