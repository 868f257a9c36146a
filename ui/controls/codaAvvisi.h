#pragma once

#include "ui/controls/avvisi.h"

#include <deque>
#include <string_view>

// The notices said and not yet gone, in the order in which they were; the first is the one to show.
class CodaAvvisi {
public:
    // Behind the others, or where one about the same stands.
    void metti(Avviso avviso);
    void ritira(std::wstring_view argomento);
    // Takes this one away, unless it is gone or another stands in its place.
    void togli(int numero);

    // The number of the first one, which no other ever has; 0 when there is none.
    [[nodiscard]] int numero() const noexcept { return voci_.empty() ? 0 : voci_.front().numero; }
    // There has to be one. The reference lasts until the next change.
    [[nodiscard]] const Avviso& primo() const noexcept { return voci_.front().avviso; }

private:
    struct Voce {
        int numero;
        Avviso avviso;
    };
    std::deque<Voce> voci_;
    int ultimo_ = 0;
};
