#pragma once

#include "document/documento.h"
#include "res/risorse.h"
#include "ui/main/FrmMain_win.h"

#include <string>
#include <string_view>

// The grid of a main window, found as a user finds it.
[[nodiscard]] inline Griglia& grigliaDi(const FrmMain& finestra) {
    return *Finestra::da<Griglia>(GetDlgItem(finestra.hwnd(), IDC_GRIGLIA));
}

// One more item of that title in the document of a main window, without counting as a modification.
inline void mettiElemento(FrmMain& finestra, Documento& documento, std::wstring_view titolo) {
    const std::wstring link = L"https://e.example/" + std::wstring(titolo);
    const auto elemento =
        creaElemento({titolo, link, L"", L"", L"Tue, 15 Nov 2005 10:00:00 +0100", L""});
    documento.applica(documento.aggiunta(elemento), Causa::Trascinamento);
    finestra.RiempiGriglia(false);
}
