#include "ui/main/campiCanale_win.h"

#include "support/errori/errore.h"
#include "support/errori/trappola.h"
#include "support/testi/numeri.h"
#include "support/testi/testo.h"

#include "res/risorse.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>
#include <utility>

namespace {

constexpr std::array<int, 3> campiImmagine{IDC_TXTLOGO, IDC_TXTURL, IDC_TXTLINKIMG};

constexpr double massimoPixel = 10000;

} // namespace

bool CampiCanale::inizializza() {
    // The name of the dialog for assistive programs: the frame that shows it is no parent of the
    // fields.
    SetWindowTextW(hwnd(), std::wstring(rifila(testoFinestra(controllo(IDC_FRADATI)))).c_str());
    for (std::size_t i = 0; i < testi_.size(); ++i) {
        if (controlliCanale[i].testo()) {
            testi_[i] = CampoTesto(controllo(controlliCanale[i].id));
        }
    }
    // The user may type any other code.
    ComboBox_AddString(controllo(IDC_CBOLINGUA), L"it");
    txtData_ = SelettoreData(controllo(IDC_TXTDATA), SelettoreData::Parte::Data);
    txtOrario_ = SelettoreData(controllo(IDC_TXTORARIO), SelettoreData::Parte::Ora);
    for (KOInputNumerico* const numero : {&txtLarghezza(), &txtAltezza()}) {
        numero->CifreDecimali(0);
        numero->Massimo(massimoPixel);
        numero->osserva(this);
    }
    return false;
}

void CampiCanale::suggerisci() {
    if (!std::exchange(suggeriti_, true)) {
        suggerimenti_.testo(controllo(IDC_LBLURL), L"URL (Percorso)");
        suggerimenti_.testo(controllo(IDC_LBLLARGHEZZA), L"Larghezza in pixels");
        suggerimenti_.testo(controllo(IDC_LBLALTEZZA), L"Altezza in pixels");
    }
}

INT_PTR CampiCanale::messaggio(UINT msg, WPARAM wParam, LPARAM lParam) {
    if (msg == WM_COMMAND) {
        const int id = LOWORD(wParam);
        const UINT codice = HIWORD(wParam);
        if (id == IDC_CMDGETSIZE && codice == BN_CLICKED) {
            finestra_.cmdGetSize_Click();
            return TRUE;
        }
        const std::size_t quale = posto(id);
        if (quale == testi_.size()) {
            return FALSE;
        }
        CampoTesto& testo = testi_[quale];
        const bool combo = id == IDC_CBOLINGUA;
        if ((codice == (combo ? CBN_EDITCHANGE : EN_CHANGE) && testo.cambiato()) ||
            (combo && codice == CBN_SELCHANGE && testo.sceltoDiverso())) {
            documento_.campiModificati();
        }
        return TRUE;
    }
    if (msg == WM_SETCURSOR) {
        // A control asks its parent first.
        suggerisci();
    }
    if (msg == WM_NOTIFY) {
        const auto* const notifica = reinterpret_cast<const NMHDR*>(lParam);
        if (notifica->code == DTN_DATETIMECHANGE) {
            SelettoreData& selettore = notifica->idFrom == IDC_TXTDATA ? txtData_ : txtOrario_;
            if (selettore.cambiato()) {
                documento_.campiModificati();
            }
            return TRUE;
        }
    }
    return FALSE;
}

void CampiCanale::CambioValore(KOInputNumerico& /*controllo*/, double /*valore*/) {
    documento_.campiModificati();
}

std::size_t CampiCanale::posto(int id) noexcept {
    const auto* const trovato = std::ranges::find(controlliCanale, id, &ControlloCanale::id);
    return static_cast<std::size_t>(trovato - controlliCanale.begin());
}

std::wstring CampiCanale::testo(int id) const {
    return testi_[posto(id)].testo();
}

void CampiCanale::testo(int id, std::wstring_view valore) {
    if (testi_[posto(id)].testo(valore)) {
        documento_.campiModificati();
    }
}

DataOra CampiCanale::dataOra() const {
    return combina(txtData_, txtOrario_);
}

void CampiCanale::dataOra(DataOra valore) {
    for (SelettoreData* const selettore : {&txtData_, &txtOrario_}) {
        if (selettore->valore(valore)) {
            documento_.campiModificati();
        }
    }
}

TestiCampi CampiCanale::testi() const {
    TestiCampi valori;
    for (const ControlloCanale& controllo : controlliCanale) {
        valori.push_back(controllo.testo() ? testo(controllo.id) : comeTesto(dataOra()));
    }
    for (const KOInputNumerico* const numero : {&txtLarghezza(), &txtAltezza()}) {
        valori.push_back(std::to_wstring(aInt32(numero->Valore())));
    }
    return valori;
}

void CampiCanale::testi(const TestiCampi& valori) noexcept {
    std::size_t i = 0;
    const auto prossimo = [&](auto assegna) {
        if (i < valori.size()) {
            ignorando([&] { assegna(valori[i]); });
        }
        ++i;
    };
    for (const ControlloCanale& controllo : controlliCanale) {
        prossimo([&](const std::wstring& valore) {
            if (controllo.testo()) {
                testo(controllo.id, valore);
            } else if (const auto data = dataDaTesto(valore)) {
                dataOra(*data);
            }
        });
    }
    for (KOInputNumerico* const numero : {&txtLarghezza(), &txtAltezza()}) {
        prossimo([&](const std::wstring& valore) { numero->Valore(valoreIniziale(valore)); });
    }
}

void CampiCanale::conferma() {
    KOInputNumerico::lasciaQuelloColFuoco();
    txtData_.conferma();
    txtOrario_.conferma();
}

KOInputNumerico& CampiCanale::txtLarghezza() const {
    return *Finestra::da<KOInputNumerico>(controllo(IDC_TXTLARGHEZZA));
}

KOInputNumerico& CampiCanale::txtAltezza() const {
    return *Finestra::da<KOInputNumerico>(controllo(IDC_TXTALTEZZA));
}

void CampiCanale::dimensioni(std::int32_t larghezza, std::int32_t altezza) {
    if (altezza < txtAltezza().Minimo() || altezza > txtAltezza().Massimo()) {
        solleva(errori::valoreProprieta);
    }
    txtLarghezza().Valore(larghezza);
    txtAltezza().Valore(altezza);
}

bool CampiCanale::vuoti() const {
    return std::ranges::all_of(controlliCanale, [this](const ControlloCanale& controllo) {
        return !controllo.testo() || rifila(testo(controllo.id)).empty();
    });
}

void CampiCanale::Svuota(DataOra adesso) noexcept {
    for (const ControlloCanale& controllo : controlliCanale) {
        if (controllo.testo()) {
            ignorando([&] { testo(controllo.id, L""); });
        }
    }
    Tag(L"");
    for (SelettoreData* const selettore : {&txtData_, &txtOrario_}) {
        ignorando([&] {
            if (selettore->valore(adesso)) {
                documento_.campiModificati();
            }
        });
    }
    ignorando([&] { txtLarghezza().Valore(0); });
    ignorando([&] { txtAltezza().Valore(0); });
}

RECT CampiCanale::rettangolo(HWND campo) const noexcept {
    RECT r{};
    GetWindowRect(campo, &r);
    MapWindowPoints(nullptr, hwnd(), reinterpret_cast<POINT*>(&r), 2);
    return r;
}

void CampiCanale::misura(MisureFinestra& misure, Dpi dpi) const {
    const RECT logo = rettangolo(controllo(IDC_TXTLOGO));
    const RECT titolo = rettangolo(controllo(IDC_TXTTITOLO));
    const RECT numero = rettangolo(controllo(IDC_TXTLARGHEZZA));
    const RECT pulsante = rettangolo(controllo(IDC_CMDGETSIZE));
    RECT dati{};
    GetClientRect(hwnd(), &dati);
    misure.sinistraLogo = dpi.x.twips(logo.left);
    misure.larghezzaTitolo = dpi.x.twips(titolo.right - titolo.left);
    misure.altoLarghezza = dpi.y.twips(numero.top);
    misure.altezzaGetSize = dpi.y.twips(pulsante.bottom - pulsante.top);
    misure.altezzaDati = dpi.y.twips(dati.bottom);
    misure.larghezzaDati = dpi.x.twips(dati.right);
}

void CampiCanale::disponi(const Disposizione& disposizione, Dpi dpi) {
    const auto pixelX = [&](double twips) { return dpi.x.pixelTroncati(twips); };
    const auto pixelY = [&](double twips) { return dpi.y.pixelTroncati(twips); };
    constexpr UINT fermo = SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS;
    if (const auto& r = disposizione.fraDati) {
        SetWindowPos(hwnd(), nullptr, pixelX(r->sinistra), pixelY(r->alto), pixelX(r->larghezza),
                     pixelY(r->altezza), fermo);
        SetWindowPos(controllo(IDC_FRADATI), nullptr, 0, 0, pixelX(r->larghezza),
                     pixelY(r->altezza), fermo);
    }
    if (disposizione.larghezzaImmagine) {
        for (const int id : campiImmagine) {
            const HWND campo = controllo(id);
            const RECT r = rettangolo(campo);
            SetWindowPos(campo, nullptr, 0, 0, pixelX(*disposizione.larghezzaImmagine),
                         r.bottom - r.top, fermo | SWP_NOMOVE);
        }
    }
    if (const auto& r = disposizione.cmdGetSize) {
        // From the window's pixels to the frame's: twips would be rounded once more.
        POINT sinistra{pixelX(r->sinistra), 0};
        MapWindowPoints(GetParent(hwnd()), hwnd(), &sinistra, 1);
        SetWindowPos(controllo(IDC_CMDGETSIZE), nullptr, sinistra.x, pixelY(r->alto),
                     pixelX(r->larghezza), pixelY(r->altezza), fermo);
    }
}
