#include "support/windows/appunti_win.h"

#include "support/windows/errori_win.h"
#include "support/windows/maniglie_win.h"

#include <algorithm>

namespace {

using MemoriaGlobale = Maniglia<HGLOBAL, GlobalFree>;

// Who watches the clipboard opens it for a moment after each change.
constexpr int tentativi = 10;
constexpr DWORD attesa = 10; // milliseconds

bool apri(HWND finestra) noexcept {
    for (int i = 1; OpenClipboard(finestra) == FALSE; ++i) {
        if (i == tentativi) {
            return false;
        }
        Sleep(attesa);
    }
    return true;
}

} // namespace

Appunti::Appunti(HWND finestra) {
    if (!apri(finestra)) {
        solleva(errori::autorizzazioneNegata);
    }
}

void Appunti::svuota() {
    if (EmptyClipboard() == FALSE) {
        sollevaWin32();
    }
}

void Appunti::metti(UINT formato, std::string_view byte) {
    MemoriaGlobale memoria(GlobalAlloc(GMEM_MOVEABLE, byte.size()));
    void* const dove = memoria ? GlobalLock(memoria.get()) : nullptr;
    if (dove == nullptr) {
        solleva(errori::memoriaEsaurita);
    }
    std::ranges::copy(byte, static_cast<char*>(dove));
    GlobalUnlock(memoria.get());
    if (SetClipboardData(formato, memoria.get()) == nullptr) {
        sollevaWin32();
    }
    static_cast<void>(memoria.cedi()); // the clipboard's from here on
}

void Appunti::metti(std::wstring_view testo) {
    const std::wstring conZero(testo);
    metti(CF_UNICODETEXT,
          {reinterpret_cast<const char*>(conZero.c_str()), (conZero.size() + 1) * sizeof(wchar_t)});
}

std::optional<std::string> Appunti::leggi(UINT formato) const {
    const HANDLE memoria = GetClipboardData(formato);
    const void* const dati = memoria != nullptr ? GlobalLock(memoria) : nullptr;
    if (dati == nullptr) {
        return std::nullopt;
    }
    std::string byte(static_cast<const char*>(dati), GlobalSize(memoria));
    GlobalUnlock(memoria);
    return byte;
}

UINT formatoAppunti(const wchar_t* nome) {
    const UINT formato = RegisterClipboardFormatW(nome);
    if (formato == 0) {
        sollevaWin32();
    }
    return formato;
}
