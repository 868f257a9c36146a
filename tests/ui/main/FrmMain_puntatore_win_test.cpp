// The pointer while the document's commands work, and after.

#include "tests/aiuti/comandi_prova_win.h"
#include "tests/aiuti/feedDiProva_win.h"
#include "tests/aiuti/spia_win.h"
#include "tests/aiuti/testi.h"

#include <set>

namespace {

class FrmMainPuntatore : public ProvaFrmMain {
protected:
    void SetUp() override {
        // Where the pointer rests over nothing of ours, only the commands change it.
        SetCursorPos(0, 0);
        pompa();
        metti(L"uno");
        campi.testo(IDC_TXTTITOLO, L"titolo");
        documento.modificato(false);
        SetCursor(normale);
    }

    // Runs a command; gives the pointers seen while it reads the title's field, or writes it.
    std::set<HCURSOR> duranteIlTitolo(int comando, UINT codice = WM_GETTEXT) {
        std::set<HCURSOR> visti;
        const HWND titolo = campo(IDC_TXTTITOLO);
        const Spia spia([&](const CWPSTRUCT& m) {
            if (m.hwnd == titolo && m.message == codice) {
                visti.insert(GetCursor());
            }
        });
        finestra.esegui(comando);
        return visti;
    }
    // What a box or a dialog finds when it comes up.
    [[nodiscard]] std::function<void()> normaleIntanto() const {
        return [this] { EXPECT_EQ(GetCursor(), normale); };
    }
    void attendiErroreNormale(std::int32_t numero, std::wstring testo) {
        messaggi.attendi(std::move(testo), testi::erroreNumero(numero), Icona::Critica,
                         Pulsanti::Ok, Risposta::Ok, normaleIntanto());
    }
    void attendiErroreNormale(std::int32_t numero) {
        attendiErroreNormale(numero, testi::diErrore(numero));
    }
    // A file that cannot be written.
    [[nodiscard]] std::wstring fermo(std::wstring_view nome) const {
        std::wstring percorso = cartella.scrivi(nome, "x");
        SetFileAttributesW(percorso.c_str(), FILE_ATTRIBUTE_READONLY);
        return percorso;
    }

    const HCURSOR normale = LoadCursorW(nullptr, IDC_ARROW);
    const std::set<HCURSOR> soloClessidra{LoadCursorW(nullptr, IDC_WAIT)};
};

} // namespace

TEST_F(FrmMainPuntatore, EsportandoEUnaClessidraETornaPrimaDellaDomanda) {
    dialoghi.attendiSalva(richiestaPagina, cartella.file(L"p.htm"), normaleIntanto());
    messaggi.attendi(testi::domandaApri, testi::salvaPagina, Icona::Domanda, Pulsanti::SiNo,
                     Risposta::No, normaleIntanto());
    EXPECT_EQ(duranteIlTitolo(mnsalvahtm), soloClessidra);
    EXPECT_EQ(GetCursor(), normale);
}

TEST_F(FrmMainPuntatore, SalvandoEAprendoEUnaClessidraEPoiTorna) {
    const std::wstring feed = cartella.file(L"f.xml");
    dialoghi.attendiSalva(richiestaSalva, feed, normaleIntanto());
    EXPECT_EQ(duranteIlTitolo(mnsalva), soloClessidra);
    EXPECT_EQ(GetCursor(), normale);
    dialoghi.attendiApri(richiestaApri, feed, normaleIntanto());
    EXPECT_EQ(duranteIlTitolo(mnApri, WM_SETTEXT), soloClessidra);
    EXPECT_EQ(GetCursor(), normale);
}

TEST_F(FrmMainPuntatore, DopoUnErroreTornaPrimaDelMessaggio) {
    dialoghi.attendiSalva(richiestaPagina, fermo(L"p.htm"));
    attendiErroreNormale(75);
    EXPECT_EQ(duranteIlTitolo(mnsalvahtm), soloClessidra);
    EXPECT_EQ(GetCursor(), normale);
    dialoghi.attendiSalva(richiestaSalva, fermo(L"f.xml"));
    attendiErroreNormale(75);
    EXPECT_EQ(duranteIlTitolo(mnsalva), soloClessidra);
    EXPECT_EQ(GetCursor(), normale);
    const std::wstring rotto = cartella.scrivi(L"rotto.xml", "<rss>");
    dialoghi.attendiApri(richiestaApri, rotto);
    std::wstring maiuscolo = rotto;
    CharUpperBuffW(maiuscolo.data(), static_cast<DWORD>(maiuscolo.size()));
    attendiErroreNormale(18343, maiuscolo + testi::diErrore(18343));
    finestra.esegui(mnApri);
    EXPECT_EQ(GetCursor(), normale);
}

TEST_F(FrmMainPuntatore, IlMessaggioDiUnaDataIllegibileNonHaLaClessidra) {
    const std::wstring feed =
        cartella.scrivi(L"d.xml", rssCon("<lastBuildDate>ieri</lastBuildDate>"));
    dialoghi.attendiApri(richiestaApri, feed);
    attendiErroreNormale(4453);
    finestra.esegui(mnApri);
    EXPECT_EQ(GetCursor(), normale);
}

TEST_F(FrmMainPuntatore, ChiAnnullaUnDialogoRitrovaLaFreccia) {
    for (const int comando : {mnsalvahtm, mnsalva}) {
        SetCursor(LoadCursorW(nullptr, IDC_WAIT));
        dialoghi.attendiSalva(comando == mnsalva ? richiestaSalva : richiestaPagina, std::nullopt);
        finestra.esegui(comando);
        EXPECT_EQ(GetCursor(), normale) << comando;
    }
}

TEST_F(FrmMainPuntatore, MostraErroreRimetteLaFreccia) {
    SetCursor(LoadCursorW(nullptr, IDC_WAIT));
    attendiErroreNormale(6);
    try {
        solleva(errori::overflow);
    } catch (const Errore&) {
        finestra.MostraErrore();
    }
}
