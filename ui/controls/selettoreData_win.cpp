#include "ui/controls/selettoreData_win.h"

#include "support/errori/errore.h"
#include "support/tempo/dataora_win.h"

#include <commctrl.h>

SelettoreData::SelettoreData(HWND controllo, Parte parte) : controllo_(controllo) {
    if (parte == Parte::Ora) {
        // The program's "hh" is the 24-hour clock, which the control writes with capitals.
        DateTime_SetFormat(controllo_, L"HH:mm:ss");
    }
    ultimo_ = valore();
}

DataOra SelettoreData::valore() const {
    SYSTEMTIME tempo{};
    if (DateTime_GetSystemtime(controllo_, &tempo) != GDT_VALID) {
        solleva(errori::valoreProprieta);
    }
    return daSystemTime(tempo);
}

bool SelettoreData::valore(DataOra data) {
    const DataOra prima = valore();
    const SYSTEMTIME tempo = aSystemTime(data);
    // Outside its range the control reports success and stays as it was: only reading back tells.
    const bool riuscito = DateTime_SetSystemtime(controllo_, GDT_VALID, &tempo) != FALSE;
    ultimo_ = valore();
    if (!riuscito || ultimo_ != data) {
        solleva(errori::valoreProprieta);
    }
    return ultimo_ != prima;
}

void SelettoreData::conferma() const noexcept {
    // One part on and back: the control takes in what was typed when it leaves a part.
    if (controllo_ != nullptr && GetFocus() == controllo_) {
        SendMessageW(controllo_, WM_KEYDOWN, VK_LEFT, 0);
        SendMessageW(controllo_, WM_KEYDOWN, VK_RIGHT, 0);
    }
}

bool SelettoreData::cambiato() {
    const DataOra adesso = valore();
    if (adesso == ultimo_) {
        return false;
    }
    ultimo_ = adesso;
    return true;
}

DataOra combina(const SelettoreData& data, const SelettoreData& orario) {
    const auto d = data.valore().parti();
    const auto o = orario.valore().parti();
    return DataOra::daParti(d.anno, d.mese, d.giorno, o.ora, o.minuto, o.secondo);
}
