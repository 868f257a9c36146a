#pragma once

#include <windows.h>

#include <string>
#include <string_view>

// A key of the registry that a test has for itself: missing at first; at the end of the object's
// life what was there comes back. Keys under HKEY_LOCAL_MACHINE are the whole prefix's: use them
// in tests that run one at a time.
class ChiaveSalvata {
public:
    ChiaveSalvata(HKEY radice, std::wstring nome);
    ChiaveSalvata(const ChiaveSalvata&) = delete;
    ChiaveSalvata& operator=(const ChiaveSalvata&) = delete;
    ~ChiaveSalvata();

    [[nodiscard]] const std::wstring& nome() const noexcept { return nome_; }

    // Makes the key, to be read by everybody and written by nobody, this program included; not even
    // read with `nemmenoLetta`. Keys below it that are made later are not meant.
    void nega(bool nemmenoLetta = false) const;
    // Gives the key, which is there, an access list in Windows' own notation.
    void permetti(const wchar_t* descrittore) const;

    // A string value, or one whose environment variables are meant to be expanded; its end is
    // marked.
    void testo(const std::wstring& valore, const std::wstring& contenuto,
               DWORD tipo = REG_SZ) const;
    // A value of any type with exactly these bytes.
    void grezzo(const std::wstring& valore, DWORD tipo, std::string_view byte) const;

private:
    HKEY radice_;
    std::wstring nome_;
    std::wstring copia_;
};

// The machine's part of the registry empty, as this program sees it, for the life of the object.
class MacchinaVuota {
public:
    MacchinaVuota();
    MacchinaVuota(const MacchinaVuota&) = delete;
    MacchinaVuota& operator=(const MacchinaVuota&) = delete;
    ~MacchinaVuota();
};
