#pragma once

#include <windows.h>

#include <utility>

// Owner of a Windows handle. `Tratti` names its type, its empty value and what closes it.
template <class Tratti>
class Maniglia {
public:
    using Tipo = typename Tratti::Tipo;

    Maniglia() noexcept = default;
    explicit Maniglia(Tipo valore) noexcept : valore_(valore) {}
    Maniglia(const Maniglia&) = delete;
    Maniglia(Maniglia&& altra) noexcept : valore_(std::exchange(altra.valore_, Tratti::vuota())) {}
    Maniglia& operator=(const Maniglia&) = delete;
    Maniglia& operator=(Maniglia&& altra) noexcept {
        std::swap(valore_, altra.valore_);
        return *this;
    }
    ~Maniglia() {
        if (valore_ != Tratti::vuota()) {
            Tratti::chiudi(valore_);
        }
    }

    [[nodiscard]] Tipo get() const noexcept { return valore_; }
    explicit operator bool() const noexcept { return valore_ != Tratti::vuota(); }
    // Gives the handle up to the caller, who owns it from here on.
    [[nodiscard]] Tipo cedi() noexcept { return std::exchange(valore_, Tratti::vuota()); }

private:
    Tipo valore_ = Tratti::vuota();
};

struct TrattiFile {
    using Tipo = HANDLE;
    static Tipo vuota() noexcept { return INVALID_HANDLE_VALUE; }
    static void chiudi(Tipo maniglia) noexcept { CloseHandle(maniglia); }
};
using ManigliaFile = Maniglia<TrattiFile>;

struct TrattiRicerca {
    using Tipo = HANDLE;
    static Tipo vuota() noexcept { return INVALID_HANDLE_VALUE; }
    static void chiudi(Tipo maniglia) noexcept { FindClose(maniglia); }
};
using Ricerca = Maniglia<TrattiRicerca>;

struct TrattiChiave {
    using Tipo = HKEY;
    static Tipo vuota() noexcept { return nullptr; }
    static void chiudi(Tipo maniglia) noexcept { RegCloseKey(maniglia); }
};
using ChiaveRegistro = Maniglia<TrattiChiave>;

struct TrattiMenu {
    using Tipo = HMENU;
    static Tipo vuota() noexcept { return nullptr; }
    static void chiudi(Tipo maniglia) noexcept { DestroyMenu(maniglia); }
};
using ManigliaMenu = Maniglia<TrattiMenu>;

struct TrattiLibreria {
    using Tipo = HMODULE;
    static Tipo vuota() noexcept { return nullptr; }
    static void chiudi(Tipo libreria) noexcept { FreeLibrary(libreria); }
};
using Libreria = Maniglia<TrattiLibreria>;

// A function of a loaded library, by its name there; nullptr when it has none.
template <class Funzione>
[[nodiscard]] Funzione funzione(HMODULE libreria, const char* nome) noexcept {
    return reinterpret_cast<Funzione>(reinterpret_cast<void*>(GetProcAddress(libreria, nome)));
}

// Pens, brushes, fonts, bitmaps.
template <class Oggetto>
struct TrattiGdi {
    using Tipo = Oggetto;
    static Tipo vuota() noexcept { return nullptr; }
    static void chiudi(Tipo oggetto) noexcept { DeleteObject(oggetto); }
};
using Carattere = Maniglia<TrattiGdi<HFONT>>;
using Pennello = Maniglia<TrattiGdi<HBRUSH>>;
using ManigliaBitmap = Maniglia<TrattiGdi<HBITMAP>>;
