#include "ui/main/comandi.h"

#include "ui/main/finestraPrincipale_win.h"
#include "ui/main/partiComandi_win.h"

#include <windows.h>

#include <algorithm>
#include <array>

namespace {

using Parti = PartiComandi;

constexpr RigaComando separatore(Menu menu) noexcept {
    return {.menu = menu};
}

constexpr Tasto controllo(wchar_t lettera) noexcept {
    return {static_cast<std::uint16_t>(lettera), Tasto::Controllo};
}
constexpr Tasto inGriglia(std::uint16_t codice, Tasto::Modificatore con = Tasto::Nessuno) noexcept {
    return {codice, con, Tasto::Griglia};
}

constexpr std::array tabella{
    RigaComando{.comando = mnNuovo,
                .menu = Menu::mnFile,
                .didascalia = L"&Nuovo",
                .tasto = controllo(L'N'),
                .barra = {L"new", L"Crea un nuovo Feed RSS", 0},
                .esegui = [](Parti& p, int) { p.documento.mnNuovo_Click(); }},
    RigaComando{.comando = mnApri,
                .menu = Menu::mnFile,
                .didascalia = L"&Apri",
                .tasto = controllo(L'O'),
                .barra = {L"open", L"Apre il Feed RSS per la modifica", 1},
                .esegui = [](Parti& p, int) { p.documento.mnApri_Click(); }},
    separatore(Menu::mnFile),
    RigaComando{.comando = mnsalva,
                .menu = Menu::mnFile,
                .didascalia = L"&Salva",
                .tasto = controllo(L'S'),
                .barra = {L"save", L"Salva il Feed RSS", 2},
                .esegui = [](Parti& p, int) { p.documento.mnsalva_Click(); }},
    RigaComando{.comando = mnSalvaCon,
                .menu = Menu::mnFile,
                .didascalia = L"Sa&lva con nome...",
                .esegui = [](Parti& p, int) { p.documento.mnSalvaCon_Click(); }},
    separatore(Menu::mnFile),
    RigaComando{.comando = mnsalvahtm,
                .menu = Menu::mnFile,
                .didascalia = L"&Esporta come pagina Web...",
                .esegui = [](Parti& p, int) { p.pagina.mnsalvahtm_Click(); }},
    separatore(Menu::mnFile),
    // The submenu of the files; there is nothing to run.
    RigaComando{.comando = mnrecenti, .menu = Menu::mnFile, .didascalia = L"&File recenti"},
    separatore(Menu::mnFile),
    RigaComando{.comando = mnChiudi,
                .menu = Menu::mnFile,
                .didascalia = L"&Chiudi",
                .esegui = [](Parti& p, int) { p.finestra.mnChiudi_Click(); }},

    RigaComando{.comando = mnaddFeed,
                .menu = Menu::mnContenuto,
                .didascalia = L"&Aggiungi Feed",
                .tasto = inGriglia(VK_INSERT),
                .striscia = {cmdAggiungi, L"Aggiungi Feed"},
                .esegui = [](Parti& p, int) { p.elementi.cmdAggiungi_Click(); }},
    RigaComando{.comando = mnEditFeed,
                .menu = Menu::mnContenuto,
                .didascalia = L"&Modifica Feed",
                .tasto = inGriglia(VK_RETURN),
                .striscia = {cmdModifica, L"Modifica Feed"},
                .vuoleElemento = true,
                .esegui = [](Parti& p, int e) { p.elementi.cmdModifica_Click(e); }},
    RigaComando{.comando = mnDelFeed,
                .menu = Menu::mnContenuto,
                .didascalia = L"&Cancella Feed",
                .tasto = inGriglia(VK_DELETE),
                .striscia = {cmdCancella, L"Cancella Feed"},
                .vuoleElemento = true,
                .esegui = [](Parti& p, int e) { p.elementi.cmdCancella_Click(e); }},
    separatore(Menu::mnContenuto),
    RigaComando{.comando = mnvisualhtml,
                .menu = Menu::mnContenuto,
                .didascalia = L"Visualizza come pagina web",
                .vuoleElemento = true,
                .esegui = [](Parti& p, int e) { p.pagina.mnvisualhtml_Click(e); }},
    separatore(Menu::mnContenuto),
    RigaComando{.comando = mnAggiorna,
                .menu = Menu::mnContenuto,
                .didascalia = L"&Aggiorna Lista",
                .esegui = [](Parti& p, int) { p.finestra.RiempiGriglia(false); }},

    RigaComando{.comando = mnGuida,
                .menu = Menu::mnHelp,
                .didascalia = L"&Guida",
                .tasto = {VK_F1},
                .esegui = [](Parti& p, int) { p.aiuto.mnGuida_Click(); }},
    separatore(Menu::mnHelp),
    RigaComando{.comando = mniaco,
                .menu = Menu::mnHelp,
                .didascalia = L"Q&uorvex sul Web",
                .esegui = [](Parti& p, int) { p.aiuto.mniaco_Click(); }},
    RigaComando{.comando = mnguidaonline,
                .menu = Menu::mnHelp,
                .didascalia = L"G&uide on-line",
                .esegui = [](Parti& p, int) { p.aiuto.mnguidaonline_Click(); }},
    RigaComando{.comando = mnautore,
                .menu = Menu::mnHelp,
                .didascalia = L"&Scrivi all'autore",
                .barra = {L"email", L"Invia un email all'autore...", 3},
                .esegui = [](Parti& p, int) { p.aiuto.mnautore_Click(); }},
    separatore(Menu::mnHelp),
    RigaComando{.comando = mnVerificaUpgrade,
                .menu = Menu::mnHelp,
                .didascalia = L"&Aggiornamento",
                .esegui = [](Parti& p, int) { p.aiuto.mnVerificaUpgrade_Click(); }},
    separatore(Menu::mnHelp),
    RigaComando{.comando = mnBug,
                .menu = Menu::mnHelp,
                .didascalia = L"S&egnala Bug",
                .esegui = [](Parti& p, int) { p.aiuto.mnBug_Click(); }},
    separatore(Menu::mnHelp),
    RigaComando{.comando = mninfo,
                .menu = Menu::mnHelp,
                .didascalia = L"&Informazione sul prodotto...",
                .barra = {L"info", L"Informazioni sul prodotto...", 4},
                .esegui = [](Parti& p, int) { p.aiuto.mninfo_Click(); }},

    RigaComando{
        .comando = spostaSu,
        .tasto = inGriglia(VK_UP, Tasto::Alt),
        .esegui = [](Parti& p, int e) { p.elementi.SpostaElemento(e, e - 1, Causa::Comando); }},
    RigaComando{
        .comando = spostaGiu,
        .tasto = inGriglia(VK_DOWN, Tasto::Alt),
        .esegui = [](Parti& p, int e) { p.elementi.SpostaElemento(e, e + 1, Causa::Comando); }},
    RigaComando{.comando = spostaInCima,
                .tasto = inGriglia(VK_HOME, Tasto::Alt),
                .esegui = [](Parti& p, int e) { p.elementi.SpostaElemento(e, 0, Causa::Comando); }},
    RigaComando{
        .comando = spostaInFondo,
        .tasto = inGriglia(VK_END, Tasto::Alt),
        .esegui = [](Parti& p,
                     int e) { p.elementi.SpostaElemento(e, p.elementi.ultimo(), Causa::Comando); }},

    RigaComando{.comando = annullaPasso,
                .tasto = inGriglia(L'Z', Tasto::Controllo),
                .esegui = [](Parti& p, int) { p.ripercorri(&Storia::annulla); }},
    RigaComando{.comando = ripetiPasso,
                .tasto = inGriglia(L'Y', Tasto::Controllo),
                .altroTasto = inGriglia(L'Z', Tasto::Controllo | Tasto::Maiuscole),
                .esegui = [](Parti& p, int) { p.ripercorri(&Storia::ripeti); }},
    RigaComando{.comando = taglia,
                .tasto = inGriglia(L'X', Tasto::Controllo),
                .esegui = [](Parti& p, int e) { p.appunti.Taglia(e); }},
    RigaComando{.comando = copia,
                .tasto = inGriglia(L'C', Tasto::Controllo),
                .esegui = [](Parti& p, int e) { p.appunti.Copia(e); }},
    RigaComando{.comando = incolla,
                .tasto = inGriglia(L'V', Tasto::Controllo),
                .esegui = [](Parti& p, int e) { p.appunti.Incolla(e); }},
    RigaComando{.comando = mnTrova,
                .tasto = controllo(L'F'),
                .esegui = [](Parti& p, int) { p.ricerca.mnTrova(); }},
    RigaComando{.comando = trovaAvanti,
                .tasto = {VK_F3},
                .esegui = [](Parti& p, int e) { p.ricerca.prosegui(e, Direzione::Avanti); }},
    RigaComando{.comando = trovaIndietro,
                .tasto = {VK_F3, Tasto::Maiuscole},
                .esegui = [](Parti& p, int e) { p.ricerca.prosegui(e, Direzione::Indietro); }},
};

constexpr std::array principali{
    MenuPrincipale{Menu::mnFile, L"&File"},
    MenuPrincipale{Menu::mnContenuto, L"&Contenuto"},
    MenuPrincipale{Menu::mnHelp, L"?"},
};

} // namespace

std::span<const MenuPrincipale> menuPrincipali() noexcept {
    return principali;
}

std::span<const RigaComando> comandi() noexcept {
    return tabella;
}

const RigaComando* rigaDel(int comando) noexcept {
    const auto* const trovata = std::ranges::find(tabella, comando, &RigaComando::comando);
    return comando == nessunComando || trovata == tabella.end() ? nullptr : trovata;
}

Comando comandoDaChiave(std::wstring_view chiave) noexcept {
    const auto* const trovata = std::ranges::find_if(
        tabella, [&](const RigaComando& r) { return !chiave.empty() && r.barra.chiave == chiave; });
    return trovata == tabella.end() ? nessunComando : trovata->comando;
}
