#include "support/tempo/dataora.h"

#include "support/errori/errore.h"

#include <algorithm>
#include <chrono>

namespace {

using namespace std::chrono;

constexpr sys_days zero = 1899y / December / 30;
constexpr year primoAnno = 100y;
constexpr year ultimoAnno = 9999y;
constexpr sys_seconds primo = sys_days{primoAnno / January / 1};
constexpr sys_seconds oltre = sys_days{(ultimoAnno + years{1}) / January / 1};

constexpr sys_seconds momento(DataOra data) noexcept {
    return zero + seconds{data.secondi()};
}

std::wstring dueCifre(int numero) {
    return {static_cast<wchar_t>(L'0' + numero / 10), static_cast<wchar_t>(L'0' + numero % 10)};
}

} // namespace

DataOra DataOra::daSecondi(std::int64_t secondi) {
    if (secondi < (primo - zero).count() || secondi >= (oltre - zero).count()) {
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
    if (anno < int{primoAnno} || anno > int{ultimoAnno}) {
        solleva(errori::chiamataNonValida);
    }
    // From seconds on: the smaller units may count in fewer bits.
    const sys_seconds primoDelMese = sys_days{(year{anno} / January + months{mese - 1}) / 1};
    return daSecondi(
        (primoDelMese - zero + days{giorno - 1} + hours{ora} + minutes{minuto} + seconds{secondo})
            .count());
}

DataOra::Parti DataOra::parti() const noexcept {
    const auto giorno = floor<days>(momento(*this));
    const year_month_day data = giorno;
    const hh_mm_ss ora(momento(*this) - giorno);
    const auto intero = [](auto numero) { return static_cast<int>(numero); };
    return {intero(data.year()),           intero(unsigned{data.month()}),
            intero(unsigned{data.day()}),  intero(ora.hours().count()),
            intero(ora.minutes().count()), intero(ora.seconds().count())};
}

int DataOra::giornoSettimana() const noexcept {
    return static_cast<int>(weekday(floor<days>(momento(*this))).c_encoding()) + 1;
}

DataOra DataOra::piuSecondi(std::int64_t secondi) const {
    // The sum has room: it may come from bytes that anybody wrote.
    constexpr std::int64_t tutti = (oltre - primo).count();
    return daSecondi(secondi_ + std::clamp(secondi, -tutti, tutti));
}

int differenzaOre(DataOra da, DataOra a) noexcept {
    return static_cast<int>((floor<hours>(momento(a)) - floor<hours>(momento(da))).count());
}

std::wstring formattaDataOra(DataOra data, const FormatoLocale& formato) {
    const auto p = data.parti();
    return dueCifre(p.giorno) + formato.data + dueCifre(p.mese) + formato.data +
           dueCifre(p.anno / 100) + dueCifre(p.anno % 100) + L' ' + dueCifre(p.ora) + formato.ora +
           dueCifre(p.minuto) + formato.ora + dueCifre(p.secondo);
}

std::wstring oraPerNomi(DataOra data) {
    const auto p = data.parti();
    return dueCifre(p.anno / 100) + dueCifre(p.anno % 100) + L'-' + dueCifre(p.mese) + L'-' +
           dueCifre(p.giorno) + L' ' + dueCifre(p.ora) + L'.' + dueCifre(p.minuto) + L'.' +
           dueCifre(p.secondo);
}
