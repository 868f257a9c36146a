#pragma once

#include <string>
#include <string_view>
#include <vector>

class Impostazioni;

// The list of recently saved files, the most recent first, in the settings: section "url",
// keys "murl1" to "murl10", paths in lower case.
class ElencoRecenti {
public:
    static constexpr std::size_t massimo = 10;

    explicit ElencoRecenti(Impostazioni& impostazioni) noexcept : impostazioni_(impostazioni) {}

    // Reads the list anew; empty values are skipped.
    void CaricaRecenti();

    // Puts a path at the top, stores the list as it was read and reads it again. A path stands
    // once, whatever its case. What the settings hold below that list stays. Raises the settings'
    // failure.
    void AggiungiRecente(std::wstring_view path);

    [[nodiscard]] const std::vector<std::wstring>& voci() const noexcept { return voci_; }

private:
    Impostazioni& impostazioni_;
    std::vector<std::wstring> voci_;
};

// A path as a menu shows it: an "&" doubled, or it would underline the character after it.
[[nodiscard]] std::wstring didascaliaMenu(std::wstring_view path);
