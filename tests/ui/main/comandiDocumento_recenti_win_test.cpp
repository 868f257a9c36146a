// What the system's own list of recent documents holds after a file was opened or saved.

#include "tests/aiuti/cartellaLunga_win.h"
#include "tests/aiuti/feedDiProva_win.h"
#include "tests/aiuti/frmMain_win.h"
#include "tests/aiuti/testi.h"
#include "ui/main/recentiSistema_win.h"

#include "support/testi/testo.h"
#include "support/windows/file_win.h"

#include <shlobj.h>

#include <array>

namespace {

constexpr const char* contenuto = "<title>c</title><item><title>uno</title></item>";

class RecentiDiSistema : public ProvaFrmMain {
protected:
    // A name that no run of the tests had before.
    [[nodiscard]] std::wstring nome(std::wstring_view quale) const {
        return cartella.percorso().substr(cartella.percorso().rfind(L'\\') + 1) +
               std::wstring(quale) + L".xml";
    }
    [[nodiscard]] static bool ricordato(const std::wstring& nomeFile) {
        std::array<wchar_t, MAX_PATH> dove{};
        EXPECT_EQ(SHGetFolderPathW(nullptr, CSIDL_RECENT, nullptr, 0, dove.data()), S_OK);
        return fileEsiste(std::wstring(dove.data()) + L'\\' +
                          nomeFile.substr(0, nomeFile.rfind(L'.')) + L"*.lnk");
    }
};

} // namespace

TEST_F(RecentiDiSistema, UnFileApertoVienRicordato) {
    const std::wstring percorso = cartella.scrivi(nome(L"aperto"), rssCon(contenuto));
    EXPECT_FALSE(ricordato(nome(L"aperto")));
    EXPECT_TRUE(finestra.Apri(percorso));
    // Not before the grid shows the items.
    EXPECT_FALSE(ricordato(nome(L"aperto")));
    finestra.codaVuota();
    EXPECT_TRUE(ricordato(nome(L"aperto")));
    const std::wstring scelto = cartella.scrivi(nome(L"scelto"), rssCon(contenuto));
    dialoghi.attendiApri(richiestaApri, scelto);
    EXPECT_TRUE(finestra.Apri(L""));
    finestra.codaVuota();
    EXPECT_TRUE(ricordato(nome(L"scelto")));
}

TEST_F(RecentiDiSistema, UnFileSalvatoVienRicordato) {
    metti(L"uno");
    dialoghi.attendiSalva(richiestaSalva, cartella.file(nome(L"salvato")));
    EXPECT_TRUE(finestra.Salva(false));
    finestra.codaVuota();
    EXPECT_TRUE(ricordato(nome(L"salvato")));
}

TEST_F(RecentiDiSistema, ChiNonHaAvutoIlTempoViArrivaAllaFine) {
    const std::wstring percorso = cartella.scrivi(nome(L"ultimo"), "");
    {
        RecentiSistema recenti;
        recenti.ricorda(percorso);
        EXPECT_FALSE(ricordato(nome(L"ultimo")));
    }
    EXPECT_TRUE(ricordato(nome(L"ultimo")));
}

TEST_F(RecentiDiSistema, QuelloCheNonRiesceNo) {
    const std::wstring rotto = cartella.scrivi(nome(L"rotto"), "<rss>");
    attendiErrore(18343, maiuscolo(rotto) + testi::diErrore(18343));
    EXPECT_FALSE(finestra.Apri(rotto));
    finestra.codaVuota();
    EXPECT_FALSE(ricordato(nome(L"rotto")));
    metti(L"\v");
    const std::wstring rifiutato = cartella.file(nome(L"rifiutato"));
    dialoghi.attendiSalva(richiestaSalva, rifiutato);
    attendiErrore(5, maiuscolo(rifiutato) +
                         L": carattere non ammesso in titolo dell'elemento 1 (U+000B).");
    EXPECT_FALSE(finestra.Salva(false));
    finestra.codaVuota();
    EXPECT_FALSE(ricordato(nome(L"rifiutato")));
}

TEST_F(RecentiDiSistema, UnPercorsoPiuLungoDi260NonVienRicordato) {
    CartellaLunga lunga;
    const std::wstring percorso = lunga.scrivi(nome(L"lontano"), rssCon(contenuto));
    EXPECT_TRUE(finestra.Apri(percorso));
    finestra.codaVuota();
    EXPECT_FALSE(ricordato(nome(L"lontano")));
    EXPECT_FALSE(ricordato(L"cccccccc.xml"));
}
