#include "document/caratteriXml.h"

#include "support/caratteri/codifica.h"
#include "support/testi/testo.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace {

constexpr char32_t ultimoLatin1 = 0xFF;
constexpr std::wstring_view inizioRiferimento = L"&#";

constexpr bool ammesso(char32_t c) noexcept {
    return c == U'\t' || c == U'\n' || c == U'\r' || (c >= 0x20 && c < 0xD800) ||
           (c >= 0xE000 && c < 0xFFFE) || (c >= 0x10000 && c <= 0x10FFFF);
}

// How many characters are looked at together.
constexpr std::size_t blocco = 32;

// Whether none needs a closer look. No way out half way: a large feed has millions of characters,
// and this is a loop that compilers do for several at once.
bool tuttiComuni(std::wstring_view parte) noexcept {
    constexpr std::uint32_t primo = 0x20;
    constexpr std::uint32_t quanti = 0xD800 - primo;
    bool comuni = true;
    for (const wchar_t c : parte) {
        comuni &= static_cast<std::uint32_t>(c) - primo < quanti;
    }
    return comuni;
}

// "U+000B": at least four digits.
std::wstring nomeCarattere(char32_t c) {
    constexpr std::wstring_view cifre = L"0123456789ABCDEF";
    std::wstring esadecimale;
    for (; c != 0; c /= 16) {
        esadecimale.insert(esadecimale.begin(), cifre[c % 16]);
    }
    esadecimale.insert(0, 4 - std::min<std::size_t>(esadecimale.size(), 4), L'0');
    return L"U+" + esadecimale;
}

[[noreturn]] void rifiuta(std::wstring_view percorso, std::wstring_view perche,
                          const NomeTesto& nome, std::wstring_view coda) {
    std::wstring descrizione = maiuscolo(percorso);
    if (descrizione.empty()) {
        descrizione += maiuscolo(perche.substr(0, 1));
        perche.remove_prefix(1);
    } else {
        descrizione += L": ";
    }
    descrizione += perche;
    descrizione += nome.nome;
    if (nome.elemento > 0) {
        descrizione += L" dell'elemento " + std::to_wstring(nome.elemento);
    }
    descrizione += coda;
    throw TestoRifiutato(std::move(descrizione), nome.elemento);
}

void verificaCaratteri(std::wstring_view testo, const NomeTesto& nome, std::wstring_view percorso) {
    if (const auto vietato = primoVietato(testo)) {
        rifiuta(percorso, L"carattere non ammesso in ", nome,
                L" (" + nomeCarattere(*vietato) + L").");
    }
}

void verificaLunghezza(std::wstring_view testo, const NomeTesto& nome, std::wstring_view percorso) {
    if (almenoByte(testo, byteTroppi)) {
        rifiuta(percorso, L"testo troppo lungo in ", nome, L".");
    }
}

struct Riferimento {
    char32_t carattere;
    std::size_t lunghezza;
};

// The reference that a text begins with, if it is one that conRiferimenti writes.
std::optional<Riferimento> riferimentoIniziale(std::wstring_view testo) noexcept {
    // "&#1114111;" is the longest.
    constexpr std::size_t piuLungo = 10;
    std::size_t fine = inizioRiferimento.size();
    char32_t c = 0;
    while (fine < std::min(testo.size(), piuLungo) && testo[fine] >= L'0' && testo[fine] <= L'9') {
        c = c * 10 + static_cast<char32_t>(testo[fine] - L'0');
        ++fine;
    }
    const bool canonico = testo.substr(fine).starts_with(L';') &&
                          testo[inizioRiferimento.size()] != L'0' && c > ultimoLatin1 && ammesso(c);
    return canonico ? std::optional(Riferimento{c, fine + 1}) : std::nullopt;
}

} // namespace

std::optional<char32_t> primoVietato(std::wstring_view testo) noexcept {
    for (std::size_t posizione = 0; posizione < testo.size();) {
        const std::wstring_view parte = testo.substr(posizione, blocco);
        if (tuttiComuni(parte)) {
            posizione += parte.size();
            continue;
        }
        // A character that begins in this part may end in the next.
        for (const std::size_t fine = posizione + parte.size(); posizione < fine;) {
            const char32_t c = leggiCarattere(testo, posizione);
            if (!ammesso(c)) {
                return c;
            }
        }
    }
    return std::nullopt;
}

bool almenoByte(std::wstring_view testo, std::size_t limite) noexcept {
    // Nearly every text is far too short to be counted.
    constexpr std::size_t massimoPerUnita = 4;
    if (testo.size() < limite / massimoPerUnita) {
        return false;
    }
    std::size_t byte = 0;
    for (std::size_t posizione = 0; posizione < testo.size() && byte < limite;) {
        byte += byteUtf8(leggiCarattere(testo, posizione));
    }
    return byte >= limite;
}

void verificaTesto(std::wstring_view testo, const NomeTesto& nome, std::wstring_view percorso) {
    verificaCaratteri(testo, nome, percorso);
    verificaLunghezza(testo, nome, percorso);
}

void verificaCData(std::wstring_view testo, const NomeTesto& nome, std::wstring_view percorso) {
    // What a character becomes at most: "&#1114111;".
    constexpr std::size_t massimoRiferimento = 10;
    verificaCaratteri(testo, nome, percorso);
    if (testo.find(L"]]>") != std::wstring_view::npos) {
        rifiuta(percorso, L"sequenza ]]> non ammessa in ", nome, L".");
    }
    if (testo.size() >= byteTroppi / massimoRiferimento) {
        std::wstring appoggio;
        verificaLunghezza(conRiferimenti(testo, appoggio), nome, percorso);
    }
}

std::wstring_view conRiferimenti(std::wstring_view testo, std::wstring& appoggio) {
    const auto manca = [](wchar_t c) { return static_cast<char32_t>(c) > ultimoLatin1; };
    if (std::ranges::none_of(testo, manca)) {
        return testo;
    }
    appoggio.clear();
    for (std::size_t posizione = 0; posizione < testo.size();) {
        const char32_t c = leggiCarattere(testo, posizione);
        if (c > ultimoLatin1) {
            appoggio.append(inizioRiferimento) +=
                std::to_wstring(static_cast<std::uint32_t>(c)) + L';';
        } else {
            appoggio += static_cast<wchar_t>(c);
        }
    }
    return appoggio;
}

std::wstring_view conCaratteri(std::wstring_view testo, std::wstring& appoggio) {
    auto dove = testo.find(inizioRiferimento);
    if (dove == std::wstring_view::npos) {
        return testo;
    }
    appoggio.clear();
    for (; dove != std::wstring_view::npos; dove = testo.find(inizioRiferimento)) {
        appoggio.append(testo.substr(0, dove));
        testo.remove_prefix(dove);
        if (const auto riferimento = riferimentoIniziale(testo)) {
            aggiungiCarattere(appoggio, riferimento->carattere);
            testo.remove_prefix(riferimento->lunghezza);
        } else {
            appoggio.append(inizioRiferimento);
            testo.remove_prefix(inizioRiferimento.size());
        }
    }
    return appoggio.append(testo);
}
