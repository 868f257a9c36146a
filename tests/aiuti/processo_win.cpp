#include "tests/aiuti/processo_win.h"

#include "tests/aiuti/cartella_win.h"

#include <gtest/gtest.h>

Processo avviaProcesso(std::wstring comando, const wchar_t* inCartella) {
    STARTUPINFOW come{};
    come.cb = sizeof(come);
    PROCESS_INFORMATION chi{};
    EXPECT_TRUE(CreateProcessW(nullptr, comando.data(), nullptr, nullptr, FALSE, 0, nullptr,
                               inCartella, &come, &chi))
        << inUtf8(comando);
    const ManigliaOggetto filo(chi.hThread);
    return {ManigliaOggetto(chi.hProcess), chi.dwProcessId};
}

DWORD codiceFinale(const Processo& processo) {
    EXPECT_EQ(WaitForSingleObject(processo.maniglia.get(), 60000), WAIT_OBJECT_0);
    DWORD codice = 99;
    GetExitCodeProcess(processo.maniglia.get(), &codice);
    return codice;
}
