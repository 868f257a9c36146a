#include "tests/aiuti/sorgenti_win.h"

#include "support/errori/errore.h"
#include "support/testi/testo.h"
#include "tests/aiuti/cartella_win.h"

#include <algorithm>
#include <array>
#include <cwctype>
#include <filesystem>
#include <map>
#include <string_view>

#include <gtest/gtest.h>

namespace {

using Numeri = std::map<std::wstring, int>;

bool diNome(wchar_t c) {
    return std::iswalnum(c) != 0 || c == L'_';
}

std::wstring nomeDa(std::wstring_view testo, std::size_t inizio) {
    testo.remove_prefix(inizio);
    return {testo.begin(), std::ranges::find_if_not(testo, diNome)};
}

// The text without its comments.
std::wstring senzaCommenti(const std::wstring& testo) {
    std::wstring risultato;
    bool fra = false; // quotation marks
    for (std::size_t i = 0; i < testo.size(); ++i) {
        if (!fra && testo.compare(i, 2, L"//") == 0) {
            i = std::min(testo.find(L'\n', i), testo.size() - 1);
        } else if (testo[i] == L'\\') {
            risultato += testo[i++];
        } else if (testo[i] == L'"' && (i == 0 || testo[i - 1] != L'\'')) {
            fra = !fra;
        }
        risultato += testo[i];
    }
    return risultato;
}

// Sources of what the program says: not the operations that nothing of it calls, nor what only a
// form designer shows, nor the table of errors.
std::vector<std::wstring> sorgenti() {
    std::vector<std::wstring> testi;
    for (const wchar_t* const cartella : {L"datetime", L"document", L"support", L"ui"}) {
        for (const auto& voce : std::filesystem::recursive_directory_iterator(
                 campione(std::wstring(L"../../") + cartella))) {
            const std::wstring nome = voce.path().filename().wstring();
            const bool altrui = nome.starts_with(L"koUtilita") && nome != L"koUtilita_win.cpp";
            if (voce.is_regular_file() && !altrui && !nome.starts_with(L"proprietaNumerico") &&
                nome != L"errore.cpp") {
                testi.push_back(senzaCommenti(daUtf8(leggiTutto(voce.path().wstring()))));
            }
        }
    }
    EXPECT_GT(testi.size(), 50U);
    return testi;
}

// "name = 18343;"
Numeri numeriDi(const std::wstring& testo) {
    Numeri numeri;
    for (auto dove = testo.find(L"int32_t "); dove != std::wstring::npos;
         dove = testo.find(L"int32_t ", dove + 1)) {
        const std::wstring nome = nomeDa(testo, dove + 8);
        const auto valore = dove + 8 + nome.size();
        if (testo.compare(valore, 3, L" = ") == 0 && std::iswdigit(testo[valore + 3]) != 0) {
            numeri[nome] = std::stoi(testo.substr(valore + 3));
        }
    }
    return numeri;
}

// The constant that the call around a place begins with: "Errore(name, ..." or "rifiuta(name, ...".
int numeroAlPosto(const std::wstring& testo, std::size_t dove, const Numeri& numeri) {
    const auto istruzione = testo.find_last_of(L";{}", dove);
    const auto inizio = istruzione == std::wstring::npos ? 0 : istruzione;
    for (const std::wstring_view chiamata : {L"Errore(", L"rifiuta("}) {
        const auto aperta = testo.rfind(chiamata, dove);
        if (aperta != std::wstring::npos && aperta > inizio) {
            const auto numero = numeri.find(nomeDa(testo, aperta + chiamata.size()));
            return numero == numeri.end() ? 0 : numero->second;
        }
    }
    return 0;
}

// A message is a sentence, or the part of one that stands before or after a name.
bool messaggio(std::wstring_view testo) {
    constexpr int vuoti = 2;
    return std::ranges::count(testo, L' ') >= vuoti && testo != L"    " &&
           !testo.ends_with(L"...") &&
           (testo.starts_with(L": ") || testo.ends_with(L" in ") ||
            std::wstring_view(L".?!(").find(testo.back()) != std::wstring_view::npos);
}

void raccogli(const std::wstring& testo, std::vector<Messaggio>& messaggi) {
    const Numeri numeri = numeriDi(testo);
    for (auto dove = testo.find(L"L\""); dove != std::wstring::npos;
         dove = testo.find(L"L\"", dove)) {
        const auto inizio = dove;
        std::wstring letto;
        // Literals in a row are one.
        while (testo.compare(dove, 2, L"L\"") == 0) {
            for (dove += 2; testo[dove] != L'"'; ++dove) {
                dove += testo[dove] == L'\\' ? 1 : 0;
                letto += testo[dove];
            }
            dove = std::min(testo.find_first_not_of(L" \r\n", dove + 1), testo.size());
        }
        if (messaggio(letto)) {
            messaggi.push_back({std::wstring(rifila(letto)), numeroAlPosto(testo, inizio, numeri)});
        }
    }
}

} // namespace

std::vector<Messaggio> messaggiDelProgramma() {
    std::vector<Messaggio> messaggi;
    for (const std::wstring& testo : sorgenti()) {
        raccogli(testo, messaggi);
    }
    return messaggi;
}

std::set<int> erroriSollevati() {
    // A grid of one column: no person's.
    constexpr int divisionePerZero = errori::divisionePerZero;
    const std::vector<std::wstring> testi = sorgenti();
    Numeri nomi;
    for (const std::wstring& testo : testi) {
        if (testo.find(L"namespace errori {") != std::wstring::npos) {
            nomi = numeriDi(testo);
        }
    }
    std::set<int> numeri;
    for (const std::wstring& testo : testi) {
        for (auto dove = testo.find(L"errori::"); dove != std::wstring::npos;
             dove = testo.find(L"errori::", dove + 1)) {
            if (const auto nome = nomi.find(nomeDa(testo, dove + 8)); nome != nomi.end()) {
                numeri.insert(nome->second);
            }
        }
    }
    numeri.erase(divisionePerZero);
    numeri.erase(errori::dialogoAnnullato); // says nothing
    return numeri;
}
