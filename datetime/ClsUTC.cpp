#include "datetime/ClsUTC.h"

#include "support/errori/errore.h"
#include "support/testi/numeri.h"
#include "support/testi/testo.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace {

using Nome = std::wstring_view;

constexpr std::array<Nome, 7> giorniInglesi{L"Sun", L"Mon", L"Tue", L"Wed", L"Thu", L"Fri", L"Sat"};
// "Jul" stands before "Jun", and has to: files written so far hold June as "Jul".
constexpr std::array<Nome, 12> mesiInglesi{L"Jan", L"Feb", L"Mar", L"Apr", L"May", L"Jul",
                                           L"Jun", L"Aug", L"Sep", L"Oct", L"Nov", L"Dec"};
constexpr std::array<Nome, 12> mesiItaliani{L"Gen", L"Feb", L"Mar", L"Apr", L"Mag", L"Giu",
                                            L"Lug", L"Ago", L"Set", L"Ott", L"Nov", L"Dic"};
constexpr std::array<Nome, 4> zoneUtc{L"(GMT)", L"GMT", L"(UTC)", L"UTC"};

std::wstring cifre(int numero, int quante) {
    return formattaNumero(numero, quante, 0);
}

// The pieces between blanks, without the empty ones; a missing one is error 9 where it is reached.
class Pezzi {
public:
    explicit Pezzi(std::wstring_view testo) : pezzi_(dividi(testo, L' ')) {
        std::erase(pezzi_, std::wstring_view{});
    }
    [[nodiscard]] std::wstring_view operator[](std::size_t indice) const {
        if (indice >= pezzi_.size()) {
            solleva(errori::indiceFuoriIntervallo);
        }
        return pezzi_[indice];
    }

private:
    std::vector<std::wstring_view> pezzi_;
};

// Not rounded yet: that happens when the time is built.
struct Orario {
    double ore;
    double minuti;
    double secondi;
};

Orario leggiOrario(std::wstring_view pezzo) {
    std::wstring testo(pezzo);
    std::ranges::replace_if(
        testo, [](wchar_t c) { return c == L'.' || c == L'-'; }, L':');
    const std::wstring_view vista(testo);
    const auto p1 = vista.find(L':');
    const auto p2 = p1 == Nome::npos ? Nome::npos : vista.find(L':', p1 + 1);
    if (p2 == Nome::npos) {
        solleva(errori::dataNonValida);
    }
    return {valoreIniziale(vista.substr(0, p1)), valoreIniziale(vista.substr(p1 + 1, p2 - p1 - 1)),
            valoreIniziale(vista.substr(p2 + 1))};
}

} // namespace

ClsUTC::ClsUTC(const Istante& adesso, FormatoLocale formato)
    : adesso_(adesso), formato_(std::move(formato)),
      nDiffOre_(aInt16(differenzaOre(adesso.utc, adesso.locale))) {}

std::wstring ClsUTC::GetDataUtc(DataOra data, bool bLocale) const {
    if (!bLocale) {
        data = data.piuSecondi(-std::int64_t{nDiffOre()} * 3600);
    }
    const auto p = data.parti();
    std::wstring testo(giorniInglesi[static_cast<std::size_t>(data.giornoSettimana() - 1)]);
    testo += L", ";
    testo += cifre(p.giorno, 2);
    testo += L' ';
    testo += mesiInglesi[static_cast<std::size_t>(p.mese - 1)];
    testo += L' ';
    testo += cifre(p.anno, 4);
    testo += L' ';
    testo += cifre(p.ora, 2);
    testo += L':';
    testo += cifre(p.minuto, 2);
    testo += L':';
    testo += cifre(p.secondo, 2);
    testo += nDiffOre() < 0 ? L" -" : L" +";
    // The signed number: a second minus west of Greenwich.
    testo += cifre(nDiffOre() * 100, 4);
    return testo;
}

DataOra ClsUTC::ToDate(std::wstring_view testo) const {
    if (rifila(testo).empty()) {
        return {};
    }
    const auto virgola = testo.find(L',');
    if (virgola == std::wstring_view::npos) {
        solleva(errori::dataNonValida);
    }
    // The order of the steps is the order in which errors win.
    const Pezzi pezzi(testo.substr(virgola + 1));
    const int giorno = aInt16(valoreIniziale(pezzi[0]));
    const int mese = NumeroMese(pezzi[1]);
    const int anno = aInt16(valoreIniziale(pezzi[2]));
    Orario orario = leggiOrario(pezzi[3]);
    const auto zona = pezzi[4];
    if (std::ranges::find(zoneUtc, maiuscolo(zona)) != zoneUtc.end()) {
        orario.ore += nDiffOre();
    } else {
        // Only checked for being a number: the clock time is taken as written.
        static_cast<void>(testoAInt16(zona, formato_.lingua));
    }
    const DataOra data = DataOra::daParti(anno, mese, giorno);
    const std::int64_t ore = aInt16(orario.ore);
    const std::int64_t minuti = aInt16(orario.minuti);
    const std::int64_t secondi = aInt16(orario.secondi);
    return data.piuSecondi(ore * 3600 + minuti * 60 + secondi);
}

int ClsUTC::NumeroMese(std::wstring_view nome) {
    const std::wstring cercato = maiuscolo(nome);
    for (const auto& tabella : {mesiInglesi, mesiItaliani}) {
        const auto* const trovato =
            std::ranges::find(tabella, cercato, [](Nome mese) { return maiuscolo(mese); });
        if (trovato != tabella.end()) {
            return static_cast<int>(trovato - tabella.begin()) + 1;
        }
    }
    solleva(errori::meseNonValido, cercato);
}
