#pragma once

#include "support/servizi/orologio.h"

// A clock that shows what a test sets: local time is two hours ahead of UTC.
class OrologioFermo final : public Orologio {
public:
    explicit OrologioFermo(DataOra locale) noexcept : locale_(locale) {}

    void locale(DataOra valore) noexcept { locale_ = valore; }
    [[nodiscard]] DataOra locale() const noexcept { return locale_; }

    [[nodiscard]] Istante adesso() const override { return {locale_.piuSecondi(-7200), locale_}; }

private:
    DataOra locale_;
};
