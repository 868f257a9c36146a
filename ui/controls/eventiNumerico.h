#pragma once

#include "support/errori/trappola.h"
#include "ui/controls/proprietaNumerico.h"
#include "ui/controls/valoreNumerico.h"

#include <string_view>

class KOInputNumerico;

// What a numeric control tells its container; its exceptions too. An event that a container has no
// use for does nothing. A handler may show a message box or close the window.
class EventiNumerico : public Trappola {
public:
    // The box was left holding more than the maximum (less than the minimum): `Valore` still reads
    // what was typed, the limit is written afterwards.
    virtual void MassimoSuperato(KOInputNumerico& /*controllo*/, double /*vmassimo*/) {}
    virtual void MinimoSuperato(KOInputNumerico& /*controllo*/, double /*vminimo*/) {}
    // The text changed, by the user or by code.
    virtual void CambioValore(KOInputNumerico& /*controllo*/, double /*valore*/) {}
    // A property was written; its name is that of its key.
    virtual void ProprietaCambiata(KOInputNumerico& /*controllo*/, std::wstring_view /*nome*/) {}
};
