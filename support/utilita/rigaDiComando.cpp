#include "support/utilita/rigaDiComando.h"

#include "support/testi/testo.h"

std::wstring fileDellaRiga(std::wstring_view riga) {
    riga = rifila(riga);
    if (riga.starts_with(L'"')) {
        riga.remove_prefix(1);
        return std::wstring(riga.substr(0, riga.find(L'"')));
    }
    constexpr std::wstring_view estensione = L".exe";
    const std::wstring minuscole = minuscolo(riga);
    for (auto dove = minuscole.find(estensione); dove != std::wstring::npos;
         dove = minuscole.find(estensione, dove + 1)) {
        const auto fine = dove + estensione.size();
        if (fine == riga.size() || riga[fine] == L' ') {
            return std::wstring(riga.substr(0, fine));
        }
    }
    return std::wstring(riga);
}
