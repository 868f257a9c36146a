#include "support/utilita/rigaDiComando.h"

#include <gtest/gtest.h>

TEST(FileDelComando, ToglieVirgoletteEParametri) {
    EXPECT_EQ(fileDelComando(L"\"C:\\a b\\c.exe\" /x"), L"C:\\a b\\c.exe");
    EXPECT_EQ(fileDelComando(L" C:\\a b\\c.EXE /Automation "), L"C:\\a b\\c.EXE");
    EXPECT_EQ(fileDelComando(L"C:\\a.exe.d\\c.exe -x"), L"C:\\a.exe.d\\c.exe");
    EXPECT_EQ(fileDelComando(L"C:\\a b\\c.dll"), L"C:\\a b\\c.dll");
    EXPECT_EQ(fileDelComando(L"\"senza fine"), L"senza fine");
    EXPECT_EQ(fileDelComando(L""), L"");
}
