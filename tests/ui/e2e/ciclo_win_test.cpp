// The shipped executable from outside, with keys and mouse: the whole cycle of keeping a feed.

#include "res/risorse.h"
#include "support/testi/testo.h"
#include "support/windows/file_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/chiaveSalvata_win.h"
#include "tests/aiuti/datiLocali_win.h"
#include "tests/aiuti/feedDiProva_win.h"
#include "tests/aiuti/programma_prova_win.h"
#include "tests/aiuti/testi.h"

#include <windows.h>

#include <array>
#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace {

// The first of the recent files as the registry holds it, below the program's settings.
std::wstring primoRecente(const ChiaveSalvata& impostazioni) {
    std::array<wchar_t, 1024> valore{};
    DWORD byte = sizeof(valore);
    const LSTATUS esito = RegGetValueW(HKEY_CURRENT_USER, (impostazioni.nome() + L"\\url").c_str(),
                                       L"murl1", RRF_RT_REG_SZ, nullptr, valore.data(), &byte);
    return esito == ERROR_SUCCESS ? valore.data() : L"(no value)";
}

constexpr std::array<std::pair<int, const wchar_t*>, 9> canale{{
    {IDC_TXTTITOLO, L"Notizie dal circolo"},
    {IDC_TXTLINKHOME, L"https://circolo.example/"},
    {IDC_TXTDESCRIZIONE, L"Serate & lezioni, perché no"},
    {IDC_CBOLINGUA, L"it"},
    {IDC_TXTCOPYRIGHT, L"Il circolo"},
    {IDC_TXTWEBMASTER, L"posta@circolo.example"},
    {IDC_TXTLOGO, L"Il logo"},
    {IDC_TXTURL, L"https://circolo.example/logo.gif"},
    {IDC_TXTLINKIMG, L"https://circolo.example/chi"},
}};

} // namespace

TEST(Ciclo, NuovoCanaleElementiSalvaChiudiRiapriEConfronta) {
    const CartellaProva cartella;
    const DatiLocaliProva dati(cartella.file(L"dati"));
    const ChiaveSalvata impostazioni(HKEY_CURRENT_USER,
                                     L"Software\\VB and VBA Program Settings\\Ostrelle");
    const std::wstring feed = cartella.file(L"Il mio feed.xml");
    {
        Programma programma;
        programma.scriviIn(programma.campo(IDC_TXTTITOLO), L"da buttare");
        premi('N', {VK_CONTROL});
        programma.rispondi(testi::salvataggio, IDNO);
        EXPECT_TRUE(attendiChe(
            [&] { return Programma::testoNel(programma.campo(IDC_TXTTITOLO)).empty(); }));
        for (const auto& [id, testo] : canale) {
            programma.scriviIn(programma.campo(id), testo);
        }
        int riga = 0;
        for (const wchar_t* const nome : {L"uno", L"due", L"tre", L"quattro"}) {
            programma.aggiungi(nome);
            programma.attendiScelta(riga++);
        }
        // The first goes below the third: due, tre, uno, quattro.
        trascina(programma.lista(), programma.punto(0), programma.punto(2));
        programma.attendiScelta(2);
        // The second, "tre", gets another title.
        doppioClic(programma.lista(), programma.punto(1));
        {
            const HWND editor = programma.attendiFinestra(L"#32770", L"");
            const HWND titolo = GetDlgItem(editor, IDC_EDITTITOLO);
            EXPECT_EQ(Programma::testoNel(titolo), L"tre");
            clic(titolo);
            premi(VK_END);
            scrivi(L" bis");
            EXPECT_TRUE(attendiChe([&] { return Programma::testoNel(titolo) == L"tre bis"; }));
            clic(GetDlgItem(editor, IDC_CMDSALVA));
            Programma::attendiChiusa(editor);
            programma.attendiTastiera(programma.principale);
        }
        // The last goes, once the question is answered.
        clic(programma.lista(), programma.punto(3));
        programma.attendiScelta(3);
        for (const int risposta : {IDNO, IDYES}) {
            clic(programma.pulsante(cmdCancella));
            programma.rispondi(testi::attenzione, risposta);
        }
        programma.attendiScelta(2);

        premi('S', {VK_CONTROL});
        programma.scegliFile(feed);
        programma.attendiTitolo(L"Ostrelle  [" + feed + L"]");
        EXPECT_EQ(programma.chiudi(), 0U);
    }
    EXPECT_EQ(primoRecente(impostazioni), minuscolo(feed));
    FeedDiProva documento;
    documento.leggi(feed);
    EXPECT_EQ(documento.title, canale[0].second);
    EXPECT_EQ(documento.description, canale[2].second);
    ASSERT_EQ(documento.items.conteggio(), 3);
    const std::array titoli{L"due", L"tre bis", L"uno"};
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(documento.items(CampoElemento::Titolo, i), titoli[static_cast<std::size_t>(i)]);
    }
    EXPECT_EQ(documento.items(CampoElemento::Descrizione, 2), L"Perché uno & più");
    const std::string scritto = leggiTutto(feed);
    {
        Programma programma;
        premi('O', {VK_CONTROL});
        programma.scegliFile(feed);
        programma.attendiTitolo(L"Ostrelle  [" + feed + L"]");
        programma.attendiTastiera(programma.principale);
        for (const auto& [id, testo] : canale) {
            EXPECT_EQ(Programma::testoNel(programma.campo(id)), testo);
        }
        // Saved again untouched it is the same file.
        ASSERT_TRUE(DeleteFileW(feed.c_str()));
        premi('S', {VK_CONTROL});
        EXPECT_TRUE(attendiChe([&] { return fileEsiste(feed); }));
        EXPECT_EQ(programma.chiudi(), 0U);
        EXPECT_EQ(leggiTutto(feed), scritto);
    }
}
