#include "support/dataora.h"

#include "support/errore.h"
#include "support/numeri.h"

namespace {

constexpr std::int64_t secondiAlGiorno = 86400;

constexpr std::int64_t divisioneIntera(std::int64_t a, std::int64_t b) noexcept {
    return a / b - (a % b < 0 ? 1 : 0);
}

// Days from 1 January 1970 to the first of a month of the proleptic Gregorian calendar, counted in
// years that begin in March, so that the leap day is the last one.
constexpr std::int64_t giorniAlMese(std::int64_t anno, int mese) noexcept {
    const std::int64_t a = mese <= 2 ? anno - 1 : anno;
    const std::int64_t era = divisioneIntera(a, 400);
    const std::int64_t annoEra = a - era * 400;
    const std::int64_t giornoAnno = (153 * (mese > 2 ? mese - 3 : mese + 9) + 2) / 5;
    return era * 146097 + annoEra * 365 + annoEra / 4 - annoEra / 100 + giornoAnno - 719468;
}

constexpr std::int64_t giornoZero = giorniAlMese(1899, 12) + 29;
constexpr int primoAnno = 100;
constexpr int ultimoAnno = 9999;
constexpr std::int64_t primoGiorno = giorniAlMese(primoAnno, 1) - giornoZero;
constexpr std::int64_t ultimoGiorno = giorniAlMese(ultimoAnno + 1, 1) - 1 - giornoZero;

std::wstring dueCifre(int numero) {
    return formattaNumero(numero, 2, 0);
}

} // namespace

DataOra DataOra::daSecondi(std::int64_t secondi) {
    const std::int64_t giorno = divisioneIntera(secondi, secondiAlGiorno);
    if (giorno < primoGiorno || giorno > ultimoGiorno) {
        solleva(errori::chiamataNonValida);
    }
    DataOra data;
    data.secondi_ = secondi;
    return data;
}

DataOra DataOra::daParti(int anno, int mese, int giorno, int ora, int minuto, int secondo) {
    if (anno >= 0 && anno <= 29) {
        anno += 2000;
    } else if (anno >= 30 && anno <= 99) {
        anno += 1900;
    }
    if (anno < primoAnno || anno > ultimoAnno) {
        solleva(errori::chiamataNonValida);
    }
    const std::int64_t mesi = std::int64_t{anno} * 12 + mese - 1;
    const std::int64_t annoIntero = divisioneIntera(mesi, 12);
    const auto meseIntero = static_cast<int>(mesi - annoIntero * 12) + 1;
    const std::int64_t giorni = giorniAlMese(annoIntero, meseIntero) - giornoZero + giorno - 1;
    return daSecondi(giorni * secondiAlGiorno + std::int64_t{ora} * 3600 +
                     std::int64_t{minuto} * 60 + secondo);
}

DataOra::Parti DataOra::parti() const noexcept {
    const std::int64_t giorni = divisioneIntera(secondi_, secondiAlGiorno);
    const auto resto = static_cast<int>(secondi_ - giorni * secondiAlGiorno);
    const std::int64_t z = giorni + giornoZero + 719468;
    const std::int64_t era = divisioneIntera(z, 146097);
    const std::int64_t giornoEra = z - era * 146097;
    const std::int64_t annoEra =
        (giornoEra - giornoEra / 1460 + giornoEra / 36524 - giornoEra / 146096) / 365;
    const std::int64_t giornoAnno = giornoEra - (365 * annoEra + annoEra / 4 - annoEra / 100);
    const auto mp = static_cast<int>((5 * giornoAnno + 2) / 153);
    const auto giorno = static_cast<int>(giornoAnno - (153 * mp + 2) / 5 + 1);
    const int mese = mp < 10 ? mp + 3 : mp - 9;
    const auto anno = static_cast<int>(annoEra + era * 400 + (mese <= 2 ? 1 : 0));
    return {anno, mese, giorno, resto / 3600, resto / 60 % 60, resto % 60};
}

int DataOra::giornoSettimana() const noexcept {
    // The zero value was a Saturday.
    const std::int64_t giorni = divisioneIntera(secondi_, secondiAlGiorno) + 6;
    return static_cast<int>(giorni - divisioneIntera(giorni, 7) * 7) + 1;
}

DataOra DataOra::piuSecondi(std::int64_t secondi) const {
    return daSecondi(secondi_ + secondi);
}

int differenzaOre(DataOra da, DataOra a) noexcept {
    return static_cast<int>(divisioneIntera(a.secondi(), 3600) -
                            divisioneIntera(da.secondi(), 3600));
}

std::wstring formattaDataOra(DataOra data, const FormatoLocale& formato) {
    const auto p = data.parti();
    return dueCifre(p.giorno) + formato.data + dueCifre(p.mese) + formato.data +
           formattaNumero(p.anno, 4, 0) + L' ' + dueCifre(p.ora) + formato.ora +
           dueCifre(p.minuto) + formato.ora + dueCifre(p.secondo);
}
