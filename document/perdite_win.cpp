#include "document/perdite.h"

#include <windows.h>

#include <algorithm>

namespace {

constexpr std::size_t nominate = 3;

// A name that is no UTF-8, from a file in a code page, reads with the odd wrong letter.
std::wstring largo(std::string_view utf8) {
    const auto quanti = static_cast<int>(utf8.size());
    std::wstring testo(utf8.size(), L'\0');
    const int scritti = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), quanti, testo.data(), quanti);
    testo.resize(static_cast<std::size_t>(std::max(scritti, 0)));
    return testo;
}

} // namespace

std::wstring avvisoPerdite(std::span<const Perdita> perdite) {
    if (perdite.empty()) {
        return {};
    }
    std::wstring testo = L"Salvando, di questo feed non restano: ";
    const auto prime = perdite.first(std::min(nominate, perdite.size()));
    for (const Perdita& perdita : prime) {
        if (&perdita != prime.data()) {
            testo += L", ";
        }
        testo += largo(perdita.nome) + L" (" + std::to_wstring(perdita.volte) + L")";
    }
    const std::size_t altre = perdite.size() - prime.size();
    if (altre == 1) {
        testo += L" e un altro";
    } else if (altre > 1) {
        testo += L" e altri " + std::to_wstring(altre);
    }
    return testo + L".";
}
