#include "ui/main/comandiAppunti_win.h"

#include "document/appunti.h"
#include "document/elementi.h"
#include "support/utilita/koUtilita.h"
#include "support/windows/appunti_win.h"
#include "support/windows/guardia_win.h"
#include "ui/main/finestraPrincipale_win.h"

#include <span>

namespace {

void metti(Appunti& appunti, const ElementoAppunti& elemento) {
    const UINT nostro = formatoAppunti(ComandiAppunti::formato);
    const UINT html = formatoAppunti(L"HTML Format");
    appunti.svuota();
    appunti.metti(nostro, byteAppunti(elemento));
    // Whoever reads it may look for its end.
    appunti.metti(html, htmlAppunti(*elemento.elemento) + '\0');
    appunti.metti(testoAppunti(*elemento.elemento));
}

std::optional<ElementoAppunti> leggi(const Appunti& appunti) {
    const auto byte = appunti.leggi(formatoAppunti(ComandiAppunti::formato));
    return byte ? leggiAppunti(std::as_bytes(std::span(*byte))) : std::nullopt;
}

ElementoCondiviso conGuidProprio(const Elemento& elemento) {
    TestiElemento testi = elemento.testi();
    const std::wstring guid = guidNuovo(elemento[CampoElemento::Data]);
    testi[static_cast<std::size_t>(CampoElemento::Guid)] = guid;
    return creaElemento(testi);
}

} // namespace

template <class Azione>
void ComandiAppunti::riportando(Azione azione) {
    protetto(azione, [&] { koUtilita(messaggi_).PrintErrore(); });
}

void ComandiAppunti::Taglia(int elemento) {
    if (elemento < 0) {
        return;
    }
    riportando([&] {
        const Modifica rimozione = documento_.rimozione(elemento);
        {
            Appunti appunti(finestra_.proprietaria());
            metti(appunti, {rimozione.prima, true});
        }
        documento_.applica(rimozione);
    });
}

void ComandiAppunti::Copia(int elemento) {
    if (elemento < 0) {
        return;
    }
    riportando([&] {
        Appunti appunti(finestra_.proprietaria());
        metti(appunti, {documento_.elementi().elemento(elemento), false});
    });
}

void ComandiAppunti::Incolla(int elemento) {
    riportando([&] {
        // Held to the end, so that of two windows one is the first to paste.
        Appunti appunti(finestra_.proprietaria());
        const auto letto = leggi(appunti);
        if (!letto) {
            return;
        }
        const std::wstring_view guid = (*letto->elemento)[CampoElemento::Guid];
        const bool tiene =
            letto->tagliato && (guid.empty() || !guidPresente(documento_.elementi(), guid));
        const int indice = elemento < 0 ? documento_.elementi().conteggio() : elemento + 1;
        documento_.applica(documento_.aggiunta(indice, tiene ? letto->elemento
                                                             : conGuidProprio(*letto->elemento)));
        if (letto->tagliato) {
            metti(appunti, {letto->elemento, false});
        }
    });
}
