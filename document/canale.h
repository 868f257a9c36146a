#pragma once

#include "document/clsImgRss.h"

#include <array>
#include <string>
#include <string_view>

// The channel's values.
struct Canale {
    std::wstring title;
    std::wstring link;
    std::wstring description;
    std::wstring language;
    std::wstring copyright;
    // RFC 822 text.
    std::wstring lastBuildDate;
    std::wstring webMaster;
    clsImgRss image;
};

// A text of the channel: where it is, its element, and how messages name it.
struct VoceCanale {
    std::wstring Canale::*membro;
    std::wstring_view nodo;
    std::wstring_view nome;
};

// In the order in which they are read and written.
inline constexpr std::array vociCanale{
    VoceCanale{&Canale::title, L"title", L"titolo del canale"},
    VoceCanale{&Canale::link, L"link", L"link del canale"},
    VoceCanale{&Canale::description, L"description", L"descrizione del canale"},
    VoceCanale{&Canale::language, L"language", L"lingua del canale"},
    VoceCanale{&Canale::copyright, L"copyright", L"copyright del canale"},
    VoceCanale{&Canale::lastBuildDate, L"lastBuildDate", L"data del canale"},
    VoceCanale{&Canale::webMaster, L"webMaster", L"webmaster del canale"},
};
