#pragma once

#include "document/clsImgRss.h"

#include <string>

// The channel as reader and writers take it.
struct Canale {
    std::wstring title;
    std::wstring link;
    std::wstring description;
    std::wstring language;
    std::wstring copyright;
    std::wstring lastBuildDate;
    std::wstring webMaster;
    clsImgRss image;
};
