// What the monkey answers, and what the items must be afterwards.

#include "tests/aiuti/scimmia_win.h"

#include "document/clsItemRss.h"
#include "document/elementi.h"
#include "res/risorse.h"
#include "support/errori/errore.h"
#include "support/testi/testo.h"
#include "tests/aiuti/attesa_win.h"
#include "tests/aiuti/testi.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>

namespace {

constexpr std::array dateElementi{L"Tue, 15 Nov 2005 10:00:00 +0100",
                                  L"Wed, 16 Nov 2005 23:59:59 +0000", L"ieri"};
// Of Latin 1: beyond it the file's texts are written as references, and read back as these.
constexpr std::wstring_view lettere = L"abcxyzàèìòùABC<&>\"'0123456789";
constexpr std::string_view feedConPerdite =
    "<rss version='2.0'><channel><title>c</title><ttl>5</ttl><category>x</category><item>"
    "<title>uno</title><link>https://e.example/1</link><description>d</description>"
    "<author>a@e.example</author><pubDate>ieri</pubDate><guid>ieri 1</guid>"
    "<comments>y</comments></item></channel></rss>";
constexpr int passiFraSorveglianze = 10; // milliseconds

// Whose watch the timer keeps; a timer's procedure has no room for it.
Scimmia*& viva() {
    static Scimmia* scimmia = nullptr;
    return scimmia;
}

bool diClasse(HWND finestra, std::wstring_view classe) {
    std::array<wchar_t, 64> nome{};
    GetClassNameW(finestra, nome.data(), static_cast<int>(nome.size()));
    return classe == nome.data();
}

// A visible top-level window of this thread and class, or none.
HWND sopra(std::wstring_view classe) {
    struct Ricerca {
        std::wstring_view classe;
        HWND trovata = nullptr;
    } ricerca{classe};
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND finestra, LPARAM l) -> BOOL {
            auto& r = *reinterpret_cast<Ricerca*>(l);
            if (IsWindowVisible(finestra) != FALSE && diClasse(finestra, r.classe)) {
                r.trovata = finestra;
            }
            return r.trovata == nullptr ? TRUE : FALSE;
        },
        reinterpret_cast<LPARAM>(&ricerca));
    return ricerca.trovata;
}

} // namespace

Scimmia::Scimmia(std::uint32_t seme)
    : generatore_(seme), rovinato_(cartella_.scrivi(L"rovinato.xml", "<rss><channel>")),
      conPerdite_(cartella_.file(L"perdite.xml")),
      timer_(SetTimer(nullptr, 0, passiFraSorveglianze, &sorveglia)) {
    viva() = this;
    // What opens a folder of copies.
    registratore_.protocollo(L"Folder");
    finestra_.apri(SW_SHOWNORMAL);
    portaAvanti(finestra_.hwnd());
    ricomincia();
}

Scimmia::~Scimmia() {
    KillTimer(nullptr, timer_);
    viva() = nullptr;
}

void Scimmia::segnala(std::string guasto) {
    if (guasto_.empty()) {
        guasto_ = std::move(guasto);
    }
}

int Scimmia::caso(int quanti) {
    // Not a distribution: the same numbers with every library.
    return static_cast<int>(generatore_() % static_cast<std::uint32_t>(quanti));
}

std::wstring Scimmia::testoCaso(int massimo) {
    std::wstring testo;
    for (int i = 1 + caso(massimo); i > 0; --i) {
        testo += lettere[static_cast<std::size_t>(caso(static_cast<int>(lettere.size())))];
    }
    return testo;
}

// What the window asks.

Risposta Scimmia::mostra(const std::wstring& testo, const std::wstring& titolo, Icona /*icona*/,
                         Pulsanti pulsanti) {
    if (pulsanti == Pulsanti::Ok) {
        const bool noto = titolo == testi::attenzione || titolo.starts_with(testi::errore);
        if (!noto || testo.empty()) {
            segnala("unknown message: " + inUtf8(titolo) + ": " + inUtf8(testo));
        }
        return Risposta::Ok;
    }
    if (testo == testi::domandaApri) {
        return Risposta::No;
    }
    if (testo == testi::domandaCancella) {
        if (caso(4) == 0) {
            return Risposta::No;
        }
        ricorda();
        const int i = scelto();
        if (i < 0) {
            segnala("deletes what is no item");
            return Risposta::No;
        }
        modello_.erase(modello_.begin() + i);
        ++conti_.cancellati;
        return Risposta::Si;
    }
    constexpr std::array risposte{Risposta::Si, Risposta::No, Risposta::Annulla};
    domanda_ = chiude_ ? Risposta::Annulla : risposte[static_cast<std::size_t>(caso(3))];
    return *domanda_;
}

const std::wstring& Scimmia::perdite() {
    static_cast<void>(cartella_.scrivi(L"perdite.xml", feedConPerdite));
    salvati_[minuscolo(conPerdite_)] = {
        {L"uno", L"https://e.example/1", L"d", L"a@e.example", L"ieri", L"ieri 1"}};
    return conPerdite_;
}

std::wstring Scimmia::percorsoDaLeggere() {
    const int quale = caso(6);
    return quale == 0   ? rovinato_
           : quale == 1 ? perdite()
                        : cartella_.file(L"Feed " + std::to_wstring(caso(4)) + L".xml");
}

std::wstring Scimmia::testoLettere(int massimo) {
    std::wstring testo = testoCaso(massimo);
    std::erase_if(testo, [](wchar_t c) { return c < L'a'; });
    return testo.empty() ? L"a" : testo;
}

std::wstring Scimmia::percorsoCaso(bool salvataggio) {
    const int quale = caso(10);
    if (quale == 0) {
        solleva(errori::dialogoAnnullato);
    }
    if (quale == 1) {
        return cartella_.file(L"manca\\") + L"n.xml";
    }
    if (!salvataggio && quale < 4) {
        return quale == 2 ? rovinato_ : perdite();
    }
    return cartella_.file(L"Feed " + std::to_wstring(caso(4)) + L".xml");
}

std::wstring Scimmia::apri(const RichiestaFile& richiesta) {
    if (richiesta.estensione.empty() && richiesta.filtro.find(L".xml") == std::wstring::npos) {
        return rovinato_; // an image that is none
    }
    return scelto_ = percorsoCaso(false);
}

std::wstring Scimmia::salva(const RichiestaFile& richiesta) {
    if (richiesta.estensione == L".htm") {
        return cartella_.file(L"pagina.htm");
    }
    return percorsoCaso(true);
}

void Scimmia::scrivi(std::wstring_view sezione, std::wstring_view chiave,
                     std::wstring_view valore) {
    valori_.scrivi(sezione, chiave, valore);
    if (chiave == L"murl1") {
        // A save has succeeded: another reader than the program's looks at it.
        controllaFile(std::wstring(valore));
        salvati_[std::wstring(valore)] = modello_;
        salvato_ = true;
        cambiati_ = false;
        canale_ = testiCanale();
        ++conti_.salvati;
    }
}

std::optional<DataOra> Scimmia::modifica(clsItemRss& elemento, DataOra ultimaData,
                                         const TestiCampi* /*bozza*/) {
    if (nellEditor_) {
        segnala("a second editor");
        return std::nullopt;
    }
    nellEditor_ = true;
    // A second command while the editor is open does nothing.
    constexpr std::array comandi{mnaddFeed, mnEditFeed, mnDelFeed, mnNuovo, mnApri, spostaGiu};
    finestra_.esegui(comandi[static_cast<std::size_t>(caso(static_cast<int>(comandi.size())))]);
    nellEditor_ = false;

    const bool aggiunge = elemento.sTitle().empty();
    const int i = aggiunge ? static_cast<int>(modello_.size()) : scelto();
    if (!aggiunge && (i < 0 || elemento.sTitle() != modello_[static_cast<std::size_t>(i)][0] ||
                      elemento.sDescription() != modello_[static_cast<std::size_t>(i)][2])) {
        segnala("the editor gets another item than the one selected");
        return std::nullopt;
    }
    if (caso(4) == 0) {
        return std::nullopt;
    }
    ricorda();
    Elemento nuovo{
        testoCaso(30),  L"https://e.example/" + std::to_wstring(caso(1000)), testoCaso(200),
        L"a@e.example", dateElementi[static_cast<std::size_t>(caso(3))],     L""};
    elemento.sTitle(nuovo[0]);
    elemento.sLink(nuovo[1]);
    elemento.sDescription(nuovo[2]);
    elemento.sAuthor(nuovo[3]);
    elemento.sPubDate(nuovo[4]);
    if (aggiunge) {
        modello_.push_back(std::move(nuovo)); // its guid is looked up when it has one
        ++conti_.aggiunti;
    } else {
        auto& vecchio = modello_[static_cast<std::size_t>(i)];
        nuovo[5] = vecchio[5];
        vecchio = std::move(nuovo);
        ++conti_.modificati;
    }
    return ultimaData;
}

void Scimmia::passo() {
    domanda_.reset();
    salvato_ = false;
    scelto_.clear();
    voceMenu_ = -1;
    battiti_ = 0;
    fatto_.clear();
    trascinato_ = false;
    portaFuoco();
    switch (caso(18)) {
    case 0:
    case 1:
    case 2:
        tasto();
        break;
    case 3:
        scriveTesto();
        break;
    case 4:
    case 5:
        clicca();
        break;
    case 6:
        trascinaInUnCampo();
        break;
    case 7:
    case 8:
        trascinaInGriglia();
        break;
    case 9:
        menuGriglia();
        break;
    case 10:
        caso(4) == 0 ? ridimensiona() : caso(8) == 0 ? chiudeEAnnulla() : comando();
        break;
    case 11:
        comando();
        break;
    case 12:
    case 13:
        annullaORipete();
        break;
    case 14:
        usaAppunti();
        break;
    case 15:
        caso(3) == 0 ? lascia() : risponde();
        break;
    case 16:
        cambiaMonitor();
        break;
    default:
        cerca();
        break;
    }
    confronta();
    ricorda();
}

void Scimmia::riposa() {
    ReleaseCapture();
    // The toolbar makes its tooltip when it first needs it.
    SendMessageW(GetDlgItem(finestra_.hwnd(), IDC_TOOLBAR), TB_GETTOOLTIPS, 0, 0);
    DateTime_CloseMonthCal(GetDlgItem(campi_.hwnd(), IDC_TXTDATA));
    premi(VK_ESCAPE);
    SetFocus(GetDlgItem(campi_.hwnd(), IDC_TXTTITOLO));
    portaA(96, {0, 0, 1000, 700});
    finestra_.NuovoDocumento();
    modello_.clear();
    pompa();
    ricomincia();
}

HWND Scimmia::attendiDialogo() {
    HWND dialogo = nullptr;
    static_cast<void>(attendi([&] { return (dialogo = sopra(L"#32770")) != nullptr; }));
    return dialogo;
}

// Inside the loops of menus and dialogs.

void CALLBACK Scimmia::sorveglia(HWND, UINT, UINT_PTR, DWORD) noexcept {
    if (viva() != nullptr) {
        viva()->sorveglia();
    }
}

void Scimmia::sorveglia() {
    if (cerca_) {
        return;
    }
    if (const HWND dialogo = sopra(L"#32770")) {
        PostMessageW(dialogo, WM_COMMAND, IDCANCEL, 0);
        return;
    }
    GUITHREADINFO stato{};
    stato.cbSize = sizeof(stato);
    if (GetGUIThreadInfo(GetCurrentThreadId(), &stato) == FALSE ||
        (stato.flags & GUI_INMENUMODE) == 0) {
        return;
    }
    const HWND menu = sopra(L"#32768");
    if (voceMenu_ < 0 || menu == nullptr || ++battiti_ > 20) {
        EndMenu();
        return;
    }
    if (battiti_ == 1) {
        for (int i = 0; i <= voceMenu_; ++i) {
            PostMessageW(menu, WM_KEYDOWN, VK_DOWN, 0);
        }
        PostMessageW(menu, WM_KEYDOWN, VK_RETURN, 0);
    }
}
