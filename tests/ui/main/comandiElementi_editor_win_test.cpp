#include "tests/aiuti/comandiElementi_prova_win.h"
#include "tests/aiuti/editor_prova_win.h"
#include "tests/aiuti/schermo_win.h"
#include "tests/aiuti/testi.h"

#include <functional>
#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace {

// The commands with the real editor.
class ComandiConEditorVero : public ProvaEditor {
protected:
    EditorElementiWindows vero{messaggi, orologio};
    Banco banco{2, vero};

    void aggiungi(std::function<void()> azioni) {
        usa([this] { banco.comandi.cmdAggiungi_Click(); }, std::move(azioni));
    }
};

} // namespace

TEST_F(ComandiConEditorVero, IlProssimoNuovoParteDallaDataDellUltimo) {
    const auto ieri = DataOra::daParti(2005, 11, 30, 10, 0, 0);
    aggiungi([&] {
        EXPECT_EQ(selettore(IDC_EDITDATA), inizio);
        scrivi(L" titolo ");
        imposta(IDC_EDITLINK, L"link");
        selettore(IDC_EDITDATA, ieri);
        selettore(IDC_EDITORARIO, ieri);
        premi(VK_RETURN);
    });
    ASSERT_EQ(banco.griglia.tabella.conteggio(), 3);
    EXPECT_EQ(banco.campo(CampoElemento::Titolo, 2), L"titolo");
    EXPECT_EQ(banco.campo(CampoElemento::Data, 2), L"Wed, 30 Nov 2005 10:00:00 +0200");
    aggiungi([&] {
        EXPECT_EQ(testo(IDC_EDITTITOLO), L"");
        EXPECT_EQ(selettore(IDC_EDITDATA), ieri);
        EXPECT_EQ(selettore(IDC_EDITORARIO), ieri);
        premi(VK_ESCAPE);
    });
    EXPECT_EQ(banco.griglia.tabella.conteggio(), 3);
}

TEST_F(ComandiConEditorVero, ModificareSenzaToccareRiscriveSoloCioCheVaRifilato) {
    Documento& documento = banco.griglia.documento;
    metti(documento, CampoElemento::Titolo, 1, L"  titolo  ");
    metti(documento, CampoElemento::Link, 1, L"link");
    metti(documento, CampoElemento::Descrizione, 1, L"riga\r\n\tseconda ");
    metti(documento, CampoElemento::Autore, 1, L" autore ");
    metti(documento, CampoElemento::Guid, 1, L" guid ");
    banco.seleziona(2);
    usa([this] { banco.modifica(); }, [] { premi(VK_RETURN); });
    EXPECT_EQ(banco.campo(CampoElemento::Titolo, 1), L"titolo");
    EXPECT_EQ(banco.campo(CampoElemento::Descrizione, 1), L"riga\r\n\tseconda");
    EXPECT_EQ(banco.campo(CampoElemento::Autore, 1), L" autore ");
    EXPECT_EQ(banco.campo(CampoElemento::Guid, 1), L" guid ");
    EXPECT_EQ(banco.griglia.griglia.rigaCorrente(), 2);
}

TEST_F(ComandiConEditorVero, LaDataIlleggibileDiUnElementoRestaSeSiAnnulla) {
    metti(banco.griglia.documento, CampoElemento::Data, 1, L"domani");
    banco.seleziona(2);
    messaggi.attendi(testi::dataReimpostata, testi::attenzione, Icona::Informazione);
    usa([this] { banco.modifica(); }, [] { premi(VK_ESCAPE); });
    EXPECT_EQ(banco.campo(CampoElemento::Data, 1), L"domani");
    EXPECT_FALSE(banco.griglia.documento.modificato());
}
