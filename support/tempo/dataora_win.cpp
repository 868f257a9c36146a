#include "support/tempo/dataora_win.h"

DataOra daSystemTime(const SYSTEMTIME& tempo) {
    return DataOra::daParti(tempo.wYear, tempo.wMonth, tempo.wDay, tempo.wHour, tempo.wMinute,
                            tempo.wSecond);
}

SYSTEMTIME aSystemTime(DataOra data) noexcept {
    const auto p = data.parti();
    const auto parola = [](int numero) { return static_cast<WORD>(numero); };
    return {parola(p.anno),
            parola(p.mese),
            parola(data.giornoSettimana() - 1),
            parola(p.giorno),
            parola(p.ora),
            parola(p.minuto),
            parola(p.secondo),
            0};
}

Istante istanteAttuale() {
    // The clock is read once; reading the local time apart could fall into another hour.
    SYSTEMTIME utc{};
    SYSTEMTIME locale{};
    GetSystemTime(&utc);
    if (!SystemTimeToTzSpecificLocalTime(nullptr, &utc, &locale)) {
        locale = utc;
    }
    return {daSystemTime(utc), daSystemTime(locale)};
}
