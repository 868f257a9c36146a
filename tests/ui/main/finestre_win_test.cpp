// Window after window in one process: what the first ones took is all that the others take.

#include "tests/aiuti/avvisi_prova_win.h"
#include "tests/aiuti/frmMainVera_win.h"
#include "tests/aiuti/giri.h"
#include "tests/aiuti/lascito_win.h"
#include "tests/aiuti/maniglieGui_win.h"

#include "res/risorse.h"

#include <windows.h>

#include <psapi.h>

#include <cstdint>
#include <cstdio>
#include <ostream>

extern "C" {
// Where the loader writes the addresses of the functions that set and remove hooks.
extern void* __imp_SetWindowsHookExW;   // NOLINT(bugprone-reserved-identifier)
extern void* __imp_UnhookWindowsHookEx; // NOLINT(bugprone-reserved-identifier)
}

namespace {

// The system counts nobody's hooks: how many the program has set and not removed.
class ContaGanci {
public:
    ContaGanci() {
        metti(__imp_SetWindowsHookExW, reinterpret_cast<void*>(&aggancia));
        metti(__imp_UnhookWindowsHookEx, reinterpret_cast<void*>(&sgancia));
    }
    ContaGanci(const ContaGanci&) = delete;
    ContaGanci& operator=(const ContaGanci&) = delete;
    ~ContaGanci() {
        metti(__imp_SetWindowsHookExW, reinterpret_cast<void*>(vere().aggancia));
        metti(__imp_UnhookWindowsHookEx, reinterpret_cast<void*>(vere().sgancia));
    }

    [[nodiscard]] static int vivi() { return conti().vivi; }
    [[nodiscard]] static int fatti() { return conti().fatti; }

private:
    struct Conti {
        int vivi = 0;
        int fatti = 0;
    };
    struct Vere {
        decltype(&SetWindowsHookExW) aggancia;
        decltype(&UnhookWindowsHookEx) sgancia;
    };
    static Conti& conti() {
        static Conti conti;
        return conti;
    }
    static const Vere& vere() {
        static const Vere vere{
            reinterpret_cast<decltype(&SetWindowsHookExW)>(__imp_SetWindowsHookExW),
            reinterpret_cast<decltype(&UnhookWindowsHookEx)>(__imp_UnhookWindowsHookEx)};
        return vere;
    }
    static HHOOK WINAPI aggancia(int tipo, HOOKPROC procedura, HINSTANCE modulo, DWORD filo) {
        const HHOOK gancio = vere().aggancia(tipo, procedura, modulo, filo);
        const int fatto = gancio != nullptr ? 1 : 0;
        conti().vivi += fatto;
        conti().fatti += fatto;
        return gancio;
    }
    static BOOL WINAPI sgancia(HHOOK gancio) {
        const BOOL fatto = vere().sgancia(gancio);
        conti().vivi -= fatto != FALSE ? 1 : 0;
        return fatto;
    }
    static void metti(void*& dove, void* funzione) {
        static_cast<void>(vere());
        DWORD prima = 0;
        VirtualProtect(&dove, sizeof(dove), PAGE_READWRITE, &prima);
        dove = funzione;
        VirtualProtect(&dove, sizeof(dove), prima, &prima);
    }
};

struct Possessi {
    ManiglieGui gui;
    int ganci = 0;

    [[nodiscard]] static Possessi adesso() { return {ManiglieGui::adesso(), ContaGanci::vivi()}; }
    friend bool operator==(const Possessi&, const Possessi&) = default;
    friend std::ostream& operator<<(std::ostream& uscita, const Possessi& p) {
        return uscita << p.gui << ", " << p.ganci << " hooks";
    }
};

std::size_t memoriaKb() {
    PROCESS_MEMORY_COUNTERS contatori{};
    contatori.cb = sizeof(contatori);
    EXPECT_TRUE(GetProcessMemoryInfo(GetCurrentProcess(), &contatori, sizeof(contatori)));
    return contatori.WorkingSetSize / 1024;
}

// One window and what a person does with it.
class UnaFinestra : public ProvaFrmMainVera {
public:
    void usa(const std::wstring& feed) {
        static_cast<void>(lasciaFile(finestra.hwnd(), {feed}));
        pompa();
        EXPECT_EQ(documento.elementi().conteggio(), 1);
        EXPECT_TRUE(AvvisiProva(finestra).inVista());
        SetFocus(grigliaDi(finestra).lista());
        {
            const QuandoAppare dialogo(
                boxWindows, L"Edit", [](HWND box) { PostMessageW(box, WM_COMMAND, IDCANCEL, 0); });
            premi(VK_RETURN);
            EXPECT_TRUE(dialogo.apparsa());
        }
        premi('F', {VK_CONTROL});
        premi(VK_ESCAPE);
        premi('C', {VK_CONTROL});
        SendMessageW(finestra.hwnd(), WM_CLOSE, 0, 0);
        pompa();
        EXPECT_EQ(finestra.hwnd(), nullptr);
        MSG fine{};
        while (PeekMessageW(&fine, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) {
        }
    }
    void TestBody() override {}
};

} // namespace

TEST(Finestre, UnaDopoLAltraNonLascianoNulla) {
    const std::uint32_t quante = daAmbiente("OSTRELLE_FINESTRE", 12);
    constexpr std::uint32_t prime = 4;
    const CartellaProva cartella;
    const auto feed =
        cartella.scrivi(L"a.xml", "<rss version='2.0'><channel><title>c</title><ttl>5</ttl><item>"
                                  "<title>uno</title></item></channel></rss>");
    const ContaGanci ganci;
    for (std::uint32_t i = 0; i < prime; ++i) {
        UnaFinestra().usa(feed);
    }
    const Possessi prima = Possessi::adesso();
    const std::size_t memoriaPrima = memoriaKb();
    {
        Andamento andamento("finestre aperte e chiuse", quante);
        for (std::uint32_t i = 0; i < quante; ++i) {
            UnaFinestra().usa(feed);
            andamento.fatto();
        }
    }
    EXPECT_EQ(Possessi::adesso(), prima);
    EXPECT_GT(prima.gui.nucleo, 0U);
    EXPECT_GT(ContaGanci::fatti(), static_cast<int>(quante));
    const std::size_t memoria = memoriaKb();
    std::printf("conto memoria: %zu KB, prima %zu KB\n", memoria, memoriaPrima);
    // What a heap in crumbs takes, and no more for more windows.
    EXPECT_LT(memoria, memoriaPrima + 2048);
}
