#pragma once

#include "document/canale.h"
#include "document/clsFeedRss.h"

#include "tests/aiuti/sollevato.h"

#include <array>
#include <string>
#include <string_view>

// All that a feed file holds, as the reader fills it and the writer takes it.
struct FeedDiProva : Canale {
    TabellaElementi items;

    void leggi(const std::wstring& percorso);
    void scrivi(const std::wstring& percorso) const;
    // The same, giving what was raised.
    [[nodiscard]] Sollevato provaLeggi(const std::wstring& percorso);
    [[nodiscard]] Sollevato provaScrivi(const std::wstring& percorso) const;
    // The seven strings of the channel, in their order.
    [[nodiscard]] std::array<std::wstring*, 7> canale();
};

// A feed file around the content of its channel, in UTF-8.
[[nodiscard]] std::string rssCon(std::string_view contenutoCanale);
