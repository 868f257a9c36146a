#include "support/utilita/rigaDiComando.h"

#include <gtest/gtest.h>

TEST(RigaDiComando, ToglieVirgoletteEParametri) {
    EXPECT_EQ(fileDellaRiga(L"\"C:\\a b\\c.exe\" /x"), L"C:\\a b\\c.exe");
    EXPECT_EQ(fileDellaRiga(L" C:\\a b\\c.EXE /Automation "), L"C:\\a b\\c.EXE");
    EXPECT_EQ(fileDellaRiga(L"C:\\a.exe.d\\c.exe -x"), L"C:\\a.exe.d\\c.exe");
    EXPECT_EQ(fileDellaRiga(L"C:\\a b\\c.dll"), L"C:\\a b\\c.dll");
    EXPECT_EQ(fileDellaRiga(L"\"senza fine"), L"senza fine");
    EXPECT_EQ(fileDellaRiga(L""), L"");
}
