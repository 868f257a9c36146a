#include "support/koUtilitaTesti.h"

#include "support/dataora_win.h"
#include "support/errori_win.h"

#include <windows.h>

#include <oleauto.h>

DataOra koUtilitaTesti::StringaToDate(const std::wstring& testo) {
    // MinGW's declaration wants a text that can be written.
    std::wstring copia = testo;
    DATE data = 0;
    SYSTEMTIME tempo{};
    if (FAILED(VarDateFromStr(copia.data(), GetUserDefaultLCID(), 0, &data)) ||
        !VariantTimeToSystemTime(data, &tempo)) {
        solleva(errori::tipoNonCorrispondente);
    }
    return daSystemTime(tempo);
}
