#include "support/immagini/ClsSizerImg.h"

#include "support/errori/errore.h"
#include "support/servizi/dialoghiFile.h"
#include "support/testi/numeri.h"
#include "support/testi/testo.h"
#include "support/windows/file_win.h"

namespace {

const RichiestaFile DlgImg{
    L"File immagine (*.jpg;*.gif;*.jpeg)|*.jpg;*.gif;*.jpeg|Tutti i file (*.*)|*.*", opzioniApri,
    L""};

// Empties the control when the measuring is over, however it ends.
class ImmagineCaricata {
public:
    ImmagineCaricata(ControlloImmagine& controllo, const std::wstring& percorso)
        : controllo_(controllo) {
        controllo_.carica(percorso);
    }
    ImmagineCaricata(const ImmagineCaricata&) = delete;
    ImmagineCaricata& operator=(const ImmagineCaricata&) = delete;
    ~ImmagineCaricata() { controllo_.svuota(); }

private:
    ControlloImmagine& controllo_;
};

} // namespace

void ClsSizerImg::LeggiImg(const std::wstring& percorso) {
    std::wstring file = percorso;
    if (!file.empty()) {
        if (!fileEsiste(file)) {
            solleva(errori::immagineMancante, maiuscolo(file));
        }
    } else {
        if (objDlg_ == nullptr) {
            solleva(errori::senzaDialogo);
        }
        file = objDlg_->apri(DlgImg);
    }
    if (objImg_ == nullptr) {
        solleva(errori::senzaImmagine);
    }
    objImg_->Visible(false);
    objImg_->Stretch(false);
    const ImmagineCaricata caricata(*objImg_, file);
    if (objForm_ == nullptr) {
        solleva(errori::oggettoNonImpostato);
    }
    const std::int32_t altezza = aInt32(objForm_->pixelVerticali(objImg_->Height()));
    nWidth_ = aInt32(objForm_->pixelOrizzontali(objImg_->Width()));
    nHeight_ = altezza;
}
