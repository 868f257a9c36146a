// What else the monkey does: takes back and does again, cuts and pastes, drops files, searches,
// answers the strip of notices.

#include "document/elementi.h"
#include "res/risorse.h"
#include "support/testi/testo.h"
#include "tests/aiuti/avvisi_prova_win.h"
#include "tests/aiuti/lascito_win.h"
#include "tests/aiuti/scimmia_win.h"

#include <dlgs.h>

#include <algorithm>
#include <utility>

namespace {

// Of the letters that the monkey writes; the search passes over case and accents.
std::wstring piegato(std::wstring_view testo) {
    constexpr std::wstring_view accentate = L"àèìòù";
    constexpr std::wstring_view piane = L"aeiou";
    std::wstring piano = minuscolo(testo);
    for (wchar_t& c : piano) {
        if (const auto dove = accentate.find(c); dove != std::wstring_view::npos) {
            c = piane[dove];
        }
    }
    return piano;
}

} // namespace

void Scimmia::scalda() {
    static_cast<void>(lasciaFile(finestra_.hwnd(), {perdite()}));
    pompa();
    if (!AvvisiProva(finestra_).inVista()) {
        segnala("nothing told of what a save drops");
    }
    premi(VK_F6);
    premi(VK_F6);
    cerca();
    const HWND lingua = GetDlgItem(campi_.hwnd(), IDC_CBOLINGUA);
    for (const BOOL aperta : {TRUE, FALSE}) {
        SendMessageW(lingua, CB_SHOWDROPDOWN, static_cast<WPARAM>(aperta), 0);
        pompa();
    }
    for (const int dpi : {120, 144, 192}) {
        portaA(dpi, {0, 0, 1400, 1000});
    }
    riposa();
}

void Scimmia::annullaORipete() {
    fatto_ = "Ctrl+Z";
    SetFocus(griglia().lista());
    if (caso(3) > 0) {
        premi('Z', {VK_CONTROL});
        if (posto_ > 0) {
            ripercorre(posto_ - 1);
        }
        return;
    }
    fatto_ = "Ctrl+Y";
    if (caso(2) == 0) {
        premi('Y', {VK_CONTROL});
    } else {
        premi('Z', {VK_CONTROL, VK_SHIFT});
    }
    if (posto_ + 1 < storia_.size()) {
        ripercorre(posto_ + 1);
    }
}

void Scimmia::ripercorre(std::size_t posto) {
    posto_ = posto;
    modello_ = storia_[posto_];
    cambiati_ = true;
    ++conti_.annullati;
}

void Scimmia::usaAppunti() {
    SetFocus(griglia().lista());
    const int i = scelto();
    if (appunti_ && GetClipboardSequenceNumber() != numeroAppunti_) {
        appunti_.reset(); // a field cut or copied a text
    }
    const int come = caso(4);
    if (come < 2) {
        const bool taglia = come == 0;
        fatto_ = taglia ? "Ctrl+X" : "Ctrl+C";
        premi(taglia ? 'X' : 'C', {VK_CONTROL});
        if (i >= 0) {
            const auto dove = modello_.begin() + i;
            appunti_ = {*dove, taglia};
            if (taglia) {
                modello_.erase(dove);
            }
        }
    } else {
        fatto_ = "Ctrl+V";
        premi('V', {VK_CONTROL});
        if (appunti_) {
            auto& [elemento, tagliato] = *appunti_;
            Elemento nuovo = elemento;
            const bool presente =
                std::ranges::any_of(modello_, [&](const Elemento& e) { return e[5] == nuovo[5]; });
            if (!tagliato || presente) {
                nuovo[5].clear();
            }
            tagliato = false;
            modello_.insert(i < 0 ? modello_.end() : modello_.begin() + i + 1, std::move(nuovo));
            ++conti_.incollati;
        }
    }
    numeroAppunti_ = GetClipboardSequenceNumber();
}

void Scimmia::lascia() {
    const bool mancante = caso(6) == 0;
    lascia(mancante ? cartella_.file(L"manca.xml") : percorsoDaLeggere());
}

void Scimmia::lascia(std::wstring percorso) {
    fatto_ = "drop";
    scelto_ = std::move(percorso);
    std::vector<std::wstring> percorsi{scelto_};
    for (int i = caso(3); i > 0; --i) {
        percorsi.push_back(rovinato_);
    }
    const bool esiste = GetFileAttributesW(scelto_.c_str()) != INVALID_FILE_ATTRIBUTES;
    const bool attesa = daChiedere();
    static_cast<void>(lasciaFile(finestra_.hwnd(), percorsi));
    pompa();
    controllaDomanda(attesa);
    if (esiste) {
        ++conti_.lasciati;
        aperto();
    }
}

std::optional<int> Scimmia::atteso(bool avanti) const {
    const int quanti = static_cast<int>(modello_.size());
    const int da = scelto();
    const std::wstring testo = esatto_ ? cercato_ : piegato(cercato_);
    for (int passo = 1; passo <= quanti; ++passo) {
        const int prima = da < 0 ? (avanti ? -1 : quanti) : da;
        const int i = ((prima + (avanti ? passo : -passo)) % quanti + quanti) % quanti;
        for (const std::size_t campo : {0, 1, 2, 3}) {
            const std::wstring& suo = modello_[static_cast<std::size_t>(i)][campo];
            if ((esatto_ ? suo : piegato(suo)).find(testo) != std::wstring::npos) {
                return i;
            }
        }
    }
    return std::nullopt;
}

void Scimmia::controllaTrovato(std::optional<int> voluto, int prima) {
    const int dopo = scelto();
    if (dopo != voluto.value_or(prima)) {
        segnala("the search for " + inUtf8(cercato_) + " came to " + std::to_string(dopo) +
                " instead of " + std::to_string(voluto.value_or(prima)));
    }
    conti_.trovati += voluto ? 1 : 0;
}

void Scimmia::cerca() {
    if (!cercato_.empty() && caso(2) == 0) {
        const bool avanti = caso(2) == 0;
        fatto_ = avanti ? "F3" : "Shift+F3";
        const int prima = scelto();
        const auto voluto = atteso(avanti);
        avanti ? premi(VK_F3) : premi(VK_F3, {VK_SHIFT});
        controllaTrovato(voluto, prima);
        return;
    }
    fatto_ = "Ctrl+F";
    cerca_ = true;
    premi('F', {VK_CONTROL});
    const HWND dialogo = attendiDialogo();
    if (dialogo == nullptr) {
        segnala("no find dialog");
        return;
    }
    // Digits are in most links.
    cercato_ = caso(2) == 0 ? std::to_wstring(caso(100)) : testoLettere(2);
    // Its accents are the dialog's affair where the case counts: letters that have none.
    esatto_ = caso(3) == 0 && piegato(cercato_) == minuscolo(cercato_);
    const bool avanti = caso(3) > 0;
    SetWindowTextW(GetDlgItem(dialogo, edt1), cercato_.c_str());
    CheckDlgButton(dialogo, chx2, esatto_ ? BST_CHECKED : BST_UNCHECKED);
    CheckRadioButton(dialogo, rad1, rad2, avanti ? rad2 : rad1);
    for (int volte = 1 + caso(3); volte > 0; --volte) {
        const int prima = scelto();
        const auto voluto = atteso(avanti);
        SendMessageW(dialogo, WM_COMMAND, IDOK, 0);
        pompa();
        controllaTrovato(voluto, prima);
        if (caso(8) == 0) {
            cambiaMonitor();
        }
    }
    if (testoDi(GetDlgItem(dialogo, edt1)) != cercato_ ||
        (IsDlgButtonChecked(dialogo, chx2) == BST_CHECKED) != esatto_ ||
        (IsDlgButtonChecked(dialogo, rad2) == BST_CHECKED) != avanti) {
        segnala("the find dialog holds something else");
    }
    SendMessageW(dialogo, WM_COMMAND, IDCANCEL, 0);
    pompa();
    cerca_ = false;
}

void Scimmia::risponde() {
    const AvvisiProva avvisi(finestra_);
    if (!avvisi.inVista() && caso(4) == 0) {
        lascia(perdite());
    }
    fatto_ = "strip";
    if (!avvisi.inVista()) {
        return;
    }
    ++conti_.avvisi;
    const HWND copie = avvisi.pulsante(L"Apri le copie");
    switch (caso(5)) {
    case 0:
        SendMessageW(avvisi.chiudi(), BM_CLICK, 0, 0);
        break;
    case 1:
        if (copie != nullptr) {
            SendMessageW(copie, BM_CLICK, 0, 0);
            static_cast<void>(registratore_.attendi());
        }
        break;
    case 2:
        premi(VK_F6);
        premi(VK_ESCAPE);
        break;
    default:
        premi(VK_F6);
        premi(VK_TAB);
        premi(VK_F6);
        break;
    }
    pompa();
}
