#include "support/utilita/koUtilitaTesti.h"

#include "support/tempo/dataora_win.h"
#include "support/windows/errori_win.h"

#include <windows.h>

#include <oleauto.h>

namespace {

DataOra daVariante(DATE data) {
    SYSTEMTIME tempo{};
    if (!VariantTimeToSystemTime(data, &tempo)) {
        solleva(errori::tipoNonCorrispondente);
    }
    return daSystemTime(tempo);
}

} // namespace

DataOra koUtilitaTesti::LongToDate(std::int32_t numero) {
    DATE data = 0;
    verifica(VarDateFromI4(numero, &data));
    return daVariante(data);
}

DataOra koUtilitaTesti::StringaToDate(const std::wstring& testo) {
    // MinGW's declaration wants a text that can be written.
    std::wstring copia = testo;
    DATE data = 0;
    if (FAILED(VarDateFromStr(copia.data(), GetUserDefaultLCID(), 0, &data))) {
        solleva(errori::tipoNonCorrispondente);
    }
    return daVariante(data);
}
