#include "tests/aiuti/editor_prova_win.h"
#include "tests/aiuti/schermo_win.h"
#include "tests/aiuti/testi.h"

#include <array>

namespace {

using FrmEditFeedRifiuti = ProvaEditor;

} // namespace

TEST_F(FrmEditFeedRifiuti, UnTestoCheNessunFeedTieneSiRifiutaNelSuoCampo) {
    struct Caso {
        int campo;
        const wchar_t* valore;
        const wchar_t* messaggio;
    };
    const std::array casi{
        Caso{IDC_EDITTITOLO, L"a\vb", L"Carattere non ammesso in titolo (U+000B)."},
        Caso{IDC_EDITLINK, L"\xD800", L"Carattere non ammesso in link (U+D800)."},
        Caso{IDC_EDITAUTORE, L"\xFFFE", L"Carattere non ammesso in autore (U+FFFE)."},
        Caso{IDC_EDITDESCRIZIONE, L"\x1F", L"Carattere non ammesso in descrizione (U+001F)."},
        Caso{IDC_EDITDESCRIZIONE, L"a]]>b", L"Sequenza ]]> non ammessa in descrizione."}};
    usa([&] {
        // Elsewhere it does no harm.
        imposta(IDC_EDITTITOLO, L"titolo ]]>");
        imposta(IDC_EDITLINK, L"link ]]>");
        imposta(IDC_EDITAUTORE, L"autore ]]>");
        for (const Caso& caso : casi) {
            const std::wstring buono = testo(caso.campo);
            imposta(caso.campo, caso.valore);
            messaggi.attendi(caso.messaggio, testi::erroreDetto(5), Icona::Informazione);
            clic(controllo(IDC_CMDSALVA));
            ASSERT_TRUE(aperta());
            EXPECT_EQ(GetFocus(), controllo(caso.campo));
            EXPECT_EQ(testo(caso.campo), caso.valore);
            EXPECT_TRUE(editor.Annullato());
            EXPECT_FALSE(editor.Elemento().Modificato());
            imposta(caso.campo, buono);
        }
        clic(controllo(IDC_CMDSALVA));
    });
    EXPECT_FALSE(editor.Annullato());
    EXPECT_EQ(editor.Elemento().sTitle(), L"titolo ]]>");
    EXPECT_EQ(editor.Elemento().sLink(), L"link ]]>");
    EXPECT_EQ(editor.Elemento().sAuthor(), L"autore ]]>");
}
