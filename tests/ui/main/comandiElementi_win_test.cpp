#include "ui/main/comandiElementi_win.h"

#include "support/errori/errore.h"
#include "tests/aiuti/comandiElementi_prova_win.h"
#include "tests/aiuti/editor_finto.h"
#include "tests/aiuti/schermo_win.h"
#include "tests/aiuti/testi.h"

#include <array>
#include <cstdint>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

class ComandiElementiGriglia : public testing::Test {
protected:
    EditorFinto editor;
    // Fills the item and confirms with that date.
    void attendiCompilato(std::wstring nome, DataOra data = inizio) {
        editor.attendi([nome = std::move(nome), data](clsItemRss& elemento, DataOra) {
            elemento.sTitle(L"t " + nome);
            elemento.sLink(L"l " + nome);
            elemento.sDescription(L"d " + nome);
            elemento.sAuthor(L"a " + nome);
            elemento.sPubDate(L"Tue, 15 Nov 2005 10:00:00 +0100");
            return data;
        });
    }
};

// {XXXX-...}: eight groups of four.
bool identificativo(std::wstring_view testo) {
    if (testo.size() != 41 || testo.front() != L'{' || testo.back() != L'}') {
        return false;
    }
    for (std::size_t i = 1; i < 40; ++i) {
        const wchar_t c = testo[i];
        const bool buono =
            i % 5 == 0 ? c == L'-' : (c >= L'A' && c <= L'Z') || (c >= L'0' && c <= L'9');
        if (!buono) {
            return false;
        }
    }
    return true;
}

} // namespace

TEST_F(ComandiElementiGriglia, AggiungiMetteInFondoConGuidESeleziona) {
    Banco banco(60, editor);
    const auto ieri = DataOra::daParti(2005, 11, 15, 10, 0, 0);
    attendiCompilato(L"nuovo", ieri);
    banco.comandi.cmdAggiungi_Click();
    ASSERT_EQ(banco.griglia.tabella.conteggio(), 61);
    EXPECT_EQ(banco.campo(CampoElemento::Titolo, 60), L"t nuovo");
    EXPECT_EQ(banco.campo(CampoElemento::Link, 60), L"l nuovo");
    EXPECT_EQ(banco.campo(CampoElemento::Descrizione, 60), L"d nuovo");
    EXPECT_EQ(banco.campo(CampoElemento::Autore, 60), L"a nuovo");
    EXPECT_EQ(banco.campo(CampoElemento::Data, 60), L"Tue, 15 Nov 2005 10:00:00 +0100");
    const std::wstring guid = banco.campo(CampoElemento::Guid, 60);
    const std::wstring davanti = L"Tue, 15 Nov 2005 10:00:00 +0100 ";
    ASSERT_TRUE(guid.starts_with(davanti)) << testing::PrintToString(guid);
    EXPECT_TRUE(identificativo(std::wstring_view(guid).substr(davanti.size())))
        << testing::PrintToString(guid);
    EXPECT_EQ(banco.griglia.griglia.rigaCorrente(), 61);
    EXPECT_TRUE(rigaVisibile(banco.griglia.griglia.lista(), 61));
    EXPECT_EQ(banco.griglia.testo(61, 1), L"t nuovo\r\nd nuovo");
    EXPECT_EQ(banco.griglia.documento.ultimaData(), ieri);
    EXPECT_TRUE(banco.griglia.documento.modificato());
}

TEST_F(ComandiElementiGriglia, IlPrimoElementoDiUnDocumentoVuoto) {
    Banco banco(0, editor);
    attendiCompilato(L"primo");
    banco.comandi.cmdAggiungi_Click();
    EXPECT_EQ(banco.griglia.tabella.conteggio(), 1);
    EXPECT_EQ(banco.griglia.testo(1, 2), L"0");
    EXPECT_EQ(banco.griglia.testo(2, 2), L"-1");
    EXPECT_EQ(banco.selezionato(), 0);
}

TEST_F(ComandiElementiGriglia, LEditorRiceveUnElementoVuotoELaDataDellUltimoAggiunto) {
    Banco banco(3, editor);
    const auto ieri = DataOra::daParti(2005, 11, 30, 10, 0, 0);
    editor.attendi([&](clsItemRss& elemento, DataOra proposta) {
        EXPECT_EQ(elemento.sTitle() + elemento.sLink() + elemento.sDescription() +
                      elemento.sAuthor() + elemento.sPubDate() + elemento.sGuid(),
                  L"");
        EXPECT_EQ(proposta, inizio);
        return ieri;
    });
    banco.comandi.cmdAggiungi_Click();
    editor.attendi([&](clsItemRss& elemento, DataOra proposta) {
        EXPECT_EQ(elemento.sTitle(), L"");
        EXPECT_EQ(proposta, ieri);
        return std::nullopt;
    });
    banco.comandi.cmdAggiungi_Click();
    EXPECT_EQ(banco.griglia.tabella.conteggio(), 4);
    EXPECT_EQ(banco.griglia.documento.ultimaData(), ieri);
}

TEST_F(ComandiElementiGriglia, AnnullareNonCambiaNulla) {
    Banco banco(3, editor);
    banco.seleziona(2);
    editor.attendi([](clsItemRss& elemento, DataOra) {
        elemento.sTitle(L"buttato");
        return std::nullopt;
    });
    banco.comandi.cmdAggiungi_Click();
    editor.attendi([](clsItemRss& elemento, DataOra) {
        elemento.sTitle(L"buttato");
        return std::nullopt;
    });
    banco.modifica();
    banco.attendiDomanda(Risposta::No);
    banco.cancella();
    EXPECT_EQ(banco.griglia.titoli(),
              (std::vector<std::wstring>{L"titolo 0", L"titolo 1", L"titolo 2"}));
    EXPECT_EQ(banco.griglia.griglia.rigaCorrente(), 2);
    EXPECT_EQ(banco.griglia.documento.ultimaData(), inizio);
    EXPECT_FALSE(banco.griglia.documento.modificato());
}

TEST_F(ComandiElementiGriglia, ModificaRiscriveLaColonnaETieneIlGuid) {
    Banco banco(3, editor);
    Documento& documento = banco.griglia.documento;
    metti(documento, CampoElemento::Link, 1, L"link");
    metti(documento, CampoElemento::Autore, 1, L"autore");
    metti(documento, CampoElemento::Descrizione, 1, L"a\tb");
    metti(documento, CampoElemento::Guid, 1, L"il guid");
    banco.seleziona(2);
    editor.attendi([](clsItemRss& elemento, DataOra) {
        EXPECT_EQ(elemento.sTitle(), L"titolo 1");
        EXPECT_EQ(elemento.sLink(), L"link");
        // Shown with blanks, stored and edited with its tab.
        EXPECT_EQ(elemento.sDescription(), L"a\tb");
        EXPECT_EQ(elemento.sAuthor(), L"autore");
        EXPECT_EQ(elemento.sPubDate(), L"Tue, 15 Nov 2005 10:00:00 +0100");
        EXPECT_EQ(elemento.sGuid(), L"");
        elemento.sTitle(L"altro");
        elemento.sGuid(L"non passa");
        return DataOra::daParti(2001, 1, 1);
    });
    banco.modifica();
    EXPECT_EQ(banco.campo(CampoElemento::Titolo, 1), L"altro");
    EXPECT_EQ(banco.campo(CampoElemento::Descrizione, 1), L"a\tb");
    EXPECT_EQ(banco.campo(CampoElemento::Guid, 1), L"il guid");
    EXPECT_EQ(banco.griglia.testo(2, 1), L"altro\r\na    b");
    EXPECT_EQ(banco.griglia.griglia.rigaCorrente(), 2);
    EXPECT_TRUE(banco.griglia.documento.modificato());
    // Only an added item leaves its date.
    EXPECT_EQ(banco.griglia.documento.ultimaData(), inizio);
}

TEST_F(ComandiElementiGriglia, ConfermareSenzaCambiareNullaEUnaModifica) {
    Banco banco(3, editor);
    banco.seleziona(2);
    editor.attendi([](clsItemRss&, DataOra ultima) { return ultima; });
    banco.modifica();
    EXPECT_EQ(banco.griglia.titoli(),
              (std::vector<std::wstring>{L"titolo 0", L"titolo 1", L"titolo 2"}));
    EXPECT_TRUE(banco.griglia.documento.modificato());
}

TEST_F(ComandiElementiGriglia, CancellaSelezionaLaRigaSopra) {
    Banco banco(5, editor);
    banco.seleziona(4); // item 3
    banco.attendiDomanda(Risposta::Si);
    banco.cancella();
    EXPECT_EQ(banco.griglia.titoli(),
              (std::vector<std::wstring>{L"titolo 0", L"titolo 1", L"titolo 2", L"titolo 4"}));
    EXPECT_EQ(banco.griglia.griglia.rigaCorrente(), 3);
    EXPECT_EQ(banco.selezionato(), 2);
    EXPECT_TRUE(banco.griglia.documento.modificato());
}

TEST_F(ComandiElementiGriglia, CancellatoIlPrimoSiSelezionaIlNuovoPrimo) {
    Banco banco(3, editor);
    banco.seleziona(1);
    banco.attendiDomanda(Risposta::Si);
    banco.cancella();
    EXPECT_EQ(banco.griglia.griglia.rigaCorrente(), 1);
    EXPECT_EQ(banco.griglia.testo(1, 1), L"titolo 1\r\ndescrizione 1");
}

TEST_F(ComandiElementiGriglia, CancellatoLUnicoRestaLaTabellaVuota) {
    Banco banco(1, editor);
    banco.attendiDomanda(Risposta::Si);
    banco.cancella();
    EXPECT_EQ(banco.griglia.tabella.conteggio(), 0);
    EXPECT_EQ(banco.griglia.tabella.limiteSuperiore(), 0);
    EXPECT_EQ(banco.campo(CampoElemento::Titolo, 0), L"");
    EXPECT_EQ(banco.griglia.testo(1, 2), L"-1");
    EXPECT_EQ(banco.selezionato(), -1);
    EXPECT_TRUE(banco.griglia.documento.modificato());
}

TEST_F(ComandiElementiGriglia, SpostaElementoNonToccaIlSegnoDiModifica) {
    Banco banco(4, editor);
    banco.comandi.SpostaElemento(0, 2, Causa::Trascinamento);
    EXPECT_EQ(banco.griglia.titoli(),
              (std::vector<std::wstring>{L"titolo 1", L"titolo 2", L"titolo 0", L"titolo 3"}));
    banco.comandi.SpostaElemento(2, 0, Causa::Trascinamento);
    banco.comandi.SpostaElemento(3, 1, Causa::Trascinamento);
    EXPECT_EQ(banco.griglia.titoli(),
              (std::vector<std::wstring>{L"titolo 0", L"titolo 3", L"titolo 1", L"titolo 2"}));
    EXPECT_FALSE(banco.griglia.documento.modificato());
}

TEST_F(ComandiElementiGriglia, DoveNonCENienteDaSpostareSpostaElementoNonFaNulla) {
    Banco banco(2, editor);
    for (const auto& [da, a] : {std::pair{-1, 0}, std::pair{-1, -2}, std::pair{0, 0},
                                std::pair{0, -1}, std::pair{1, 2}}) {
        banco.comandi.SpostaElemento(da, a, Causa::Comando);
        EXPECT_EQ(banco.griglia.titoli(), (std::vector<std::wstring>{L"titolo 0", L"titolo 1"}));
        EXPECT_FALSE(banco.griglia.documento.modificato()) << da << ' ' << a;
    }
    banco.comandi.SpostaElemento(0, 1, Causa::Comando);
    EXPECT_TRUE(banco.griglia.documento.modificato());
}

TEST_F(ComandiElementiGriglia, ATabellaPienaSiDiceErrore6PrimaDiAprireLEditor) {
    Banco banco(0, editor);
    dimensiona(banco.griglia.documento, 32767);
    banco.messaggi.attendi(testi::diErrore(6), testi::erroreDetto(6), Icona::Informazione);
    banco.comandi.cmdAggiungi_Click();
    EXPECT_EQ(banco.griglia.tabella.conteggio(), 32767);
    EXPECT_EQ(banco.griglia.documento.ultimaData(), inizio);
    EXPECT_FALSE(banco.griglia.documento.modificato());
}

TEST_F(ComandiElementiGriglia, LUltimoPostoSiRiempie) {
    Banco banco(0, editor);
    dimensiona(banco.griglia.documento, 32766);
    attendiCompilato(L"ultimo");
    banco.comandi.cmdAggiungi_Click();
    EXPECT_EQ(banco.griglia.griglia.rigaCorrente(), 32767);
    EXPECT_EQ(banco.griglia.testo(32767, 2), L"32766");
    EXPECT_EQ(banco.griglia.testo(32767, 1), L"t ultimo\r\nd ultimo");
}

TEST_F(ComandiElementiGriglia, UnFallimentoSiDiceELasciaLaTabellaComEra) {
    Banco banco(2, editor);
    const auto fallisci = [](clsItemRss& elemento, DataOra) -> std::optional<DataOra> {
        elemento.sTitle(L"buttato");
        solleva(errori::nomeFileNonValido);
    };
    editor.attendi(fallisci);
    banco.messaggi.attendi(testi::unitaIllegibile, testi::erroreDetto(52), Icona::Informazione);
    banco.comandi.cmdAggiungi_Click();
    editor.attendi(fallisci);
    banco.messaggi.attendi(testi::unitaIllegibile, testi::erroreDetto(52), Icona::Informazione);
    banco.modifica();
    EXPECT_EQ(banco.griglia.titoli(), (std::vector<std::wstring>{L"titolo 0", L"titolo 1"}));
    EXPECT_FALSE(banco.griglia.documento.modificato());
}

TEST_F(ComandiElementiGriglia, UnElementoSparitoSottoLEditorEErrore9) {
    Banco banco(2, editor);
    banco.seleziona(2);
    editor.attendi([&](clsItemRss&, DataOra) {
        banco.griglia.documento.sostituisci({});
        return inizio;
    });
    banco.messaggi.attendi(testi::diErrore(9), testi::erroreDetto(9), Icona::Informazione);
    banco.modifica();
    EXPECT_EQ(banco.griglia.tabella.conteggio(), 0);
}

TEST_F(ComandiElementiGriglia, SeLaGrigliaFallisceLaModificaEComunqueSegnata) {
    Banco banco(1, editor);
    attendiCompilato(L"nuovo");
    banco.fallita.fallisce = true;
    banco.messaggi.attendi(testi::diErrore(7), testi::erroreDetto(7), Icona::Informazione);
    banco.comandi.cmdAggiungi_Click();
    EXPECT_EQ(banco.griglia.tabella.conteggio(), 2);
    EXPECT_TRUE(banco.griglia.documento.modificato());
}

TEST_F(ComandiElementiGriglia, DopoOgniSequenzaLaGrigliaMostraIlModello) {
    constexpr std::uint32_t seme = 1234567;
    SCOPED_TRACE("seed " + std::to_string(seme));
    std::mt19937 caso(seme);
    Banco banco(0, editor);
    std::vector<std::wstring> modello;
    const auto scelto = [&] { return static_cast<int>(caso() % modello.size()); };
    for (int passo = 0; passo < 160; ++passo) {
        const std::wstring nome = std::to_wstring(passo);
        const bool cala = passo / 40 % 2 == 1;
        const auto azione = caso() % 8;
        if (modello.empty() || azione < (cala ? 1U : 4U)) {
            attendiCompilato(nome);
            banco.comandi.cmdAggiungi_Click();
            modello.push_back(nome);
            ASSERT_EQ(banco.selezionato(), static_cast<int>(modello.size()) - 1);
        } else if (azione < 5) {
            const int i = scelto();
            banco.seleziona(i + 1);
            attendiCompilato(nome);
            banco.modifica();
            modello[static_cast<std::size_t>(i)] = nome;
            ASSERT_EQ(banco.selezionato(), i);
        } else if (azione < (cala ? 7U : 6U)) {
            const int i = scelto();
            banco.seleziona(i + 1);
            banco.attendiDomanda(Risposta::Si);
            banco.cancella();
            modello.erase(modello.begin() + i);
            ASSERT_EQ(banco.griglia.griglia.rigaCorrente(), i > 0 ? i : 1);
        } else {
            const int da = scelto();
            const int a = scelto();
            banco.comandi.SpostaElemento(da, a, Causa::Trascinamento);
            const std::wstring mosso = modello[static_cast<std::size_t>(da)];
            modello.erase(modello.begin() + da);
            modello.insert(modello.begin() + a, mosso);
        }
        const int quanti = static_cast<int>(modello.size());
        ASSERT_EQ(banco.griglia.tabella.conteggio(), quanti) << "step " << passo;
        for (int i = 0; i < quanti; ++i) {
            const std::wstring titolo = L"t " + modello[static_cast<std::size_t>(i)];
            std::wstring cella = titolo;
            cella.append(L"\r\nd ").append(titolo, 2);
            ASSERT_EQ(banco.campo(CampoElemento::Titolo, i), titolo) << "step " << passo;
            ASSERT_EQ(banco.griglia.testo(i + 1, 1), cella) << "step " << passo;
            ASSERT_EQ(banco.griglia.testo(i + 1, 2), std::to_wstring(i));
        }
        if (quanti < 49) {
            ASSERT_EQ(banco.griglia.testo(quanti + 1, 2), L"-1");
        }
    }
}
