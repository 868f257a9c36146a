#include "support/utilita/koUtilitaPercorsi.h"

#include "support/testi/testo.h"

namespace {

// Where the file's name begins.
std::size_t inizioNome(std::wstring_view percorso) noexcept {
    const auto barra = percorso.find_last_of(L"\\/:");
    return barra == std::wstring_view::npos ? 0 : barra + 1;
}

} // namespace

std::wstring koUtilitaPercorsi::AggiungiSepDir(std::wstring& percorso) {
    percorso = std::wstring(rifila(percorso));
    if (!percorso.empty() && percorso.back() != L'\\') {
        percorso += L'\\';
    }
    return percorso;
}

std::wstring koUtilitaPercorsi::DeterminaSoloFileName(std::wstring_view percorso) {
    return std::wstring(percorso.substr(inizioNome(percorso)));
}

std::wstring koUtilitaPercorsi::EstraiPath(std::wstring_view percorso) {
    return std::wstring(percorso.substr(0, inizioNome(percorso)));
}

std::wstring koUtilitaPercorsi::EstraiEstensione(std::wstring_view nome) {
    nome.remove_prefix(inizioNome(nome));
    const auto punto = nome.find_last_of(L'.');
    return punto == std::wstring_view::npos ? std::wstring() : std::wstring(nome.substr(punto));
}
