// The help page that stands beside the program.

#include "support/errori/errore.h"
#include "support/testi/testo.h"
#include "support/windows/errori_win.h"
#include "support/windows/file_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/sorgenti_win.h"
#include "ui/controls/contrasto.h"
#include "ui/main/comandi.h"

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

// The tests' executables stand in a folder of the program's.
std::wstring accanto(const std::wstring& nome) {
    return cartellaProgramma() + L"\\..\\" + nome;
}

const std::wstring& pagina() {
    static const std::wstring testo = daUtf8(leggiTutto(accanto(L"Ostrelle.htm")));
    return testo;
}

// The page as it is read: no tags, entities as characters.
std::wstring letta() {
    std::wstring testo;
    bool marca = false;
    for (const wchar_t c : pagina()) {
        if (c == L'<') {
            marca = true;
        } else if (c == L'>') {
            marca = false;
        } else if (!marca) {
            testo += c;
        }
    }
    testo = sostituisci(testo, L"&gt;", L">");
    testo = sostituisci(testo, L"&lt;", L"<");
    return sostituisci(testo, L"&amp;", L"&");
}

// What stands between each `prima` and the quotation mark after it.
std::vector<std::wstring> valori(std::wstring_view prima) {
    std::vector<std::wstring> trovati;
    const std::wstring_view testo = pagina();
    for (auto dove = testo.find(prima); dove != std::wstring_view::npos;
         dove = testo.find(prima, dove + 1)) {
        const auto inizio = dove + prima.size();
        trovati.emplace_back(testo.substr(inizio, testo.find(L'"', inizio) - inizio));
    }
    return trovati;
}

using Colori = std::map<std::wstring, COLORREF>;

// The colours that a style block names: "--name: #rrggbb;".
Colori colori(std::wstring_view blocco) {
    Colori trovati;
    const auto inizio = pagina().find(blocco);
    EXPECT_NE(inizio, std::wstring::npos) << inUtf8(blocco);
    const auto fine = pagina().find(L'}', inizio);
    auto dove = pagina().find(L"--", inizio);
    while (dove < fine) {
        const auto segno = pagina().find(L": #", dove);
        const auto rgb = std::stoul(pagina().substr(segno + 3, 6), nullptr, 16);
        trovati[pagina().substr(dove + 2, segno - dove - 2)] =
            RGB(rgb >> 16U & 0xFFU, rgb >> 8U & 0xFFU, rgb & 0xFFU);
        dove = pagina().find(L"--", segno);
    }
    return trovati;
}

// The number of the error that carries them stands after a message's last word.
std::wstring conNumero(const std::wstring& testo, int numero) {
    return numero == 0 ? testo : testo + L" (" + std::to_wstring(numero) + L")";
}

} // namespace

TEST(Guida, SpiegaOgniMessaggioDelProgramma) {
    const std::wstring guida = letta();
    std::set<int> numeri;
    for (const Messaggio& messaggio : messaggiDelProgramma()) {
        const std::wstring atteso = conNumero(messaggio.testo, messaggio.numero);
        EXPECT_NE(guida.find(atteso), std::wstring::npos) << inUtf8(atteso);
        numeri.insert(messaggio.numero);
    }
    // They were looked for where they are.
    EXPECT_EQ(numeri,
              (std::set{0, 4453, 4454, 8292, 8874, 8875, 8876, 12883, 18343, 18344, 18345}));
}

TEST(Guida, SpiegaOgniErroreDellaTabella) {
    const std::wstring guida = letta();
    std::set<int> numeri = erroriSollevati();
    for (DWORD codice = 0; codice < 20000; ++codice) {
        numeri.insert(erroreWin32(codice).numero());
    }
    EXPECT_GT(numeri.size(), 15U);
    for (const int numero : numeri) {
        const std::wstring atteso = conNumero(std::wstring(testoErrore(numero)), numero);
        EXPECT_NE(guida.find(atteso), std::wstring::npos) << inUtf8(atteso);
    }
}

TEST(Guida, SiLeggeNelChiaroENelloScuro) {
    const auto chiari = colori(L":root {");
    const auto scuri = colori(L"@media (prefers-color-scheme: dark) { :root {");
    ASSERT_EQ(chiari.size(), scuri.size());
    for (const auto& [nome, colore] : chiari) {
        ASSERT_TRUE(scuri.contains(nome)) << inUtf8(nome);
    }
    for (const auto& schema : {chiari, scuri}) {
        for (const auto& [testo, fondo] : {std::pair{L"testo", L"fondo"},
                                           {L"testo", L"riquadro"},
                                           {L"testo", L"tasto"},
                                           {L"testo", L"nota"},
                                           {L"didascalia", L"fondo"},
                                           {L"rimando", L"fondo"},
                                           {L"rimando", L"riquadro"}}) {
            EXPECT_GE(contrasto(schema.at(testo), schema.at(fondo)), 4.5)
                << inUtf8(testo) << " on " << inUtf8(fondo);
        }
    }
    EXPECT_GT(contrasto(scuri.at(L"fondo"), RGB(255, 255, 255)), 12);
    // No colour stands anywhere else.
    const auto inizio = pagina().find(L"\nbody {");
    const auto stile = pagina().substr(inizio, pagina().find(L"</style>") - inizio);
    EXPECT_EQ(stile.find(L'#'), std::wstring::npos);
}

TEST(Guida, LeParoleSonoQuelleDiOggi) {
    const std::wstring guida = letta();
    for (const wchar_t* const parola : {L"marche", L"marca ", L"neretto", L"codice ISO"}) {
        EXPECT_EQ(guida.find(parola), std::wstring::npos) << inUtf8(parola);
    }
    for (const wchar_t* const parola : {L"tag HTML", L"grassetto", L"codifica ISO-8859-1"}) {
        EXPECT_NE(guida.find(parola), std::wstring::npos) << inUtf8(parola);
    }
}

TEST(Guida, NominaOgniComando) {
    const std::wstring testo = letta();
    for (const RigaComando& riga : comandi()) {
        const std::wstring nome = sostituisci(sostituisci(riga.didascalia, L"&", L""), L"...", L"");
        EXPECT_NE(testo.find(nome), std::wstring::npos) << inUtf8(nome);
    }
}

TEST(Guida, OgniRimandoEOgniFiguraCiSono) {
    const auto rimandi = valori(L"href=\"#");
    EXPECT_GT(rimandi.size(), 10U);
    for (const std::wstring& rimando : rimandi) {
        EXPECT_NE(pagina().find(L"id=\"" + rimando + L'"'), std::wstring::npos) << inUtf8(rimando);
    }
    const auto figure = valori(L"src=\"");
    EXPECT_GT(figure.size(), 3U);
    for (const std::wstring& figura : figure) {
        EXPECT_TRUE(fileEsiste(accanto(sostituisci(figura, L"/", L"\\")))) << inUtf8(figura);
    }
}
