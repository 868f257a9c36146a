// Cut, copy and paste of items, by the keys of the grid.

#include "tests/aiuti/frmMain_win.h"
#include "tests/aiuti/testi.h"

#include "document/appunti.h"
#include "document/storia.h"
#include "support/windows/appunti_win.h"
#include "ui/main/comandiAppunti_win.h"

#include <optional>
#include <span>

namespace {

constexpr const wchar_t* data = L"Tue, 15 Nov 2005 10:00:00 +0100";

class FrmMainAppunti : public ProvaFrmMain {
protected:
    FrmMainAppunti() {
        for (const wchar_t* const t : {L"a", L"b", L"c"}) {
            mettiConGuid(t, std::wstring(L"guid ") + t);
        }
        finestra.SelezionaRiga(1);
        SetFocus(griglia().lista());
    }

    void mettiConGuid(std::wstring_view titolo, std::wstring_view guid) {
        metti(titolo);
        ::metti(documento, CampoElemento::Descrizione, documento.elementi().conteggio() - 1,
                std::wstring(L"perché\r\n") + std::wstring(titolo));
        ::metti(documento, CampoElemento::Guid, documento.elementi().conteggio() - 1, guid);
    }
    [[nodiscard]] std::wstring guidDi(int indice) const {
        return std::wstring(documento.elementi()(CampoElemento::Guid, indice));
    }
    // Of the item at an index: made new, as those that are added have it.
    [[nodiscard]] bool guidProprio(int indice) const {
        const std::wstring guid = guidDi(indice);
        return guid.starts_with(std::wstring(data) + L" {") && guid.ends_with(L"}");
    }
    // The texts but for the guid.
    void attesiUguali(int uno, int altro) const {
        for (int c = 0; c < static_cast<int>(CampoElemento::Guid); ++c) {
            const auto campo = static_cast<CampoElemento>(c);
            EXPECT_EQ(documento.elementi()(campo, uno), documento.elementi()(campo, altro)) << c;
        }
    }

    void taglia() { premi(L'X', {VK_CONTROL}); }
    void copia() { premi(L'C', {VK_CONTROL}); }
    void incolla() { premi(L'V', {VK_CONTROL}); }

    [[nodiscard]] std::optional<std::string> appunti(const wchar_t* formato) const {
        return Appunti(finestra.hwnd()).leggi(formatoAppunti(formato));
    }
    [[nodiscard]] std::optional<ElementoAppunti> elementoInAppunti() const {
        const auto byte = appunti(ComandiAppunti::formato);
        return byte ? leggiAppunti(std::as_bytes(std::span(*byte))) : std::nullopt;
    }
    void mettiInAppunti(const wchar_t* formato, std::string_view byte) {
        Appunti aperti(finestra.hwnd());
        aperti.svuota();
        aperti.metti(formatoAppunti(formato), byte);
    }
};

} // namespace

TEST_F(FrmMainAppunti, UnaCopiaVaSottoLaRigaSceltaConUnGuidSuo) {
    finestra.SelezionaRiga(2);
    copia();
    EXPECT_EQ(titoliElementi(), L"a;b;c;");
    EXPECT_FALSE(documento.modificato());
    finestra.SelezionaRiga(1);
    incolla();
    EXPECT_EQ(titoliElementi(), L"a;b;b;c;");
    EXPECT_EQ(griglia().rigaCorrente(), 2);
    EXPECT_TRUE(documento.modificato());
    attesiUguali(1, 2);
    EXPECT_TRUE(guidProprio(1));
    EXPECT_EQ(guidDi(2), L"guid b");
    incolla();
    EXPECT_EQ(titoliElementi(), L"a;b;b;b;c;");
    EXPECT_EQ(griglia().rigaCorrente(), 3);
    EXPECT_TRUE(guidProprio(2));
    EXPECT_NE(guidDi(2), guidDi(1));
}

TEST_F(FrmMainAppunti, UnElementoTagliatoTieneIlGuidLaPrimaVolta) {
    finestra.SelezionaRiga(2);
    taglia();
    EXPECT_EQ(titoliElementi(), L"a;c;");
    EXPECT_EQ(griglia().rigaCorrente(), 1);
    EXPECT_TRUE(documento.modificato());
    documento.modificato(false);
    incolla();
    EXPECT_EQ(titoliElementi(), L"a;b;c;");
    EXPECT_EQ(griglia().rigaCorrente(), 2);
    EXPECT_EQ(guidDi(1), L"guid b");
    EXPECT_TRUE(documento.modificato());
    incolla();
    EXPECT_EQ(titoliElementi(), L"a;b;b;c;");
    attesiUguali(1, 2);
    EXPECT_TRUE(guidProprio(2));
}

TEST_F(FrmMainAppunti, ChiNonHaGuidTagliatoNonNeRiceveUno) {
    metti(L"d");
    finestra.SelezionaRiga(4);
    taglia();
    incolla();
    EXPECT_EQ(titoliElementi(), L"a;b;c;d;");
    EXPECT_EQ(guidDi(3), L"");
    // Even beside another one without.
    metti(L"e");
    finestra.SelezionaRiga(4);
    taglia();
    incolla();
    EXPECT_EQ(titoliElementi(), L"a;b;c;d;e;");
    EXPECT_EQ(guidDi(3), L"");
}

TEST_F(FrmMainAppunti, UnTaglioAnnullatoLasciaIlSuoGuidAlPrimo) {
    Storia storia(documento);
    finestra.SelezionaRiga(3);
    taglia();
    EXPECT_EQ(storia.annulla(), L"Annullata: cancellazione di «c»");
    EXPECT_EQ(titoliElementi(), L"a;b;c;");
    incolla();
    EXPECT_EQ(titoliElementi(), L"a;b;c;c;");
    EXPECT_EQ(guidDi(2), L"guid c");
    EXPECT_TRUE(guidProprio(3));
    EXPECT_EQ(storia.annulla(), L"Annullata: aggiunta di «c»");
    EXPECT_EQ(titoliElementi(), L"a;b;c;");
}

TEST_F(FrmMainAppunti, FraDueFinestreIlPrimoCheIncollaTieneIlGuid) {
    taglia();
    Documento altro;
    FrmMain altra{Servizi{messaggi, dialoghi, orologio, impostazioni, coda, editor, cartelle},
                  altro};
    altra.apri(SW_SHOWNORMAL);
    {
        const ConFiltro suo([&](MSG& msg) { return altra.anticipa(msg); });
        portaAvanti(altra.hwnd());
        SetFocus(grigliaDi(altra).lista());
        incolla();
    }
    ASSERT_EQ(altro.elementi().conteggio(), 1);
    EXPECT_EQ(altro.elementi()(CampoElemento::Titolo, 0), L"a");
    EXPECT_EQ(altro.elementi()(CampoElemento::Guid, 0), L"guid a");
    portaAvanti(finestra.hwnd());
    SetFocus(griglia().lista());
    incolla();
    EXPECT_EQ(titoliElementi(), L"b;a;c;");
    EXPECT_TRUE(guidProprio(1));
    altro.modificato(false);
}

TEST_F(FrmMainAppunti, SenzaElementoSceltoSiIncollaInFondoENonSiTagliaNulla) {
    copia();
    finestra.SelezionaRiga(7);
    taglia();
    copia();
    EXPECT_EQ(titoliElementi(), L"a;b;c;");
    EXPECT_FALSE(documento.modificato());
    incolla();
    EXPECT_EQ(titoliElementi(), L"a;b;c;a;");
    EXPECT_EQ(griglia().rigaCorrente(), 4);
    finestra.NuovoDocumento();
    incolla();
    EXPECT_EQ(titoliElementi(), L"a;");
    EXPECT_EQ(griglia().rigaCorrente(), 1);
}

TEST_F(FrmMainAppunti, ATabellaPienaEErrore6PrimaCheCambiQualcosa) {
    taglia();
    dimensiona(documento, 32767);
    documento.modificato(false);
    messaggi.attendi(testi::diErrore(6), testi::erroreDetto(6), Icona::Informazione);
    incolla();
    EXPECT_EQ(documento.elementi().conteggio(), 32767);
    EXPECT_FALSE(documento.modificato());
    // It has not been pasted yet.
    const auto resta = elementoInAppunti();
    ASSERT_TRUE(resta.has_value());
    EXPECT_TRUE(resta->tagliato);
    dimensiona(documento, 32766);
    incolla();
    EXPECT_EQ(guidDi(1), L"guid a");
}

TEST_F(FrmMainAppunti, DatiDiAltraFormaOGuastiNonSiIncollano) {
    const auto nulla = [&] {
        incolla();
        EXPECT_EQ(titoliElementi(), L"a;b;c;");
        EXPECT_FALSE(documento.modificato());
    };
    testoAppunti(L"a\r\nhttps://e.example/");
    nulla();
    std::string byte = byteAppunti({documento.elementi().elemento(0), false});
    mettiInAppunti(L"Ostrelle altro", byte);
    nulla();
    mettiInAppunti(ComandiAppunti::formato, byte.substr(0, byte.size() - 1));
    nulla();
    mettiInAppunti(ComandiAppunti::formato, "x");
    nulla();
    std::string guasti = byte;
    guasti.back() = static_cast<char>(guasti.back() ^ 1);
    mettiInAppunti(ComandiAppunti::formato, guasti);
    nulla();
    mettiInAppunti(ComandiAppunti::formato, byte);
    incolla();
    EXPECT_EQ(titoliElementi(), L"a;a;b;c;");
}

TEST_F(FrmMainAppunti, GliAltriProgrammiHannoTestoEHtml) {
    ::metti(documento, CampoElemento::Titolo, 0, L"Più <stelle>");
    for (const bool taglio : {false, true}) {
        SCOPED_TRACE(taglio);
        testoAppunti(L"prima");
        if (taglio) {
            taglia();
        } else {
            copia();
        }
        EXPECT_EQ(testoAppunti(), L"Più <stelle>\r\nhttps://e.example/a");
        const auto html = appunti(L"HTML Format");
        ASSERT_TRUE(html.has_value());
        EXPECT_TRUE(html->starts_with("Version:0.9\r\n"));
        EXPECT_NE(html->find("<!--StartFragment--><a href=\"https://e.example/a\">Pi\xC3\xB9 "
                             "&lt;stelle&gt;</a><!--EndFragment-->"),
                  std::string::npos)
            << *html;
        const auto elemento = elementoInAppunti();
        ASSERT_TRUE(elemento.has_value());
        EXPECT_EQ(elemento->tagliato, taglio);
    }
}

TEST_F(FrmMainAppunti, SeGliAppuntiSonoOccupatiSiDiceENullaVaPerduto) {
    // Another window of any program would do.
    ASSERT_TRUE(OpenClipboard(nullptr));
    for (const WORD tasto : {WORD{'X'}, WORD{'C'}, WORD{'V'}}) {
        messaggi.attendi(testi::diErrore(70), testi::erroreDetto(70), Icona::Informazione);
        premi(tasto, {VK_CONTROL});
    }
    CloseClipboard();
    EXPECT_EQ(titoliElementi(), L"a;b;c;");
    EXPECT_FALSE(documento.modificato());
    taglia();
    EXPECT_EQ(titoliElementi(), L"b;c;");
}

TEST_F(FrmMainAppunti, NelleCaselleITastiSonoDellaCasella) {
    copia();
    for (const int id : {IDC_TXTTITOLO, IDC_TXTDESCRIZIONE, IDC_CBOLINGUA}) {
        SCOPED_TRACE(id);
        const HWND casella = campo(id);
        SetFocus(casella);
        scrivi(L"parole");
        SendMessageW(GetFocus(), EM_SETSEL, 0, -1);
        taglia();
        EXPECT_EQ(testoDi(casella), L"");
        EXPECT_EQ(testoAppunti(), L"parole");
        incolla();
        incolla();
        EXPECT_EQ(testoDi(casella), L"paroleparole");
        SendMessageW(GetFocus(), EM_SETSEL, 0, 2);
        copia();
        EXPECT_EQ(testoAppunti(), L"pa");
    }
    EXPECT_EQ(titoliElementi(), L"a;b;c;");
}

TEST_F(FrmMainAppunti, DuranteUnTrascinamentoNonContano) {
    copia();
    const HWND lista = griglia().lista();
    RECT r{};
    ListView_GetItemRect(lista, 0, &r, LVIR_BOUNDS);
    premiMouse(lista, {60, (r.top + r.bottom) / 2});
    muoviMouse(lista, {60, r.bottom + 5});
    taglia();
    incolla();
    lasciaMouse();
    EXPECT_EQ(titoliElementi(), L"b;a;c;");
}
