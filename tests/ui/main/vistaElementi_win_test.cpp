#include "ui/main/vistaElementi_win.h"

#include "document/elementi.h"
#include "support/windows/maniglie_win.h"
#include "tests/aiuti/griglia_prova_win.h"
#include "tests/aiuti/pixel_win.h"
#include "tests/aiuti/schermo_win.h"
#include "ui/main/GUI_win.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

ElementoCondiviso conTitolo(const std::wstring& titolo) {
    return creaElemento({titolo, L"", L"altra descrizione", L"", L"ieri", L""});
}

// A grid that follows its document.
struct Seguita {
    explicit Seguita(int elementi) : p(elementi) {}

    GrigliaProva p;
    VistaElementi vista{p.documento, p.griglia};

    // What is seen and told of the list.
    struct Stato {
        int righe;
        int corrente;
        int cima;
        std::vector<int> selezionate;
        int fuoco;
        Immagine immagine;
        bool operator==(const Stato&) const = default;
    };
    [[nodiscard]] Stato stato() const {
        pompa();
        return {ListView_GetItemCount(p.lista()),
                p.griglia.rigaCorrente(),
                p.griglia.rigaInCima(),
                p.selezionate(),
                ListView_GetNextItem(p.lista(), -1, LVNI_FOCUSED) + 1,
                sulloSchermo(p.griglia.hwnd())};
    }

    // What waits to be painted: of the list, the height below its header in rows, from the row to
    // the row; {0, 0} when nothing does.
    [[nodiscard]] std::pair<int, int> inAttesa() const {
        RECT r{};
        RECT testata{};
        RECT riga{};
        if (!GetUpdateRect(p.lista(), &r, FALSE)) {
            return {0, 0};
        }
        GetWindowRect(ListView_GetHeader(p.lista()), &testata);
        ListView_GetItemRect(p.lista(), 0, &riga, LVIR_BOUNDS);
        const int cima = testata.bottom - testata.top;
        const int altezza = riga.bottom - riga.top;
        return {p.griglia.rigaInCima() + (r.top - cima) / altezza,
                p.griglia.rigaInCima() + (r.bottom - 1 - cima) / altezza};
    }
    // Each row in sight that has something to paint.
    [[nodiscard]] std::vector<int> righeInAttesa() const {
        const Maniglia<HRGN, DeleteObject> regione(CreateRectRgn(0, 0, 0, 0));
        GetUpdateRgn(p.lista(), regione.get(), FALSE);
        std::vector<int> righe;
        for (int i = 0; i < ListView_GetCountPerPage(p.lista()); ++i) {
            RECT riga{};
            ListView_GetItemRect(p.lista(), p.griglia.rigaInCima() - 1 + i, &riga, LVIR_BOUNDS);
            if (RectInRegion(regione.get(), &riga)) {
                righe.push_back(p.griglia.rigaInCima() + i);
            }
        }
        return righe;
    }
    [[nodiscard]] bool testataInAttesa() const {
        return GetUpdateRect(ListView_GetHeader(p.lista()), nullptr, FALSE) != FALSE;
    }
};

using Righe = std::pair<int, int>;

// A change of any kind that the document allows now.
Modifica qualunque(const Documento& documento, std::mt19937& caso) {
    const int quanti = documento.elementi().conteggio();
    const auto indice = [&] { return static_cast<int>(caso() % static_cast<unsigned>(quanti)); };
    const auto titolo = L"titolo " + std::to_wstring(caso() % 1000);
    switch (quanti == 0 ? 0 : caso() % 4) {
    case 0:
        return documento.aggiunta(conTitolo(titolo));
    case 1:
        return documento.cambio(indice(), conTitolo(titolo));
    case 2:
        return documento.rimozione(indice());
    default:
        return documento.spostamento(indice(), indice());
    }
}

} // namespace

TEST(VistaDegliElementi, DopoOgniModificaLaGrigliaEComeRiempitaDiNuovo) {
    for (const int elementi : {0, 2, 12, 48, 200}) {
        Seguita s(elementi);
        const unsigned seme = 20051115U + static_cast<unsigned>(elementi);
        std::mt19937 caso(seme);
        for (int passo = 0; passo < 12; ++passo) {
            const int righe = ListView_GetItemCount(s.p.lista());
            const auto riga = [&] {
                return 1 + static_cast<int>(caso() % static_cast<unsigned>(righe));
            };
            s.p.griglia.seleziona(riga());
            if (caso() % 2 == 0) {
                s.p.griglia.rigaInCima(riga());
            }
            pompa();
            Modifica modifica = qualunque(s.p.documento, caso);
            // Taken back too, as whoever undoes does.
            for (const bool indietro : {false, true}) {
                if (indietro && caso() % 3 != 0) {
                    continue;
                }
                modifica = indietro ? inversa(modifica) : modifica;
                const int cima = s.p.griglia.rigaInCima();
                s.p.documento.applica(modifica);
                const auto cosi = s.stato();
                GUI::RiempiGriglia(s.p.griglia, false);
                if (modifica.tipo == Modifica::Tipo::Spostamento) {
                    s.p.griglia.rigaInCima(cima);
                }
                s.p.griglia.seleziona(rigaDopo(modifica));
                const auto riempita = s.stato();
                EXPECT_EQ(cosi.righe, riempita.righe);
                EXPECT_EQ(cosi.corrente, riempita.corrente);
                EXPECT_EQ(cosi.cima, riempita.cima);
                EXPECT_EQ(cosi.selezionate, riempita.selezionate);
                EXPECT_EQ(cosi.fuoco, riempita.fuoco);
                EXPECT_EQ(cosi.immagine.diversi(riempita.immagine), 0);
                ASSERT_EQ(cosi, riempita) << "seed " << seme << ", step " << passo << ", kind "
                                          << static_cast<int>(modifica.tipo);
            }
        }
    }
}

TEST(VistaDegliElementi, UnCambioRidipingeLaSuaRigaSoltanto) {
    Seguita s(200);
    s.p.griglia.seleziona(3);
    pompa();
    s.p.documento.applica(s.p.documento.cambio(2, conTitolo(L"altro")));
    EXPECT_EQ(s.inAttesa(), (Righe{3, 3}));
    EXPECT_FALSE(s.testataInAttesa());
    pompa();
    EXPECT_EQ(s.inAttesa(), (Righe{0, 0}));
    EXPECT_EQ(s.p.testo(3, 1), L"altro\r\naltra descrizione");
    // As the top row of a grid that has scrolled, at its end too.
    for (const int riga : {100, 200}) {
        s.p.griglia.seleziona(riga);
        pompa();
        s.p.documento.applica(s.p.documento.cambio(riga - 1, conTitolo(L"ancora")));
        EXPECT_EQ(s.inAttesa(), (Righe{riga, riga}));
        EXPECT_FALSE(s.testataInAttesa());
    }
}

TEST(VistaDegliElementi, UnoSpostamentoRidipingeLeRigheFraLeDue) {
    Seguita s(200);
    s.p.griglia.seleziona(4);
    pompa();
    s.p.documento.applica(s.p.documento.spostamento(3, 5));
    EXPECT_EQ(s.righeInAttesa(), (std::vector{4, 5, 6}));
    pompa();
    s.p.documento.applica(s.p.documento.spostamento(5, 1));
    EXPECT_EQ(s.righeInAttesa(), (std::vector{2, 3, 4, 5, 6}));
    EXPECT_FALSE(s.testataInAttesa());
}

TEST(VistaDegliElementi, AlPostoDelleRigheVuoteCambianoSoloQuelleToccate) {
    Seguita s(6);
    s.p.griglia.seleziona(2);
    pompa();
    s.p.documento.applica(s.p.documento.rimozione(3));
    // The row above is selected, the one that had been is no more.
    EXPECT_EQ(s.inAttesa(), (Righe{2, 6}));
    pompa();
    s.p.documento.applica(s.p.documento.aggiunta(conTitolo(L"nuovo")));
    EXPECT_EQ(s.inAttesa(), (Righe{3, 6}));
    EXPECT_FALSE(s.testataInAttesa());
}

TEST(VistaDegliElementi, ConAltreRigheSiDipingeTuttoUnaVoltaTranneLaTestata) {
    Seguita s(200);
    pompa();
    s.p.documento.applica(s.p.documento.rimozione(150));
    const auto [da, a] = s.inAttesa();
    EXPECT_LE(da, s.p.griglia.rigaInCima());
    EXPECT_FALSE(rigaVisibile(s.p.lista(), a + 1));
    EXPECT_FALSE(s.testataInAttesa());
    // What was to be painted of the header before still is.
    pompa();
    InvalidateRect(ListView_GetHeader(s.p.lista()), nullptr, FALSE);
    s.p.documento.applica(s.p.documento.rimozione(100));
    EXPECT_TRUE(s.testataInAttesa());
}

TEST(VistaDegliElementi, NonCambiaNullaDiCioCheNonVede) {
    Seguita s(20);
    // A grid left with its header alone gets all of its rows back.
    GUI::RiempiGriglia(s.p.griglia, true);
    pompa();
    s.p.documento.applica(s.p.documento.cambio(3, conTitolo(L"altro")));
    pompa();
    EXPECT_EQ(s.p.griglia.elemento(20), 19);
    EXPECT_EQ(daRidipingere(s.p.lista()), 0);
    // The rows as they would be while nothing is redrawn.
    {
        const Griglia::Sospensione sospensione(s.p.griglia);
        s.p.documento.applica(s.p.documento.rimozione(0));
        for (int i = 0; i < 60; ++i) {
            s.p.documento.applica(s.p.documento.aggiunta(conTitolo(L"nuovo")));
        }
    }
    pompa();
    EXPECT_EQ(ListView_GetItemCount(s.p.lista()), 79);
    EXPECT_EQ(daRidipingere(s.p.lista()), 0);
    EXPECT_NE(GetWindowLongPtrW(s.p.lista(), GWL_STYLE) & WS_VISIBLE, 0);
}
