#include "support/utilita/koUtilitaFile.h"

namespace {

// Where the file's name begins.
std::size_t inizioNome(std::wstring_view percorso) noexcept {
    const auto barra = percorso.find_last_of(L"\\/:");
    return barra == std::wstring_view::npos ? 0 : barra + 1;
}

} // namespace

std::wstring koUtilitaFile::DeterminaSoloFileName(std::wstring_view percorso) {
    return std::wstring(percorso.substr(inizioNome(percorso)));
}

std::wstring koUtilitaFile::EstraiPath(std::wstring_view percorso) {
    return std::wstring(percorso.substr(0, inizioNome(percorso)));
}

std::wstring koUtilitaFile::EstraiEstensione(std::wstring_view nome) {
    nome.remove_prefix(inizioNome(nome));
    const auto punto = nome.find_last_of(L'.');
    return punto == std::wstring_view::npos ? std::wstring() : std::wstring(nome.substr(punto));
}
