#include "support/utilita/koUtilita.h"

#include "support/windows/maniglie_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/registratore_win.h"
#include "tests/aiuti/sollevato.h"

#include <windows.h>

#include <chrono>

#include <gtest/gtest.h>

namespace {

std::wstring inVirgolette(const std::wstring& testo) {
    return L'"' + testo + L'"';
}

std::int32_t erroreComando(const std::wstring& comando) {
    return sollevatoDa([&comando] { return koUtilita::ShellSospensiva(comando); }).numero;
}

} // namespace

TEST(KoUtilitaAttesa, WaitSecondiLasciaVivereLeFinestre) {
    static int scatti = 0;
    scatti = 0;
    const UINT_PTR timer = SetTimer(nullptr, 0, 20, [](HWND, UINT, UINT_PTR, DWORD) { ++scatti; });
    const ULONGLONG inizio = GetTickCount64();
    koUtilita::WaitSecondi(1);
    const ULONGLONG durata = GetTickCount64() - inizio;
    EXPECT_GE(durata, 1000U);
    EXPECT_LT(durata, 20000U);
    EXPECT_GT(scatti, 1);
    const int prima = scatti;
    koUtilita::Sleep(100);
    EXPECT_EQ(scatti, prima);
    KillTimer(nullptr, timer);
}

TEST(KoUtilitaAttesa, LaFineDelProgrammaFinisceWaitSecondi) {
    PostQuitMessage(3);
    const ULONGLONG inizio = GetTickCount64();
    koUtilita::WaitSecondi(3600);
    EXPECT_LT(GetTickCount64() - inizio, 60000U);
    MSG messaggio{};
    ASSERT_TRUE(PeekMessageW(&messaggio, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(messaggio.wParam, 3U);
}

TEST(KoUtilitaAttesa, SleepAspettaIMillisecondi) {
    // The system's tick, by which it may wake early, is too coarse to measure with.
    const auto inizio = std::chrono::steady_clock::now();
    koUtilita::Sleep(150);
    EXPECT_GE(std::chrono::steady_clock::now() - inizio, std::chrono::milliseconds(130));
    koUtilita::Sleep(0);
    koUtilita::WaitSecondi(0);
}

TEST(KoUtilitaProcessi, ShellSospensivaAspettaLaFineEDaIlCodice) {
    EXPECT_EQ(koUtilita::ShellSospensiva(L"cmd.exe /c exit 7"), 7U);
    Registratore registratore;
    const CartellaProva cartella;
    const std::wstring programma = cartella.file(L"un nome con spazi.exe");
    Registratore::copiaIn(programma);
    EXPECT_EQ(koUtilita::ShellSospensiva(inVirgolette(programma) + L" fatto"), 0U);
    // It has ended: what it wrote is there.
    EXPECT_EQ(registratore.attendi().programma, programma);
}

TEST(KoUtilitaProcessi, ShellSospensivaNonAspettaOltreIlTempo) {
    const std::wstring nome = L"OstrelleProveAttesa" + std::to_wstring(GetCurrentProcessId());
    const ManigliaOggetto evento(CreateEventW(nullptr, TRUE, FALSE, nome.c_str()));
    const std::wstring comando = inVirgolette(koUtilita::CurDirApp() + L"attesa.exe") + L' ' + nome;
    EXPECT_EQ(koUtilita::ShellSospensiva(comando, 50), std::nullopt);
    SetEvent(evento.get());
    EXPECT_EQ(koUtilita::ShellSospensiva(comando), 7U);
}

TEST(KoUtilitaProcessi, UnComandoCheNonParteEUnErrore) {
    const CartellaProva cartella;
    EXPECT_EQ(erroreComando(L""), 5);
    EXPECT_EQ(erroreComando(L"  "), 5);
    EXPECT_EQ(erroreComando(inVirgolette(cartella.file(L"manca.exe"))), 53);
    EXPECT_EQ(erroreComando(inVirgolette(cartella.scrivi(L"a.exe", "nessun programma"))), 57);
    EXPECT_NE(erroreComando(std::wstring(1000, L'x')), 0);
}
