#include "tests/aiuti/campi_prova_win.h"

#include "res/risorse.h"
#include "support/tempo/dataora_win.h"
#include "tests/aiuti/schermo_win.h"

#include <commctrl.h>

#include <gtest/gtest.h>

namespace {

SYSTEMTIME tempoDi(HWND selettore) {
    SYSTEMTIME tempo{};
    EXPECT_EQ(DateTime_GetSystemtime(selettore, &tempo), static_cast<DWORD>(GDT_VALID));
    return tempo;
}

} // namespace

std::wstring CampiProva::testo(int id) const {
    return testoDi(controllo(id));
}

void CampiProva::testo(int id, std::wstring_view valore) const {
    SetWindowTextW(controllo(id), std::wstring(valore).c_str());
    const int codice = id == IDC_CBOLINGUA ? CBN_EDITCHANGE : EN_CHANGE;
    SendMessageW(hwnd(), WM_COMMAND, MAKEWPARAM(id, codice),
                 reinterpret_cast<LPARAM>(controllo(id)));
}

KOInputNumerico& CampiProva::txtLarghezza() const {
    return *Finestra::da<KOInputNumerico>(controllo(IDC_TXTLARGHEZZA));
}

KOInputNumerico& CampiProva::txtAltezza() const {
    return *Finestra::da<KOInputNumerico>(controllo(IDC_TXTALTEZZA));
}

void CampiProva::dimensioni(double larghezza, double altezza) const {
    txtLarghezza().Valore(larghezza);
    txtAltezza().Valore(altezza);
}

DataOra CampiProva::dataOra() const {
    SYSTEMTIME tempo = tempoDi(controllo(IDC_TXTDATA));
    const SYSTEMTIME orario = tempoDi(controllo(IDC_TXTORARIO));
    tempo.wHour = orario.wHour;
    tempo.wMinute = orario.wMinute;
    tempo.wSecond = orario.wSecond;
    return daSystemTime(tempo);
}

void CampiProva::dataOra(DataOra valore) const {
    const SYSTEMTIME tempo = aSystemTime(valore);
    for (const int id : {IDC_TXTDATA, IDC_TXTORARIO}) {
        DateTime_SetSystemtime(controllo(id), GDT_VALID, &tempo);
        NMHDR avviso{controllo(id), static_cast<UINT_PTR>(id),
                     static_cast<UINT>(DTN_DATETIMECHANGE)};
        SendMessageW(hwnd(), WM_NOTIFY, avviso.idFrom, reinterpret_cast<LPARAM>(&avviso));
    }
    EXPECT_EQ(dataOra(), valore);
}
