#include "support/utilita/rigaDiComando.h"

#include "support/testi/testo.h"

std::wstring fileDelComando(std::wstring_view comando) {
    comando = rifila(comando);
    if (comando.starts_with(L'"')) {
        comando.remove_prefix(1);
        return std::wstring(comando.substr(0, comando.find(L'"')));
    }
    constexpr std::wstring_view estensione = L".exe";
    const std::wstring minuscole = minuscolo(comando);
    for (auto dove = minuscole.find(estensione); dove != std::wstring::npos;
         dove = minuscole.find(estensione, dove + 1)) {
        const auto fine = dove + estensione.size();
        if (fine == comando.size() || comando[fine] == L' ') {
            return std::wstring(comando.substr(0, fine));
        }
    }
    return std::wstring(comando);
}
