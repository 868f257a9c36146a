#pragma once

#include "support/testi/formato.h"

#include <compare>
#include <cstdint>
#include <string>

// A date and time of one-second resolution, from year 100 to 9999, without a time zone. The zero
// value is 30 December 1899, 00:00:00.
class DataOra {
public:
    struct Parti {
        int anno;
        int mese;
        int giorno;
        int ora;
        int minuto;
        int secondo;
    };

    constexpr DataOra() noexcept = default;

    // From parts that carry over: day 31 of April is 1 May, hour -5 belongs to the day before;
    // months by 16 bits at most.
    // Years 0-29 mean 2000-2029, 30-99 mean 1930-1999. Raises error 5 when the year, or that of
    // the result, is not 100 to 9999.
    [[nodiscard]] static DataOra daParti(int anno, int mese, int giorno, int ora = 0,
                                         int minuto = 0, int secondo = 0);

    // Seconds from the zero value, negative before it.
    [[nodiscard]] constexpr std::int64_t secondi() const noexcept { return secondi_; }
    [[nodiscard]] Parti parti() const noexcept;
    // 1 is Sunday, 7 Saturday, before 1900 too.
    [[nodiscard]] int giornoSettimana() const noexcept;

    // Raises error 5 when the result leaves the years 100 to 9999.
    [[nodiscard]] DataOra piuSecondi(std::int64_t secondi) const;

    friend constexpr auto operator<=>(const DataOra&, const DataOra&) noexcept = default;

private:
    static DataOra daSecondi(std::int64_t secondi);

    std::int64_t secondi_ = 0;
};

// Hour boundaries between two times: both clocks cut to the hour, then subtracted.
[[nodiscard]] int differenzaOre(DataOra da, DataOra a) noexcept;

// "dd/mm/yyyy hh:mm:ss" with the separators of the user's format, on the 24-hour clock.
[[nodiscard]] std::wstring formattaDataOra(DataOra data, const FormatoLocale& formato);

// "yyyy-mm-dd hh.mm.ss", as names of files tell a time: in their order they are in that of time.
[[nodiscard]] std::wstring oraPerNomi(DataOra data);

// The clock's reading: one instant as UTC and as local time.
struct Istante {
    DataOra utc;
    DataOra locale;
};
[[nodiscard]] Istante istanteAttuale();
