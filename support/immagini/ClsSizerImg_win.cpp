#include "support/immagini/ClsSizerImg.h"

#include "support/errori/errore.h"
#include "support/servizi/dialoghiFile.h"
#include "support/testi/numeri.h"
#include "support/testi/testo.h"
#include "support/windows/file_win.h"

namespace {

constexpr std::int32_t senzaImmagine = 8874;
constexpr std::int32_t senzaDialogo = 8875;
constexpr std::int32_t fileAssente = 8876;
constexpr std::int32_t oggettoNonImpostato = 91;

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
            throw Errore(fileAssente, maiuscolo(file) + L": file non trovato.");
        }
    } else {
        if (objDlg_ == nullptr) {
            throw Errore(senzaDialogo, L"E' necessario valorizzare la proprietà objDlg.");
        }
        file = objDlg_->apri({L"File immagine (*.jpg;*.gif;*.jpeg)|*.jpg;*.gif;*.jpeg|"
                              L"Tutti i file (*.*)|*.*",
                              4100, L""});
    }
    if (objImg_ == nullptr) {
        throw Errore(senzaImmagine, L"E' necessario valorizzare la proprietà objImg.");
    }
    objImg_->Visible(false);
    objImg_->Stretch(false);
    const ImmagineCaricata caricata(*objImg_, file);
    if (objForm_ == nullptr) {
        solleva(oggettoNonImpostato);
    }
    const std::int32_t altezza = aInt32(objForm_->pixelVerticali(objImg_->Height()));
    nWidth_ = aInt32(objForm_->pixelOrizzontali(objImg_->Width()));
    nHeight_ = altezza;
}
