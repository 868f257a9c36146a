#include "support/windows/maniglie_win.h"

#include <utility>

#include <gtest/gtest.h>

namespace {

HANDLE evento() {
    return CreateEventW(nullptr, TRUE, FALSE, nullptr);
}

bool aperta(HANDLE maniglia) {
    DWORD opzioni = 0;
    return GetHandleInformation(maniglia, &opzioni) != FALSE;
}

int chiuse = 0;
void conta(int /*numero*/) noexcept {
    ++chiuse;
}

} // namespace

TEST(ManiglieWin, SiChiudonoUnaVolta) {
    chiuse = 0;
    {
        Maniglia<int, conta, -1> prima(3);
        Maniglia<int, conta, -1> seconda(std::move(prima));
        const Maniglia<int, conta, -1> zero(0);
        const Maniglia<int, conta, -1> nessuna;
        EXPECT_EQ(nessuna.get(), -1);
        EXPECT_FALSE(nessuna);
        EXPECT_TRUE(zero);
        EXPECT_EQ(seconda.get(), 3);
    }
    EXPECT_EQ(chiuse, 2);
}

TEST(ManiglieWin, LOggettoSiChiudeAllaFineOSiCede) {
    const HANDLE primo = evento();
    const HANDLE secondo = evento();
    {
        const ManigliaOggetto chiuso(primo);
        ManigliaOggetto ceduto(secondo);
        EXPECT_TRUE(aperta(primo));
        EXPECT_EQ(ceduto.cedi(), secondo);
        EXPECT_FALSE(ceduto);
    }
    EXPECT_FALSE(aperta(primo));
    EXPECT_TRUE(aperta(secondo));
    CloseHandle(secondo);
}

TEST(ManiglieWin, OgniTipoHaLaSuaManigliaVuota) {
    EXPECT_EQ(ManigliaFile().get(), INVALID_HANDLE_VALUE);
    EXPECT_FALSE(ManigliaFile(INVALID_HANDLE_VALUE));
    EXPECT_FALSE(Ricerca(INVALID_HANDLE_VALUE));
    EXPECT_EQ(ManigliaOggetto().get(), nullptr);
    EXPECT_FALSE(ManigliaOggetto(nullptr));
}
