#pragma once

#include <windows.h>

#include <cstdint>
#include <type_traits>
#include <utility>

// Owner of a Windows handle: its type, what closes it, and its empty value as a number.
template <class T, auto chiudi, std::intptr_t vuota = 0>
class Maniglia {
public:
    Maniglia() noexcept = default;
    explicit Maniglia(T valore) noexcept : valore_(valore) {}
    Maniglia(const Maniglia&) = delete;
    Maniglia(Maniglia&& altra) noexcept : valore_(altra.cedi()) {}
    Maniglia& operator=(const Maniglia&) = delete;
    Maniglia& operator=(Maniglia&& altra) noexcept {
        std::swap(valore_, altra.valore_);
        return *this;
    }
    ~Maniglia() {
        if (*this) {
            chiudi(valore_);
        }
    }

    [[nodiscard]] T get() const noexcept { return valore_; }
    explicit operator bool() const noexcept { return valore_ != nessuna(); }
    // Gives the handle up to the caller, who owns it from here on.
    [[nodiscard]] T cedi() noexcept { return std::exchange(valore_, nessuna()); }

private:
    static T nessuna() noexcept {
        if constexpr (std::is_pointer_v<T>) {
            return reinterpret_cast<T>(vuota);
        } else {
            return static_cast<T>(vuota);
        }
    }

    T valore_ = nessuna();
};

using ManigliaFile = Maniglia<HANDLE, CloseHandle, -1>;
// Processes, threads, events and the like.
using ManigliaOggetto = Maniglia<HANDLE, CloseHandle>;
using Ricerca = Maniglia<HANDLE, FindClose, -1>;
using ChiaveRegistro = Maniglia<HKEY, RegCloseKey>;
using Libreria = Maniglia<HMODULE, FreeLibrary>;
using ManigliaMenu = Maniglia<HMENU, DestroyMenu>;
using Acceleratori = Maniglia<HACCEL, DestroyAcceleratorTable>;
using Gancio = Maniglia<HHOOK, UnhookWindowsHookEx>;
using Cursore = Maniglia<HCURSOR, DestroyCursor>;
using ManigliaIcona = Maniglia<HICON, DestroyIcon>;
using Carattere = Maniglia<HFONT, DeleteObject>;
using Pennello = Maniglia<HBRUSH, DeleteObject>;
using ManigliaBitmap = Maniglia<HBITMAP, DeleteObject>;
using DcMemoria = Maniglia<HDC, DeleteDC>;

// A function of a loaded library, by its name there; nullptr when it has none.
template <class Funzione>
[[nodiscard]] Funzione funzione(HMODULE libreria, const char* nome) noexcept {
    return reinterpret_cast<Funzione>(reinterpret_cast<void*>(GetProcAddress(libreria, nome)));
}
