// The program as shipped, started on a system that has no XML parser.

#include "support/windows/file_win.h"
#include "support/windows/maniglie_win.h"
#include "tests/aiuti/attesa_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/chiaveSalvata_win.h"
#include "tests/aiuti/testi.h"

#include <windows.h>

#include <array>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

bool sottoWine() {
    const HMODULE ntdll = GetModuleHandleW(L"ntdll.dll");
    return ntdll != nullptr && GetProcAddress(ntdll, "wine_get_version") != nullptr;
}

// The windows of one process that can be seen, as "class|title".
struct Viste {
    DWORD processo;
    HWND avviso = nullptr;
    bool principale = false;
};

Viste guarda(DWORD processo) {
    Viste viste{processo};
    EnumWindows(
        [](HWND hwnd, LPARAM l) -> BOOL {
            auto& v = *reinterpret_cast<Viste*>(l);
            DWORD suo = 0;
            GetWindowThreadProcessId(hwnd, &suo);
            if (suo == v.processo) {
                std::array<wchar_t, 64> classe{};
                GetClassNameW(hwnd, classe.data(), static_cast<int>(classe.size()));
                v.principale |= std::wstring_view(classe.data()) == L"OstrelleFrmMain";
                if (std::wstring_view(classe.data()) == L"#32770" && IsWindowVisible(hwnd)) {
                    v.avviso = hwnd;
                }
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&viste));
    return viste;
}

std::wstring testo(HWND finestra) {
    std::array<wchar_t, 1000> t{};
    SendMessageTimeoutW(finestra, WM_GETTEXT, t.size(), reinterpret_cast<LPARAM>(t.data()),
                        SMTO_NORMAL, 5000, nullptr);
    return t.data();
}

} // namespace

TEST(Avvio, SenzaIlParserLoDiceENonMostraMaiLaFinestra) {
    if (!sottoWine()) {
        GTEST_SKIP() << "only Wine can take the parser away";
    }
    const CartellaProva cartella;
    // A name of its own, so that no other program of the tests loses its parser.
    const std::wstring nome = L"SenzaParser.exe";
    const std::wstring programma = cartella.file(nome);
    ASSERT_TRUE(
        CopyFileW((cartellaProgramma() + L"\\..\\Ostrelle.exe").c_str(), programma.c_str(), TRUE));
    const ChiaveSalvata libreria(HKEY_CURRENT_USER,
                                 L"Software\\Wine\\AppDefaults\\" + nome + L"\\DllOverrides");
    libreria.testo(L"msxml3", L"");

    STARTUPINFOW avvio{};
    avvio.cb = sizeof(avvio);
    PROCESS_INFORMATION dati{};
    ASSERT_TRUE(CreateProcessW(programma.c_str(), nullptr, nullptr, nullptr, FALSE, 0, nullptr,
                               nullptr, &avvio, &dati));
    const ManigliaFile processo(dati.hProcess);
    CloseHandle(dati.hThread);

    Viste viste{dati.dwProcessId};
    bool principale = false;
    EXPECT_TRUE(attendiChe([&] {
        viste = guarda(dati.dwProcessId);
        principale |= viste.principale;
        return viste.avviso != nullptr || principale;
    }));
    EXPECT_FALSE(principale);
    if (viste.avviso != nullptr) {
        EXPECT_EQ(testo(viste.avviso), testi::attenzione);
        EXPECT_TRUE(
            testo(GetDlgItem(viste.avviso, 0xFFFF))
                .starts_with(
                    L"Per poter utilizzare il programma è necessario che sul sistema sia presente "
                    L"il Parser Microsoft XML 3.0 o versione successiva (msxml3.dll). E' possibile "
                    L"scaricare liberamente tale componente dal sito della Microsoft (http"));
        PostMessageW(viste.avviso, WM_COMMAND, IDOK, 0);
    }
    const bool finito = attendiChe([&] {
        principale |= guarda(dati.dwProcessId).principale;
        return WaitForSingleObject(processo.get(), 0) == WAIT_OBJECT_0;
    });
    EXPECT_TRUE(finito);
    EXPECT_FALSE(principale);
    if (!finito) {
        TerminateProcess(processo.get(), 1);
        WaitForSingleObject(processo.get(), 5000);
    }
}
