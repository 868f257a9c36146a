#pragma once

#include "document/clsFeedRss.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

// All that a feed file holds, as the reader fills it and the writer takes it.
struct Documento {
    std::wstring title;
    std::wstring link;
    std::wstring description;
    std::wstring language;
    std::wstring copyright;
    std::wstring lastBuildDate;
    std::wstring webMaster;
    clsImgRss image;
    TabellaElementi items;

    void leggi(const std::wstring& percorso);
    void scrivi(const std::wstring& percorso) const;
    // The seven strings of the channel, in their order.
    [[nodiscard]] std::array<std::wstring*, 7> canale();
};

// What an action raises; number 0 when it raises nothing.
struct Sollevato {
    std::int32_t numero = 0;
    std::wstring descrizione;
};
[[nodiscard]] Sollevato sollevatoDa(const std::function<void()>& azione);

// A feed file around the content of its channel, in UTF-8.
[[nodiscard]] std::string rssCon(std::string_view contenutoCanale);
