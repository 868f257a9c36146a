#pragma once

#include "support/tempo/dataora.h"
#include "support/testi/formato.h"

#include <cstdint>
#include <string>
#include <string_view>

// Between local date values and the RFC 822 texts of a feed. The offset from UTC is that of the
// moment the object was made, for every date.
class ClsUTC {
public:
    // With the clock and the user's format of now.
    ClsUTC();
    // With given times; for tests and for a clock that was read already.
    ClsUTC(const Istante& adesso, FormatoLocale formato);

    // The text of a date. With bLocale false the UTC clock time, still labelled with the local
    // offset. An offset west of Greenwich shows two minus signs; both are the format's.
    [[nodiscard]] std::wstring GetDataUtc(DataOra data, bool bLocale) const;

    // The date of a text; a blank text gives the zero date. Raises 4453 (format), 4454 (month
    // name), 9 (a missing piece), 13 (a zone that is no number), 6 and 5 (values out of range).
    [[nodiscard]] DataOra ToDate(std::wstring_view testo) const;

    // Whether both read every text as the same date.
    [[nodiscard]] bool leggeCome(const ClsUTC& altro) const noexcept {
        return nDiffOre_ == altro.nDiffOre_ && formato_ == altro.formato_;
    }

    // Hours east of Greenwich, as the clock showed them when this was made.
    [[nodiscard]] std::int16_t nDiffOre() const noexcept { return nDiffOre_; }
    [[nodiscard]] DataOra adessoLocale() const noexcept { return adesso_.locale; }

private:
    [[nodiscard]] static int NumeroMese(std::wstring_view nome);

    Istante adesso_;
    FormatoLocale formato_;
    std::int16_t nDiffOre_;
};
