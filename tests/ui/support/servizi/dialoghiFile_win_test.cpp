#include "support/servizi/dialoghiFile_win.h"

#include "support/errori/errore.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/schermo_win.h"

#include <commdlg.h>
#include <dlgs.h>

#include <array>

#include <gtest/gtest.h>

namespace {

HWND campoNome(HWND dialogo) {
    const HWND combo = GetDlgItem(dialogo, cmb13);
    return combo != nullptr ? combo : GetDlgItem(dialogo, edt1);
}

// Types the name into the dialog and confirms.
auto scegli(const std::wstring& nome) {
    return [nome](HWND dialogo) {
        EXPECT_EQ(testoDi(campoNome(dialogo)), L"");
        SetWindowTextW(campoNome(dialogo), nome.c_str());
        PostMessageW(dialogo, WM_COMMAND, IDOK, 0);
    };
}

std::wstring cartellaCorrente() {
    std::array<wchar_t, MAX_PATH> cartella{};
    GetCurrentDirectoryW(static_cast<DWORD>(cartella.size()), cartella.data());
    return cartella.data();
}

const RichiestaFile apertura{L"Prova (*.xml)|*.xml|Tutti (*.*)|*.*", opzioniApri, L""};
const RichiestaFile salvataggio{L"Prova (*.xml)|*.xml", opzioniSalva, L".xml"};

} // namespace

TEST(DialoghiFileWindows, DaIlPercorsoSceltoENonCambiaCartella) {
    const CartellaProva cartella;
    const std::wstring file = cartella.scrivi(L"città.xml", "x");
    const std::wstring prima = cartellaCorrente();
    DialoghiFileWindows dialoghi;
    const QuandoAppare quando(L"#32770", L"", scegli(file));
    EXPECT_EQ(dialoghi.apri(apertura), file);
    EXPECT_EQ(cartellaCorrente(), prima);
}

TEST(DialoghiFileWindows, AnnullareSolleva32755) {
    DialoghiFileWindows dialoghi;
    for (const bool apre : {true, false}) {
        const QuandoAppare quando(
            L"#32770", L"", [](HWND dialogo) { PostMessageW(dialogo, WM_COMMAND, IDCANCEL, 0); });
        try {
            static_cast<void>(apre ? dialoghi.apri(apertura) : dialoghi.salva(salvataggio));
            ADD_FAILURE();
        } catch (const Errore& errore) {
            EXPECT_EQ(errore.numero(), errori::dialogoAnnullato);
        }
    }
}

TEST(DialoghiFileWindows, EscTenutoDaPrimaNonAnnulla) {
    const HWND sotto = CreateWindowExW(0, L"STATIC", L"sotto", WS_OVERLAPPEDWINDOW, 100, 100, 300,
                                       200, nullptr, nullptr, nullptr, nullptr);
    portaAvanti(sotto);
    const CartellaProva cartella;
    const std::wstring file = cartella.scrivi(L"a.xml", "x");
    const QuandoAppare quando(L"#32770", L"", [&](HWND dialogo) {
        const ConFiltro tasti(
            [dialogo](MSG& msg) { return IsDialogMessageW(dialogo, &msg) != FALSE; });
        for (int i = 0; i < 3; ++i) {
            ripeti(VK_ESCAPE);
        }
        lascia(VK_ESCAPE);
        scegli(file)(dialogo);
    });
    std::wstring scelto;
    const ConFiltro apre([&](MSG& msg) {
        if (msg.message == WM_KEYDOWN && scelto.empty()) {
            scelto = DialoghiFileWindows().apri(apertura);
        }
        return false;
    });
    premiGiu(VK_ESCAPE);
    EXPECT_EQ(scelto, file);
    DestroyWindow(sotto);
}

TEST(DialoghiFileWindows, LEstensioneSiAggiungeUnaVolta) {
    const CartellaProva cartella;
    DialoghiFileWindows dialoghi;
    {
        const QuandoAppare quando(L"#32770", L"", scegli(cartella.file(L"news")));
        EXPECT_EQ(dialoghi.salva(salvataggio), cartella.file(L"news.xml"));
    }
    {
        const QuandoAppare quando(L"#32770", L"", scegli(cartella.file(L"altro.xml")));
        EXPECT_EQ(dialoghi.salva(salvataggio), cartella.file(L"altro.xml"));
    }
}
