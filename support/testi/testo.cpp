#include "support/testi/testo.h"

#include <algorithm>

std::wstring_view rifilaDestra(std::wstring_view testo) noexcept {
    const auto fine = testo.find_last_not_of(L' ');
    return fine == std::wstring_view::npos ? std::wstring_view{} : testo.substr(0, fine + 1);
}

std::wstring_view rifila(std::wstring_view testo) noexcept {
    testo = rifilaDestra(testo);
    testo.remove_prefix(std::min(testo.find_first_not_of(L' '), testo.size()));
    return testo;
}

std::wstring sostituisci(std::wstring_view testo, std::wstring_view cerca, std::wstring_view con) {
    std::wstring risultato;
    if (cerca.empty()) {
        risultato = testo;
        return risultato;
    }
    risultato.reserve(testo.size());
    for (;;) {
        const auto dove = testo.find(cerca);
        risultato.append(testo.substr(0, dove));
        if (dove == std::wstring_view::npos) {
            return risultato;
        }
        risultato.append(con);
        testo.remove_prefix(dove + cerca.size());
    }
}

std::wstring aCapoCrLf(std::wstring_view testo) {
    const auto manca = [&](std::size_t i) {
        return testo[i] == L'\n' && (i == 0 || testo[i - 1] != L'\r');
    };
    std::size_t mancanti = 0;
    for (std::size_t i = 0; i < testo.size(); ++i) {
        mancanti += manca(i) ? 1 : 0;
    }
    // In one piece of the right size: thousands of these are kept, and what a growing text leaves
    // behind breaks the heap into crumbs.
    std::wstring risultato;
    risultato.reserve(testo.size() + mancanti);
    std::size_t scritti = 0;
    for (std::size_t i = 0; mancanti > 0 && i < testo.size(); ++i) {
        if (manca(i)) {
            risultato.append(testo.substr(scritti, i - scritti)).append(1, L'\r');
            scritti = i;
        }
    }
    risultato.append(testo.substr(scritti));
    // Not what append gives: that would be a copy.
    return risultato;
}

std::vector<std::wstring_view> dividi(std::wstring_view testo, std::wstring_view separatore) {
    std::vector<std::wstring_view> pezzi;
    for (;;) {
        const auto dove = separatore.empty() ? testo.npos : testo.find(separatore);
        pezzi.push_back(testo.substr(0, dove));
        if (dove == std::wstring_view::npos) {
            return pezzi;
        }
        testo.remove_prefix(dove + separatore.size());
    }
}
