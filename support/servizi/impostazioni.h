#pragma once

#include <string>
#include <string_view>

// The per-user store of the program's settings: texts by section and key.
class Impostazioni {
public:
    Impostazioni() = default;
    Impostazioni(const Impostazioni&) = delete;
    Impostazioni& operator=(const Impostazioni&) = delete;
    virtual ~Impostazioni() = default;

    // A missing key, or one that holds no text, reads as `altrimenti`.
    [[nodiscard]] virtual std::wstring leggi(std::wstring_view sezione, std::wstring_view chiave,
                                             std::wstring_view altrimenti) const = 0;

    // Raises the run-time error of the failure.
    virtual void scrivi(std::wstring_view sezione, std::wstring_view chiave,
                        std::wstring_view valore) = 0;
};
