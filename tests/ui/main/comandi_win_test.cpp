// Every menu entry and every button that the running window has does its work.

#include "support/programma/prodotto.h"
#include "support/utilita/guida_win.h"
#include "support/windows/file_win.h"
#include "tests/aiuti/comandi_prova_win.h"
#include "tests/aiuti/proprietariaShell_win.h"
#include "tests/aiuti/testi.h"

#include <commctrl.h>

#include <functional>
#include <map>
#include <set>
#include <vector>

namespace {

// A file of this content at a path outside the test's folder, gone afterwards.
class FilePassante {
public:
    explicit FilePassante(std::wstring percorso) : percorso_(std::move(percorso)) {
        const HANDLE file = CreateFileW(percorso_.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                        FILE_ATTRIBUTE_NORMAL, nullptr);
        EXPECT_NE(file, INVALID_HANDLE_VALUE);
        CloseHandle(file);
    }
    FilePassante(const FilePassante&) = delete;
    FilePassante& operator=(const FilePassante&) = delete;
    ~FilePassante() { DeleteFileW(percorso_.c_str()); }

private:
    std::wstring percorso_;
};

class Comandi : public ProvaComandi {
protected:
    using Caso = std::function<void()>;

    void apreIlWeb(const std::wstring& dopoIlSito) {
        esegui_();
        EXPECT_EQ(registratore.attendi().obiettivo, std::wstring(prodotto::sito) + dopoIlSito);
    }
    void scriveAllAutore() {
        esegui_();
        EXPECT_EQ(registratore.attendi().obiettivo,
                  L"Mailto:" + std::wstring(prodotto::postaAutore) + L"?subject=Ostrelle%20v" +
                      prodotto::versione());
    }
    void mostraInformazioni() {
        bool spenta = false;
        {
            const QuandoAppare quando(L"#32770", L"", [&](HWND box) {
                EXPECT_NE(GetDlgItem(box, IDC_LBLPRODOTTO), nullptr);
                EXPECT_EQ(GetWindow(box, GW_OWNER), finestra.hwnd());
                spenta = IsWindowEnabled(finestra.hwnd()) == FALSE;
                PostMessageW(box, WM_COMMAND, IDCANCEL, 0);
            });
            esegui_();
        }
        EXPECT_TRUE(spenta); // modal
        EXPECT_TRUE(IsWindowEnabled(finestra.hwnd()));
    }
    void fannoNuovo() {
        finestra.ImpostaModificato();
        attendiDomanda(Risposta::No);
        esegui_();
        EXPECT_EQ(titoliElementi(), L"");
        EXPECT_FALSE(documento.modificato());
    }
    void apre() {
        const std::wstring feed =
            cartella.scrivi(L"aperto.xml", "<rss version=\"2.0\"><channel><title>t</title><item>"
                                           "<title>letto</title></item></channel></rss>");
        dialoghi.attendiApri(richiestaApri, feed);
        esegui_();
        EXPECT_EQ(titoliElementi(), L"letto;");
        EXPECT_EQ(titolo(), L"Ostrelle  [" + feed + L"]");
    }
    void salva(bool conNome) {
        const std::wstring primo = cartella.file(L"primo.xml");
        dialoghi.attendiSalva(richiestaSalva, primo);
        esegui_();
        ASSERT_TRUE(fileEsiste(primo));
        EXPECT_EQ(documento.percorso(), primo);
        // The second time only "save as" asks.
        DeleteFileW(primo.c_str());
        const std::wstring secondo = conNome ? cartella.file(L"secondo.xml") : primo;
        if (conNome) {
            dialoghi.attendiSalva(richiestaSalva, secondo);
        }
        esegui_();
        EXPECT_TRUE(fileEsiste(secondo));
        EXPECT_EQ(documento.percorso(), secondo);
    }

    // Runs a case for each name found; all cases must have been found.
    void prova(const std::vector<std::pair<std::wstring, Caso>>& trovati,
               const std::map<std::wstring, Caso>& casi) {
        std::set<std::wstring> visti;
        for (const auto& [nome, azione] : trovati) {
            SCOPED_TRACE(inUtf8(nome));
            const auto caso = casi.find(nome);
            if (caso == casi.end()) {
                ADD_FAILURE() << "no case knows it";
                continue;
            }
            EXPECT_TRUE(visti.insert(nome).second) << "twice";
            riparti();
            esegui_ = azione;
            caso->second();
        }
        for (const auto& [nome, caso] : casi) {
            EXPECT_TRUE(visti.contains(nome)) << "not there: " << inUtf8(nome);
        }
    }

    // What the entry or button of the present case does when it is used.
    Caso esegui_;
};

// The entries of a menu and of those in it, with the path of captions that leads there.
void raccogli(HMENU menu, const std::wstring& dove, HWND finestra,
              std::vector<std::pair<std::wstring, std::function<void()>>>& trovati) {
    for (int i = 0; i < GetMenuItemCount(menu); ++i) {
        MENUITEMINFOW voce{};
        std::array<wchar_t, 260> testo{};
        voce.cbSize = sizeof(voce);
        voce.fMask = MIIM_FTYPE | MIIM_ID | MIIM_STATE | MIIM_SUBMENU | MIIM_STRING;
        voce.dwTypeData = testo.data();
        voce.cch = static_cast<UINT>(testo.size());
        ASSERT_TRUE(GetMenuItemInfoW(menu, static_cast<UINT>(i), TRUE, &voce));
        if ((voce.fType & MFT_SEPARATOR) != 0) {
            continue;
        }
        const std::wstring nome = dove + testo.data();
        if (voce.hSubMenu != nullptr) {
            raccogli(voce.hSubMenu, nome + L" > ", finestra, trovati);
            continue;
        }
        EXPECT_EQ(voce.fState & MFS_DISABLED, 0U) << inUtf8(nome);
        trovati.emplace_back(nome, [finestra, id = voce.wID] {
            SendMessageW(finestra, WM_COMMAND, MAKEWPARAM(id, 0), 0);
            pompa();
        });
    }
}

} // namespace

TEST_F(Comandi, OgniVoceDiMenuFaIlSuoLavoro) {
    const std::wstring recente =
        cartella.scrivi(L"recente.xml", "<rss version=\"2.0\"><channel><title>t</title><item>"
                                        "<title>recente</title></item></channel></rss>");
    impostazioni.scrivi(L"url", L"murl1", recente);
    finestra.CaricaRecenti();
    std::vector<std::pair<std::wstring, Caso>> voci;
    raccogli(GetMenu(finestra.hwnd()), L"", finestra.hwnd(), voci);
    // The caption is in lower case.
    std::wstring voceRecente = recente;
    CharLowerBuffW(voceRecente.data(), static_cast<DWORD>(voceRecente.size()));

    const std::map<std::wstring, Caso> casi{
        {L"&File > &Nuovo", [&] { fannoNuovo(); }},
        {L"&File > &Apri", [&] { apre(); }},
        {L"&File > &Salva", [&] { salva(false); }},
        {L"&File > Sa&lva con nome...", [&] { salva(true); }},
        {L"&File > &Esporta come pagina Web...",
         [&] {
             dialoghi.attendiSalva(richiestaPagina, cartella.file(L"p.htm"));
             attendiDomandaPagina(Risposta::Si);
             esegui_();
             EXPECT_EQ(registratore.attendi().obiettivo, cartella.file(L"p.htm"));
         }},
        {L"&File > &File recenti > " + voceRecente,
         [&] {
             // The saves before it have pushed it down.
             impostazioni.valori.clear();
             impostazioni.scrivi(L"url", L"murl1", recente);
             finestra.CaricaRecenti();
             esegui_();
             EXPECT_EQ(titoliElementi(), L"recente;");
             EXPECT_EQ(documento.percorso(), voceRecente);
         }},
        {L"&File > &Chiudi",
         [&] {
             finestra.ImpostaModificato();
             attendiDomanda(Risposta::Annulla);
             esegui_();
             EXPECT_TRUE(IsWindow(finestra.hwnd()));
         }},
        {L"&Contenuto > &Aggiungi Feed",
         [&] {
             editor.attendi([](clsItemRss& elemento, DataOra data) {
                 elemento.sTitle(L"aggiunto");
                 return std::optional(data);
             });
             esegui_();
             EXPECT_EQ(titoliElementi(), L"uno;due;tre;aggiunto;");
         }},
        {L"&Contenuto > &Modifica Feed",
         [&] {
             editor.attendi([](clsItemRss& elemento, DataOra data) {
                 elemento.sTitle(elemento.sTitle() + L" nuovo");
                 return std::optional(data);
             });
             esegui_();
             EXPECT_EQ(titoliElementi(), L"uno;due nuovo;tre;");
         }},
        {L"&Contenuto > &Cancella Feed",
         [&] {
             messaggi.attendi(testi::domandaCancella, testi::attenzione, Icona::Domanda,
                              Pulsanti::SiNo, Risposta::Si);
             esegui_();
             EXPECT_EQ(titoliElementi(), L"uno;tre;");
         }},
        {L"&Contenuto > Visualizza come pagina web",
         [&] {
             esegui_();
             const std::wstring pagina = registratore.attendi().obiettivo;
             EXPECT_NE(leggiTutto(pagina).find("due"), std::string::npos);
         }},
        {L"&Contenuto > &Aggiorna Lista",
         [&] {
             finestra.RiempiGriglia(true);
             EXPECT_EQ(griglia().elemento(3), -1);
             esegui_();
             EXPECT_EQ(griglia().elemento(3), 2);
         }},
        {L"? > &Guida",
         [&] {
             const std::wstring base = fileGuida().substr(0, fileGuida().rfind(L'.'));
             const FilePassante htm(base + L".htm");
             esegui_();
             EXPECT_EQ(registratore.attendi().obiettivo, base + L".htm");
             const FilePassante hlp(base + L".hlp");
             esegui_();
             EXPECT_EQ(registratore.attendi().obiettivo, base + L".hlp");
         }},
        {L"? > Q&uorvex sul Web", [&] { apreIlWeb(L""); }},
        {L"? > G&uide on-line", [&] { apreIlWeb(L"/home/guide.htm"); }},
        {L"? > &Scrivi all'autore", [&] { scriveAllAutore(); }},
        {L"? > &Aggiornamento",
         [&] { apreIlWeb(L"/ostrelle.asp?ver=" + prodotto::versione(L'+')); }},
        {L"? > S&egnala Bug",
         [&] { apreIlWeb(L"/bug.asp?prg=Ostrelle%20v" + prodotto::versione()); }},
        {L"? > &Informazione sul prodotto...", [&] { mostraInformazioni(); }},
    };
    prova(voci, casi);
}

TEST_F(Comandi, CioCheSiApreAppartieneAllaFinestra) {
    const std::wstring base = fileGuida().substr(0, fileGuida().rfind(L'.'));
    const FilePassante htm(base + L".htm");
    riparti();
    const ProprietariaShell proprietarie;
    dialoghi.attendiSalva(richiestaPagina, cartella.file(L"p.htm"));
    attendiDomandaPagina(Risposta::Si);
    constexpr std::array comandi{mnGuida,           mniaco, mnguidaonline, mnautore,
                                 mnVerificaUpgrade, mnBug,  mnvisualhtml,  mnsalvahtm};
    for (const int comando : comandi) {
        finestra.esegui(comando);
        EXPECT_NE(registratore.attendi().obiettivo, L"") << comando;
    }
    EXPECT_EQ(ProprietariaShell::viste(), std::vector<HWND>(comandi.size(), finestra.hwnd()));
}

TEST_F(Comandi, OgniPulsanteDellaBarraFaIlSuoLavoro) {
    const HWND barra = GetDlgItem(finestra.hwnd(), IDC_TOOLBAR);
    std::vector<std::pair<std::wstring, Caso>> pulsanti;
    const auto quanti = static_cast<int>(SendMessageW(barra, TB_BUTTONCOUNT, 0, 0));
    for (int i = 0; i < quanti; ++i) {
        TBBUTTON pulsante{};
        ASSERT_TRUE(SendMessageW(barra, TB_GETBUTTON, static_cast<WPARAM>(i),
                                 reinterpret_cast<LPARAM>(&pulsante)));
        ASSERT_EQ(pulsante.fsState & TBSTATE_ENABLED, TBSTATE_ENABLED);
        // Its name is the tooltip that the window gives for it.
        NMTTDISPINFOW domanda{};
        domanda.hdr.code = TTN_GETDISPINFOW;
        domanda.hdr.idFrom = static_cast<UINT_PTR>(pulsante.idCommand);
        SendMessageW(finestra.hwnd(), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&domanda));
        ASSERT_NE(domanda.lpszText, nullptr) << i;
        pulsanti.emplace_back(domanda.lpszText, [barra, i] {
            RECT r{};
            SendMessageW(barra, TB_GETITEMRECT, static_cast<WPARAM>(i),
                         reinterpret_cast<LPARAM>(&r));
            clic(barra, {(r.left + r.right) / 2, (r.top + r.bottom) / 2});
        });
    }
    const std::map<std::wstring, Caso> casi{
        {L"Crea un nuovo Feed RSS", [&] { fannoNuovo(); }},
        {L"Apre il Feed RSS per la modifica", [&] { apre(); }},
        {L"Salva il Feed RSS", [&] { salva(false); }},
        {L"Invia un email all'autore...", [&] { scriveAllAutore(); }},
        {L"Informazioni sul prodotto...", [&] { mostraInformazioni(); }},
    };
    prova(pulsanti, casi);
}
