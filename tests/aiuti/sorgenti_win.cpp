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

// Sources of what the program says: not the operations that nothing of it calls, nor what the
// numeric control publishes of its properties.
std::vector<std::wstring> sorgenti() {
    std::vector<std::wstring> testi;
    for (const wchar_t* const cartella : {L"datetime", L"document", L"support", L"ui"}) {
        for (const auto& voce : std::filesystem::recursive_directory_iterator(
                 campione(std::wstring(L"../../") + cartella))) {
            const std::wstring nome = voce.path().filename().wstring();
            const bool altrui = nome.starts_with(L"koUtilita") &&
                                nome != L"koUtilitaAvvio_win.cpp" &&
                                nome != L"koUtilitaErrori_win.cpp";
            if (voce.is_regular_file() && !altrui && !nome.starts_with(L"proprietaNumerico")) {
                testi.push_back(senzaCommenti(daUtf8(leggiTutto(voce.path().wstring()))));
            }
        }
    }
    EXPECT_GT(testi.size(), 50U);
    return testi;
}

// The numbers of errors by name: "name = 18343;" in their namespace.
Numeri numeriDegliErrori(const std::vector<std::wstring>& testi) {
    Numeri numeri;
    for (const std::wstring& testo : testi) {
        if (testo.find(L"namespace errori {") == std::wstring::npos) {
            continue;
        }
        for (auto dove = testo.find(L"int32_t "); dove != std::wstring::npos;
             dove = testo.find(L"int32_t ", dove + 1)) {
            const std::wstring nome = nomeDa(testo, dove + 8);
            const auto valore = dove + 8 + nome.size();
            if (testo.compare(valore, 3, L" = ") == 0 && std::iswdigit(testo[valore + 3]) != 0) {
                numeri[nome] = std::stoi(testo.substr(valore + 3));
            }
        }
    }
    return numeri;
}

// The error that a text stands beside in the table: "errori::name, L"...".
int numeroAlPosto(const std::wstring& testo, std::size_t dove, const Numeri& numeri) {
    constexpr std::wstring_view prima = L"errori::";
    const auto inizio = testo.rfind(prima, dove);
    if (inizio == std::wstring::npos) {
        return 0;
    }
    const std::wstring nome = nomeDa(testo, inizio + prima.size());
    const auto numero = numeri.find(nome);
    const bool accanto =
        testo.find_first_not_of(L", \r\n", inizio + prima.size() + nome.size()) == dove;
    return accanto && numero != numeri.end() ? numero->second : 0;
}

// A message is a sentence, or the part of one that stands before or after a name.
bool messaggio(std::wstring_view testo) {
    constexpr int vuoti = 2;
    return std::ranges::count(testo, L' ') >= vuoti && !testo.starts_with(L' ') &&
           !testo.ends_with(L"...") &&
           (testo.starts_with(L": ") || testo.ends_with(L" in ") ||
            std::wstring_view(L".?!(").find(testo.back()) != std::wstring_view::npos);
}

void raccogli(const std::wstring& testo, const Numeri& numeri, std::vector<Messaggio>& messaggi) {
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
    const std::vector<std::wstring> testi = sorgenti();
    const Numeri numeri = numeriDegliErrori(testi);
    std::vector<Messaggio> messaggi;
    for (const std::wstring& testo : testi) {
        raccogli(testo, numeri, messaggi);
    }
    return messaggi;
}

std::set<int> erroriSollevati() {
    constexpr int primoProprio = 1000;
    const std::vector<std::wstring> testi = sorgenti();
    const Numeri nomi = numeriDegliErrori(testi);
    std::set<int> numeri;
    for (const std::wstring& testo : testi) {
        for (auto dove = testo.find(L"errori::"); dove != std::wstring::npos;
             dove = testo.find(L"errori::", dove + 1)) {
            const auto nome = nomi.find(nomeDa(testo, dove + 8));
            if (nome != nomi.end() && nome->second < primoProprio) {
                numeri.insert(nome->second);
            }
        }
    }
    // A grid of one column, a picture measured for no window: no person's.
    numeri.erase(errori::divisionePerZero);
    numeri.erase(errori::oggettoNonImpostato);
    return numeri;
}
