#include "ui/controls/finestra_win.h"

#include "support/windows/errori_win.h"
#include "support/windows/guardia_win.h"

#include <array>
#include <utility>

namespace {

Finestra* oggetto(HWND hwnd) noexcept {
    return reinterpret_cast<Finestra*>(GetWindowLongPtrW(hwnd, GWLP_USERDATA));
}

void lega(HWND hwnd, Finestra* finestra) noexcept {
    SetWindowLongPtrW(hwnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(finestra));
}

} // namespace

Finestra::~Finestra() {
    if (const HWND hwnd = std::exchange(hwnd_, nullptr)) {
        lega(hwnd, nullptr);
        DestroyWindow(hwnd);
    }
}

void Finestra::crea(const wchar_t* classe, const wchar_t* titolo, DWORD stile, DWORD stileEsteso,
                    const RECT& posto, HWND padre, HMENU menu) {
    HWND fatta = nullptr;
    DWORD codice = ERROR_SUCCESS;
    {
        const Alzata inCreazione(inCreazione_);
        fatta =
            CreateWindowExW(stileEsteso, classe, titolo, stile, posto.left, posto.top, posto.right,
                            posto.bottom, padre, menu, GetModuleHandleW(nullptr), this);
        codice = GetLastError();
    }
    if (erroreCreazione_) {
        distruggi();
        erroreCreazione_.rilancia();
    }
    if (fatta == nullptr) {
        sollevaWin32(codice);
    }
}

void Finestra::distruggi() noexcept {
    if (hwnd_ != nullptr) {
        DestroyWindow(hwnd_);
    }
}

void Finestra::registra(WNDCLASSEXW descrizione) {
    registraCon(descrizione, &procedura);
}

void Finestra::registraCon(WNDCLASSEXW& descrizione, WNDPROC procedura) {
    descrizione.cbSize = sizeof(descrizione);
    descrizione.hInstance = GetModuleHandleW(nullptr);
    descrizione.lpfnWndProc = procedura;
    // Without one the pointer would stay what it was where it came from.
    descrizione.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    if (RegisterClassExW(&descrizione) == 0 && GetLastError() != ERROR_CLASS_ALREADY_EXISTS) {
        sollevaWin32();
    }
}

void Finestra::adotta(HWND hwnd, std::unique_ptr<Finestra> finestra) noexcept {
    finestra->hwnd_ = hwnd;
    finestra->propria_ = true;
    lega(hwnd, finestra.release());
}

Finestra* Finestra::trova(HWND hwnd, std::wstring_view classe) noexcept {
    DWORD processo = 0;
    GetWindowThreadProcessId(hwnd, &processo);
    std::array<wchar_t, 256> nome{};
    const int lunghezza = GetClassNameW(hwnd, nome.data(), static_cast<int>(nome.size()));
    if (processo != GetCurrentProcessId() || lunghezza <= 0 ||
        classe != std::wstring_view(nome.data(), static_cast<std::size_t>(lunghezza))) {
        return nullptr;
    }
    return oggetto(hwnd);
}

LRESULT CALLBACK Finestra::procedura(HWND hwnd, UINT codice, WPARAM w, LPARAM l) noexcept {
    Finestra* finestra = oggetto(hwnd);
    if (finestra == nullptr && codice == WM_NCCREATE) {
        finestra = static_cast<Finestra*>(reinterpret_cast<CREATESTRUCTW*>(l)->lpCreateParams);
        finestra->hwnd_ = hwnd;
        lega(hwnd, finestra);
    }
    return finestra == nullptr ? DefWindowProcW(hwnd, codice, w, l)
                               : finestra->instrada(codice, w, l);
}

LRESULT Finestra::instrada(UINT codice, WPARAM w, LPARAM l) noexcept {
    const Trattenuta trattenuta(*this);
    const HWND hwnd = hwnd_;
    const LRESULT esito =
        alConfine(inCreazione_ ? static_cast<Trappola&>(erroreCreazione_) : *this,
                  LRESULT{codice == WM_CREATE ? -1 : 0}, [&] { return messaggio(codice, w, l); });
    if (codice == WM_NCDESTROY) {
        lega(hwnd, nullptr);
        hwnd_ = nullptr;
    }
    return esito;
}

void Finestra::rilascia() noexcept {
    --chiamate_;
    if (propria_ && hwnd_ == nullptr && chiamate_ == 0) {
        const std::unique_ptr<Finestra> fine(this);
    }
}
