#include "support/utilita/koUtilita.h"

#include <gtest/gtest.h>

TEST(KoUtilita, NonHaStatoOltreAiMessaggi) {
    EXPECT_EQ(sizeof(koUtilita), sizeof(Messaggi*));
}
