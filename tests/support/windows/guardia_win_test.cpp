#include "support/windows/guardia_win.h"

#include <gtest/gtest.h>

TEST(Alzata, AllaFineIlSegnoTornaComEra) {
    bool segno = false;
    {
        const Alzata fuori(segno);
        EXPECT_TRUE(segno);
        {
            const Alzata dentro(segno);
            EXPECT_TRUE(segno);
        }
        EXPECT_TRUE(segno);
    }
    EXPECT_FALSE(segno);
}
