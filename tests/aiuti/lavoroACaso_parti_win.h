#pragma once

#include "res/risorse.h"
#include "support/testi/testo.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/ostrelleGuidata_win.h"

#include <array>
#include <string>
#include <string_view>

// What the two halves of LavoroACaso share.

// The channel's texts, in the order of StatoLavoro.
inline constexpr std::array campiCanale{
    IDC_TXTTITOLO,    IDC_TXTLINKHOME, IDC_TXTDESCRIZIONE, IDC_CBOLINGUA,  IDC_TXTCOPYRIGHT,
    IDC_TXTWEBMASTER, IDC_TXTLOGO,     IDC_TXTURL,         IDC_TXTLINKIMG,
};
inline constexpr std::array campiEditor{IDC_EDITTITOLO, IDC_EDITLINK, IDC_EDITAUTORE,
                                        IDC_EDITDESCRIZIONE};

// A text without what the way through a file may take from it: blanks around it and how lines end.
[[nodiscard]] inline std::wstring normale(std::wstring_view testo) {
    return std::wstring(rifila(sostituisci(testo, L"\r", L"")));
}

// The text of a box.
[[nodiscard]] inline std::string scatola(const OstrelleGuidata& programma, HWND dialogo) {
    std::wstring tutto = programma.testo(dialogo);
    for (HWND c = GetWindow(dialogo, GW_CHILD); c != nullptr; c = GetWindow(c, GW_HWNDNEXT)) {
        tutto += L" | " + programma.testo(c);
    }
    return inUtf8(tutto);
}
