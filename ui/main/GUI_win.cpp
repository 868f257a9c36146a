#include "ui/main/GUI_win.h"

#include "support/errori/errore.h"
#include "support/immagini/immagine_win.h"
#include "support/windows/file_win.h"

#include <olectl.h>

namespace {

// A device context that goes with its scope.
class ContestoMemoria {
public:
    explicit ContestoMemoria(HDC come) noexcept : dc_(CreateCompatibleDC(come)) {}
    ContestoMemoria(const ContestoMemoria&) = delete;
    ContestoMemoria& operator=(const ContestoMemoria&) = delete;
    ~ContestoMemoria() { DeleteDC(dc_); }
    [[nodiscard]] HDC get() const noexcept { return dc_; }

private:
    HDC dc_;
};

} // namespace

void Sfondo::disegna(HDC dc) const noexcept {
    if (!bitmap_) {
        return;
    }
    const ContestoMemoria memoria(dc);
    const HGDIOBJ prima = SelectObject(memoria.get(), bitmap_.get());
    BitBlt(dc, 0, 0, misura_.cx, misura_.cy, memoria.get(), 0, 0, SRCCOPY);
    SelectObject(memoria.get(), prima);
}

void GUI::SelezionaRiga(Griglia& griglia, int riga) {
    griglia.seleziona(riga);
}

void GUI::ImpostaColonne(Griglia& griglia, std::vector<std::wstring> titoli, int colonne,
                         std::optional<double> primaLarghezza) {
    griglia.intesta(std::move(titoli), colonne);
    griglia.allarga(primaLarghezza);
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
            OLE_HANDLE maniglia = 0;
            short tipo = PICTYPE_NONE;
            if (FAILED(immagine->get_Type(&tipo)) || tipo != PICTYPE_BITMAP ||
                FAILED(immagine->get_Handle(&maniglia))) {
                return {};
            }
            // The picture keeps its own bitmap; handles fit in 32 bits.
            ManigliaBitmap copia(static_cast<HBITMAP>(
                CopyImage(LongToHandle(static_cast<long>(maniglia)), IMAGE_BITMAP, 0, 0, 0)));
            BITMAP misure{};
            if (GetObjectW(copia.get(), sizeof(misure), &misure) == 0) {
                return {};
            }
            return {std::move(copia), SIZE{misure.bmWidth, misure.bmHeight}};
        } catch (const Errore&) {
            return {};
        }
    }
    return {};
}
