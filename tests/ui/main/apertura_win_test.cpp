#include "ui/main/apertura_win.h"

#include "tests/aiuti/cartellaLunga_win.h"
#include "tests/aiuti/cartella_win.h"

#include <array>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

// The current folder is another one for the life of this.
class CartellaCorrente {
public:
    explicit CartellaCorrente(const std::wstring& percorso) {
        GetCurrentDirectoryW(static_cast<DWORD>(prima_.size()), prima_.data());
        EXPECT_TRUE(SetCurrentDirectoryW(percorso.c_str()));
    }
    CartellaCorrente(const CartellaCorrente&) = delete;
    CartellaCorrente& operator=(const CartellaCorrente&) = delete;
    ~CartellaCorrente() { SetCurrentDirectoryW(prima_.data()); }

private:
    std::array<wchar_t, 1000> prima_{};
};

std::wstring nominato(const std::wstring& argomenti) {
    return documentoNominato(L"\"C:\\Programmi\\Ostrelle.exe\" " + argomenti);
}

} // namespace

TEST(DocumentoNominato, UnSoloArgomentoCheEUnFile) {
    const CartellaProva cartella;
    for (const wchar_t* const nome :
         {L"semplice.xml", L"due parole.rss", L"100%25 #1 & l'altro.xml", L"città è più.xml"}) {
        const std::wstring percorso = cartella.scrivi(nome, "");
        EXPECT_EQ(nominato(L'"' + percorso + L'"'), percorso);
    }
    const std::wstring percorso = cartella.scrivi(L"senza.xml", "");
    ASSERT_EQ(percorso.find(L' '), std::wstring::npos);
    EXPECT_EQ(nominato(percorso), percorso);
    EXPECT_EQ(documentoNominato(L"Ostrelle " + percorso), percorso);
}

TEST(DocumentoNominato, UnNomeRelativoPartiDallaCartellaCorrente) {
    const CartellaProva cartella;
    const std::wstring percorso = cartella.scrivi(L"due parole.xml", "");
    const CartellaCorrente corrente(cartella.percorso());
    EXPECT_EQ(nominato(L"\"due parole.xml\""), percorso);
    EXPECT_EQ(nominato(L"\".\\due parole.xml\""), percorso);
    EXPECT_EQ(nominato(L"\"../" + cartella.percorso().substr(cartella.percorso().rfind(L'\\') + 1) +
                       L"/due parole.xml\""),
              percorso);
}

TEST(DocumentoNominato, UnPercorsoPiuLungoDi260EUnFile) {
    CartellaLunga cartella;
    const std::wstring percorso = cartella.scrivi(L"a b.xml", "");
    ASSERT_GT(percorso.size(), 260U);
    EXPECT_EQ(nominato(L'"' + percorso + L'"'), percorso);
    EXPECT_EQ(nominato(L'"' + percorso + L"x\""), L"");
    EXPECT_EQ(nominato(L"\"\\\\?\\" + percorso + L'"'), L"\\\\?\\" + percorso);
}

TEST(DocumentoNominato, NessunArgomentoPiuDiUnoOQualcosAltroNonContano) {
    const CartellaProva cartella;
    const std::wstring uno = cartella.scrivi(L"uno.xml", "");
    const std::wstring due = cartella.scrivi(L"due.xml", "");
    const CartellaCorrente corrente(cartella.percorso());
    ASSERT_EQ(nominato(L"uno.xml"), uno);
    const std::vector<std::wstring> altri{L"",
                                          L"uno.xml due.xml",
                                          L"/S",
                                          L"--help",
                                          L"\"\"",
                                          L"\" \"",
                                          L"manca.xml",
                                          L"*.xml",
                                          L"?no.xml",
                                          L".",
                                          L"nul",
                                          L"con",
                                          L"http://e.example/uno.xml",
                                          cartella.percorso(),
                                          cartella.percorso() + L'\\',
                                          std::wstring(40000, L'x')};
    for (const std::wstring& argomenti : altri) {
        EXPECT_EQ(nominato(argomenti), L"") << inUtf8(argomenti);
    }
}
