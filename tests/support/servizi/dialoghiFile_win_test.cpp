#include "support/servizi/dialoghiFile_win.h"

#include <gtest/gtest.h>

TEST(DialoghiFileOpzioni, SonoQuelleDelDialogoDiWindows) {
    EXPECT_EQ(opzioniWindows(opzioniApri), 4100U);
    EXPECT_EQ(opzioniWindows(opzioniSalva), 2050U);
    EXPECT_EQ(opzioniWindows({}), 0U);
}
