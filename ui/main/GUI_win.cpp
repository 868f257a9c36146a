#include "ui/main/GUI_win.h"

#include "support/errori/errore.h"
#include "support/immagini/immagine_win.h"
#include "support/windows/file_win.h"
#include "support/windows/gdi_win.h"

void Sfondo::disegna(HDC dc) const noexcept {
    if (!bitmap_) {
        return;
    }
    const DcBitmap memoria(dc, bitmap_.get());
    BitBlt(dc, 0, 0, misura_.cx, misura_.cy, memoria.get(), 0, 0, SRCCOPY);
}

void GUI::SelezionaRiga(Griglia& griglia, int riga) {
    griglia.seleziona(riga);
}

void GUI::ImpostaColonne(Griglia& griglia, std::vector<std::wstring> titoli, int colonne,
                         std::optional<double> primaLarghezza) {
    griglia.intesta(std::move(titoli), colonne, primaLarghezza);
}

void GUI::CompletaRighe(Griglia& griglia) {
    griglia.completa();
}

void GUI::IntestaGriglia(Griglia& griglia) {
    ImpostaColonne(griglia, {L"Data/Orario", L"Contenuto"}, 3, 2000.0);
}

void GUI::RiempiGriglia(Griglia& griglia, bool soloIntestazioni) {
    const Griglia::Sospensione sospensione(griglia);
    IntestaGriglia(griglia);
    if (!soloIntestazioni) {
        griglia.elenca(ClsUTC(), formatoUtente());
    }
    CompletaRighe(griglia);
    SelezionaRiga(griglia, 1);
}

Sfondo GUI::ApplicaSfondo(const std::wstring& cartella) {
    const std::wstring base = cartella.ends_with(L'\\') ? cartella : cartella + L'\\';
    for (const wchar_t* nome : {L"sfondo.bmp", L"sfondo.jpg"}) {
        const std::wstring percorso = base + nome;
        if (!fileEsiste(percorso)) {
            continue;
        }
        try {
            const auto immagine = caricaImmagine(percorso);
            // The picture keeps its own bitmap.
            ManigliaBitmap copia(
                static_cast<HBITMAP>(CopyImage(bitmapDi(*immagine.get()), IMAGE_BITMAP, 0, 0, 0)));
            const SIZE misura = misuraDi(copia.get());
            return {std::move(copia), misura};
        } catch (const Errore&) {
            return {};
        }
    }
    return {};
}
