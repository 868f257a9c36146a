#include "tests/aiuti/feedDiProva_win.h"
#include "tests/aiuti/frmMain_win.h"
#include "tests/aiuti/griglia_prova_win.h"
#include "tests/aiuti/testi.h"

#include <array>
#include <optional>

namespace {

class Documenti : public ProvaFrmMain {
protected:
    // A feed file of one item.
    std::wstring feed(std::wstring_view nome, std::string_view resto = "") {
        return cartella.scrivi(nome, rssCon("<title>Canale</title>" + std::string(resto) +
                                            "<item><title>uno</title></item>"));
    }
    // The document as it would be told apart from another one.
    [[nodiscard]] std::wstring impronta() {
        std::wstring tutto = titolo() + L'|' + documento.percorso() + L'|' + titoliElementi();
        for (const int id : campiTesto) {
            tutto += L'|' + campi.testo(id);
        }
        return tutto;
    }
    [[nodiscard]] static std::wstring inMaiuscolo(std::wstring percorso) {
        CharUpperBuffW(percorso.data(), static_cast<DWORD>(percorso.size()));
        return percorso;
    }
};

} // namespace

TEST_F(Documenti, ApreChiedendoIlFileERiempieOgniCampo) {
    const std::wstring percorso =
        feed(L"a.xml", "<link>l</link><description>a\nb</description><language>it</language>"
                       "<copyright>c</copyright><lastBuildDate>Sat, 05 Mar 2005 21:22:23 +0100"
                       "</lastBuildDate><webMaster>w</webMaster><image><title>t</title><url>u</url>"
                       "<link>k</link><width>120px</width><height>60</height></image>");
    dialoghi.attendiApri(richiestaApri, percorso);
    EXPECT_TRUE(finestra.Apri(L""));
    EXPECT_EQ(titolo(), L"Ostrelle  [" + percorso + L"]");
    EXPECT_EQ(documento.percorso(), percorso);
    const std::array attesi{L"Canale", L"l", L"a\r\nb", L"it", L"c", L"w", L"t", L"u", L"k"};
    for (std::size_t i = 0; i < attesi.size(); ++i) {
        EXPECT_EQ(campi.testo(campiTesto[i]), attesi[i]);
    }
    EXPECT_EQ(campi.dataOra(), DataOra::daParti(2005, 3, 5, 21, 22, 23));
    EXPECT_EQ(campi.txtLarghezza().Valore(), 120);
    EXPECT_EQ(campi.txtAltezza().Valore(), 60);
    EXPECT_EQ(titoliElementi(), L"uno;");
    EXPECT_EQ(griglia().elemento(1), 0);
    EXPECT_FALSE(documento.modificato());
    EXPECT_FALSE(documento.nuovo());
    // Only a save adds to the recent files.
    EXPECT_TRUE(impostazioni.valori.empty());
}

TEST_F(Documenti, AnnullareIDialoghiNonCambiaNulla) {
    metti(L"uno");
    campi.testo(IDC_TXTTITOLO, L"t");
    const std::wstring prima = impronta();
    attendiDomanda(Risposta::No);
    dialoghi.attendiApri(richiestaApri, std::nullopt);
    EXPECT_FALSE(finestra.Apri(L""));
    dialoghi.attendiSalva(richiestaSalva, std::nullopt);
    EXPECT_FALSE(finestra.Salva(false));
    EXPECT_EQ(impronta(), prima);
    EXPECT_TRUE(documento.modificato());
}

TEST_F(Documenti, UnFileRecenteCheMancaEErrore8292ELasciaIlDocumento) {
    metti(L"uno");
    const std::wstring prima = impronta();
    const std::wstring percorso = cartella.file(L"città.xml");
    attendiErrore(8292, inMaiuscolo(percorso) + testi::diErrore(8292));
    EXPECT_FALSE(finestra.Apri(percorso));
    EXPECT_EQ(impronta(), prima);
}

TEST_F(Documenti, UnaCartellaOUnFileNascostoNonSiTrovano) {
    attendiErrore(8292, inMaiuscolo(cartella.percorso()) + testi::diErrore(8292));
    EXPECT_FALSE(finestra.Apri(cartella.percorso()));
    const std::wstring nascosto = feed(L"n.xml");
    SetFileAttributesW(nascosto.c_str(), FILE_ATTRIBUTE_HIDDEN);
    attendiErrore(8292, inMaiuscolo(nascosto) + testi::diErrore(8292));
    EXPECT_FALSE(finestra.Apri(nascosto));
}

TEST_F(Documenti, LaDomandaVienePrimaDelControlloDelFile) {
    metti(L"uno");
    finestra.ImpostaModificato();
    attendiDomanda(Risposta::Annulla);
    EXPECT_FALSE(finestra.Apri(cartella.file(L"manca.xml")));
}

TEST_F(Documenti, UnFileIllegibileLasciaLaFinestraVuotaEPulita) {
    metti(L"uno");
    campi.testo(IDC_TXTTITOLO, L"t");
    documento.percorso(L"C:\\vecchio.xml");
    const std::wstring percorso = cartella.scrivi(L"rotto.xml", "<rss>");
    attendiDomanda(Risposta::No);
    attendiErrore(18343, inMaiuscolo(percorso) + testi::diErrore(18343));
    EXPECT_FALSE(finestra.Apri(percorso));
    EXPECT_EQ(titolo(), L"Ostrelle  [Nuovo Documento]");
    EXPECT_EQ(titoliElementi(), L"");
    EXPECT_EQ(campi.testo(IDC_TXTTITOLO), L"");
    EXPECT_EQ(documento.percorso(), L"");
    EXPECT_FALSE(documento.modificato());
}

TEST_F(Documenti, UnaDataIllegibileSiDiceUnaVoltaEIlRestoSiCarica) {
    attendiErrore(4453);
    EXPECT_TRUE(finestra.Apri(
        feed(L"d.xml", "<lastBuildDate>ieri</lastBuildDate><webMaster>w</webMaster>")));
    EXPECT_EQ(campi.dataOra(), orologio.locale());
    EXPECT_EQ(campi.testo(IDC_TXTWEBMASTER), L"w");
    EXPECT_EQ(titoliElementi(), L"uno;");
    EXPECT_FALSE(documento.modificato());
}

TEST_F(Documenti, UnaDataCheISelettoriNonTengonoSiDiceUnaVolta) {
    attendiErrore(380);
    EXPECT_TRUE(finestra.Apri(
        feed(L"d.xml", "<lastBuildDate>Sat, 01 Jan 1600 00:00:00 +0000</lastBuildDate>")));
    EXPECT_EQ(campi.dataOra(), orologio.locale());
}

TEST_F(Documenti, UnaMisuraFuoriDaiLimitiSiDiceEPoiLaGrigliaMostraGliElementi) {
    for (const char* const misura :
         {"<width>10001</width>", "<width>-1</width>", "<height>10001</height>"}) {
        messaggi.attendi(testi::diErrore(380), testi::erroreNumero(380), Icona::Critica,
                         Pulsanti::Ok, Risposta::Ok, [&] { EXPECT_EQ(griglia().elemento(1), -1); });
        const std::wstring percorso =
            feed(L"m.xml", "<image><title>t</title>" + std::string(misura) + "</image>");
        EXPECT_FALSE(finestra.Apri(percorso));
        EXPECT_EQ(documento.percorso(), percorso);
        EXPECT_EQ(titolo(), L"Ostrelle  [" + percorso + L"]");
        EXPECT_EQ(campi.testo(IDC_TXTLOGO), L"t");
        EXPECT_EQ(campi.txtLarghezza().Valore(), 0);
        EXPECT_EQ(campi.txtAltezza().Valore(), 0);
        EXPECT_EQ(titoliElementi(), L"uno;");
        EXPECT_EQ(griglia().elemento(1), 0);
        EXPECT_EQ(testoCella(griglia().lista(), 1, 1), L"uno\r\n");
        EXPECT_TRUE(documento.modificato());
        EXPECT_FALSE(documento.nuovo());
        finestra.NuovoDocumento();
    }
}

TEST_F(Documenti, SalvareSenzaElementiEErrore12883) {
    campi.testo(IDC_TXTTITOLO, L"t");
    attendiErrore(12883);
    EXPECT_FALSE(finestra.Salva(false));
    attendiErrore(12883);
    EXPECT_FALSE(finestra.Salva(true));
    EXPECT_TRUE(documento.modificato());
}

TEST_F(Documenti, RispondereSiSenzaElementiAbbandonaLAzione) {
    campi.testo(IDC_TXTTITOLO, L"t");
    attendiDomanda(Risposta::Si);
    attendiErrore(12883);
    EXPECT_FALSE(finestra.ChiediSalvataggio());
    attendiDomanda(Risposta::Si);
    attendiErrore(12883);
    finestra.esegui(mnNuovo);
    EXPECT_EQ(campi.testo(IDC_TXTTITOLO), L"t");
}

TEST_F(Documenti, SalvaRifilaICampiETieneGliSpaziInizialiDellaDescrizione) {
    metti(L"uno");
    const std::array scritti{L"  t ", L" l  ", L"  d  ", L" it ", L" c ",
                             L" w ",  L" i ",  L" u ",   L" k "};
    for (std::size_t i = 0; i < scritti.size(); ++i) {
        campi.testo(campiTesto[i], scritti[i]);
    }
    campi.dimensioni(12, 34);
    const std::wstring percorso = cartella.file(L"s.xml");
    dialoghi.attendiSalva(richiestaSalva, percorso);
    EXPECT_TRUE(finestra.Salva(false));
    FeedDiProva d;
    d.leggi(percorso);
    // The bytes: reading strips texts by itself.
    const std::string byte = leggiTutto(percorso);
    for (const char* const pezzo :
         {"<title>t</title><link>l</link><description>  d</description><language>it</language>"
          "<copyright>c</copyright><lastBuildDate>",
          "</lastBuildDate><webMaster>w</webMaster><image><title>i</title><url>u</url>"
          "<link>k</link><width>12</width><height>34</height></image><item>"}) {
        EXPECT_NE(byte.find(pezzo), std::string::npos) << byte;
    }
    EXPECT_EQ(d.lastBuildDate.substr(0, 25), L"Tue, 15 Nov 2005 10:00:00");
    EXPECT_EQ(titolo(), L"Ostrelle  [" + percorso + L"]");
    EXPECT_FALSE(documento.modificato());
}

TEST_F(Documenti, UnImmagineSenzaTitoloSiScriveSenzaMisure) {
    metti(L"uno");
    campi.testo(IDC_TXTLOGO, L"   ");
    campi.testo(IDC_TXTURL, L"u");
    campi.dimensioni(12, 34);
    const std::wstring percorso = cartella.file(L"i.xml");
    dialoghi.attendiSalva(richiestaSalva, percorso);
    ASSERT_TRUE(finestra.Salva(false));
    FeedDiProva d;
    d.leggi(percorso);
    EXPECT_EQ(d.image.sTitle(), L"");
    EXPECT_EQ(d.image.sUrl(), L"u");
    EXPECT_EQ(d.image.nWidth(), 0);
    EXPECT_EQ(d.image.nHeight(), 0);
}

TEST_F(Documenti, SalvaSuUnDocumentoConNomeNonChiedeConNomeChiedeSempre) {
    ASSERT_TRUE(finestra.Apri(feed(L"a.xml")));
    campi.testo(IDC_TXTTITOLO, L"altro");
    EXPECT_TRUE(finestra.Salva(false));
    const std::wstring nuovo = cartella.file(L"b.xml");
    dialoghi.attendiSalva(richiestaSalva, nuovo);
    EXPECT_TRUE(finestra.Salva(true));
    EXPECT_EQ(documento.percorso(), nuovo);
    FeedDiProva d;
    d.leggi(nuovo);
    EXPECT_EQ(d.title, L"altro");
}

TEST_F(Documenti, UnSalvataggioFallitoLasciaPercorsoTitoloElencoEModifica) {
    ASSERT_TRUE(finestra.Apri(feed(L"a.xml")));
    campi.testo(IDC_TXTTITOLO, L"altro");
    const std::wstring prima = impronta();
    const std::wstring protetto = feed(L"p.xml");
    SetFileAttributesW(protetto.c_str(), FILE_ATTRIBUTE_READONLY);
    dialoghi.attendiSalva(richiestaSalva, protetto);
    attendiErrore(75);
    EXPECT_FALSE(finestra.Salva(true));
    EXPECT_NE(leggiTutto(protetto).find("Canale"), std::string::npos);
    EXPECT_EQ(impronta(), prima);
    EXPECT_TRUE(documento.modificato());
    EXPECT_TRUE(impostazioni.valori.empty());
}

TEST_F(Documenti, UnElencoCheNonSiScriveSiDiceAFileGiaSalvatoECheRestaModificato) {
    metti(L"uno");
    finestra.ImpostaModificato();
    impostazioni.rifiuta = true;
    const std::wstring percorso = cartella.file(L"r.xml");
    dialoghi.attendiSalva(richiestaSalva, percorso);
    attendiErrore(75);
    EXPECT_FALSE(finestra.Salva(false));
    EXPECT_NE(leggiTutto(percorso).find("uno"), std::string::npos);
    EXPECT_EQ(titolo(), L"Ostrelle  [" + percorso + L"]");
    EXPECT_TRUE(documento.modificato());
    // Once the store lets itself be written, the same file without asking.
    impostazioni.rifiuta = false;
    EXPECT_TRUE(finestra.Salva(false));
    EXPECT_FALSE(documento.modificato());
    EXPECT_EQ(impostazioni.valori.size(), 1U);
}

TEST_F(Documenti, UnFileTenutoDaUnAltroProgrammaNonSiSalva) {
    ASSERT_TRUE(finestra.Apri(feed(L"a.xml")));
    const ManigliaFile tenuto(CreateFileW(documento.percorso().c_str(), GENERIC_READ, 0, nullptr,
                                          OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(tenuto);
    campi.testo(IDC_TXTTITOLO, L"altro");
    attendiErrore(70);
    EXPECT_FALSE(finestra.Salva(false));
    EXPECT_TRUE(documento.modificato());
}

TEST_F(Documenti, UnCarattereCheLXmlNonTieneNonToccaIlFile) {
    ASSERT_TRUE(finestra.Apri(feed(L"a.xml")));
    const std::string prima = leggiTutto(documento.percorso());
    ::metti(documento, CampoElemento::Descrizione, 0, L"a]]>b");
    attendiErrore(5, inMaiuscolo(documento.percorso()) +
                         L": sequenza ]]> non ammessa in descrizione dell'elemento 1.");
    EXPECT_FALSE(finestra.Salva(false));
    EXPECT_EQ(leggiTutto(documento.percorso()), prima);
    EXPECT_FALSE(documento.modificato());
}

TEST_F(Documenti, NomiDifficiliSiSalvanoESiRiapronoUguali) {
    for (const wchar_t* const nome :
         {L"a%20b.xml", L"c#1.xml", L"d & e.xml", L"l'età.xml", L"f.rss"}) {
        finestra.NuovoDocumento();
        metti(nome);
        const std::wstring percorso = cartella.file(nome);
        dialoghi.attendiSalva(richiestaSalva, percorso);
        ASSERT_TRUE(finestra.Salva(false));
        finestra.NuovoDocumento();
        ASSERT_TRUE(finestra.Apri(percorso));
        EXPECT_EQ(titoliElementi(), std::wstring(nome) + L';');
    }
}

TEST_F(Documenti, IRecentiStannoNelMenuESiAprono) {
    const HMENU file = GetSubMenu(GetMenu(finestra.hwnd()), 0);
    HMENU recenti = nullptr;
    for (int i = 0; recenti == nullptr; ++i) {
        recenti = GetSubMenu(file, i);
    }
    const auto voce = [&](UINT posizione) {
        std::array<wchar_t, 300> testo{};
        GetMenuStringW(recenti, posizione, testo.data(), static_cast<int>(testo.size()),
                       MF_BYPOSITION);
        return std::wstring(testo.data());
    };
    EXPECT_EQ(GetMenuItemCount(recenti), 1);
    EXPECT_EQ(voce(0), L"nessuna voce in elenco");
    EXPECT_NE(GetMenuState(recenti, 0, MF_BYPOSITION) & MF_GRAYED, 0U);

    metti(L"uno");
    const std::wstring percorso = cartella.file(L"A&B.XML");
    dialoghi.attendiSalva(richiestaSalva, percorso);
    ASSERT_TRUE(finestra.Salva(false));
    ASSERT_EQ(GetMenuItemCount(recenti), 1);
    EXPECT_NE(voce(0).find(L"a&&b.xml"), std::wstring::npos);

    finestra.NuovoDocumento();
    SendMessageW(finestra.hwnd(), WM_COMMAND, GetMenuItemID(recenti, 0), 0);
    EXPECT_EQ(titoliElementi(), L"uno;");
    // Opened from the list, under the path as the list has it.
    EXPECT_NE(documento.percorso().find(L"a&b.xml"), std::wstring::npos);
}

TEST_F(Documenti, AncheIlDecimoRecenteSiApre) {
    const std::wstring decimo = feed(L"decimo.xml");
    for (int i = 1; i <= 10; ++i) {
        impostazioni.scrivi(L"url", L"murl" + std::to_wstring(i),
                            i == 10 ? decimo : L"c:\\f" + std::to_wstring(i) + L".xml");
    }
    finestra.CaricaRecenti();
    SendMessageW(finestra.hwnd(), WM_COMMAND, mnrec + 10, 0);
    EXPECT_EQ(titoliElementi(), L"uno;");
}

TEST_F(Documenti, UnDocumentoNuovoDiSoliSpaziVaSenzaDomanda) {
    campi.testo(IDC_TXTTITOLO, L"   ");
    EXPECT_TRUE(documento.modificato());
    EXPECT_TRUE(finestra.ChiediSalvataggio());
    finestra.esegui(mnNuovo);
    EXPECT_EQ(campi.testo(IDC_TXTTITOLO), L"");
}

// Every state of the document against every command that throws it away, and every answer.
TEST_F(Documenti, OgniStatoOgniComandoOgniRisposta) {
    const std::wstring altro = feed(L"altro.xml");
    struct Caso {
        Risposta risposta;
        bool salvataggioAnnullato;
    };
    const std::array casi{Caso{Risposta::No, false}, Caso{Risposta::Annulla, false},
                          Caso{Risposta::Si, false}, Caso{Risposta::Si, true}};
    int numero = 0;
    for (const bool conNome : {false, true}) {
        for (const bool modificato : {false, true}) {
            for (const bool vuoto : {false, true}) {
                for (const int comando : {int{mnNuovo}, int{mnApri}}) {
                    for (const Caso& caso : casi) {
                        SCOPED_TRACE(++numero);
                        finestra.NuovoDocumento();
                        if (conNome) {
                            const std::wstring mio = feed(L"mio.xml");
                            ASSERT_TRUE(finestra.Apri(mio));
                        }
                        if (vuoto) {
                            documento.sostituisci({});
                            campi.testo(IDC_TXTTITOLO, L"");
                        } else if (!conNome) {
                            metti(L"uno");
                        }
                        documento.modificato(modificato);
                        const std::wstring prima = impronta();

                        const bool chiede = modificato && (conNome || !vuoto);
                        bool prosegue = true;
                        if (chiede) {
                            attendiDomanda(caso.risposta);
                            prosegue = caso.risposta == Risposta::No;
                            if (caso.risposta == Risposta::Si && vuoto) {
                                attendiErrore(12883);
                            } else if (caso.risposta == Risposta::Si) {
                                prosegue = conNome || !caso.salvataggioAnnullato;
                                if (!conNome) {
                                    dialoghi.attendiSalva(
                                        richiestaSalva,
                                        caso.salvataggioAnnullato
                                            ? std::nullopt
                                            : std::optional(cartella.file(L"salvato.xml")));
                                }
                            }
                        }
                        if (prosegue && comando == mnApri) {
                            dialoghi.attendiApri(richiestaApri, altro);
                        }
                        finestra.esegui(comando);
                        if (!prosegue) {
                            EXPECT_EQ(impronta(), prima);
                            EXPECT_TRUE(documento.modificato());
                        } else if (comando == mnNuovo) {
                            EXPECT_EQ(titolo(), L"Ostrelle  [Nuovo Documento]");
                            EXPECT_EQ(titoliElementi(), L"");
                        } else {
                            EXPECT_EQ(documento.percorso(), altro);
                        }
                        EXPECT_EQ(documento.modificato(), !prosegue);
                    }
                }
            }
        }
    }
}
