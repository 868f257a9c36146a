// Every program that a test starts does start: Wine's processes need a page that the heap, made
// large by CTest for this suite, would else lie on once in twenty starts.

#include "support/utilita/koUtilitaProcessi.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/registratore_win.h"
#include "tests/aiuti/sollevato.h"

#include <gtest/gtest.h>

TEST(Avvii, UnProgrammaParteOgniVolta) {
    const Registratore registratore;
    const CartellaProva cartella;
    const std::wstring programma = cartella.file(L"programma.exe");
    Registratore::copiaIn(programma);
    for (int volta = 0; volta < 100; ++volta) {
        std::optional<std::uint32_t> codice;
        EXPECT_EQ(
            erroreDi([&] { codice = koUtilitaProcessi::ShellSospensiva(L'"' + programma + L'"'); }),
            0)
            << volta;
        EXPECT_EQ(codice, 0U) << volta;
    }
}
