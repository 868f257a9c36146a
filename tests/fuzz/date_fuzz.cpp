#include "datetime/ClsUTC.h"

#include "support/errori/errore.h"
#include "support/testi/testo.h"
#include "tests/fuzz/ingresso.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array documentati{4453, 4454, 5, 6, 9, 13};

// A date with pieces chosen by the first bytes, then single characters changed by pairs of bytes:
// random bytes alone hardly ever make a date.
std::wstring dataDa(const std::uint8_t* dati, std::size_t quanti) {
    static constexpr std::array<std::array<std::wstring_view, 8>, 5> pezzi{{
        {L"11", L"0", L"31", L"-1", L"32767", L"2.5", L"99999", L"x"},
        {L"Jun", L"giu", L"FEB", L"Dic", L"Jul", L"Xyz", L"jan", L"Mag"},
        {L"2005", L"0", L"29", L"99", L"100", L"9999", L"10000", L"-5"},
        {L"15:00:00", L"24.60.60", L"1e4:0:0", L"1500", L"23-59-59", L"::", L"99999:0:0",
         L"0:0:1.5"},
        {L"GMT", L"(utc)", L"+0100", L"--0500", L"40000", L"(1)", L"&H10", L"EST"},
    }};
    std::wstring testo = L"Sat,";
    std::size_t i = 0;
    for (; i < pezzi.size() && i < quanti; ++i) {
        testo += L' ';
        testo += pezzi[i][dati[i] % 8];
    }
    for (; i + 1 < quanti; i += 2) {
        testo[dati[i] % testo.size()] = static_cast<wchar_t>(dati[i + 1]);
    }
    return testo;
}

ClsUTC conScarto(int ore) {
    const DataOra utc = DataOra::daParti(2005, 6, 11, 12);
    return {{utc, utc.piuSecondi(std::int64_t{ore} * 3600)}, {}};
}

void prova(const std::wstring& testo, int scarto) {
    const ClsUTC utc = conScarto(scarto);
    try {
        const DataOra data = utc.ToDate(testo);
        const auto p = data.parti();
        esigi(p.anno >= 100 && p.anno <= 9999);
        esigi(DataOra::daParti(p.anno, p.mese, p.giorno, p.ora, p.minuto, p.secondo) == data);
        esigi(rifila(testo).empty() || testo.find(L',') != std::wstring::npos);
        // What is written for a date reads back as that date.
        const ClsUTC est = conScarto(std::abs(scarto));
        esigi(est.ToDate(est.GetDataUtc(data, true)) == data);
    } catch (const Errore& errore) {
        esigi(std::ranges::find(documentati, errore.numero()) != documentati.end());
        esigi(!errore.descrizione().empty());
        esigi(errore.numero() == 4453 || testo.find(L',') != std::wstring::npos);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
    const int scarto = quanti == 0 ? 0 : dati[quanti - 1] % 27 - 12;
    prova(testoDa(dati, quanti), scarto);
    prova(dataDa(dati, quanti), scarto);
    return 0;
}
