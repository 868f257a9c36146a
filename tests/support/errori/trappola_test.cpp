#include "support/errori/trappola.h"

#include "support/errori/errore.h"

#include <gtest/gtest.h>

namespace {

class Spia final : public Trappola {
public:
    void onEccezione() noexcept override {
        ++volte;
        dentro = std::current_exception() != nullptr;
    }

    int volte = 0;
    bool dentro = false;
};

} // namespace

TEST(TrappolaConfine, CioCheRiesceDaIlSuoEsito) {
    Spia spia;
    EXPECT_EQ(alConfine(spia, -1, [] { return 7; }), 7);
    EXPECT_EQ(spia.volte, 0);
}

TEST(TrappolaConfine, OgniEccezioneSiFermaESiDice) {
    Spia spia;
    EXPECT_EQ(alConfine(spia, -1, []() -> int { solleva(errori::overflow); }), -1);
    EXPECT_EQ(spia.volte, 1);
    EXPECT_TRUE(spia.dentro);
    // NOLINTNEXTLINE(misc-throw-by-value-catch-by-reference): whatever it may be
    EXPECT_EQ(alConfine(spia, -1, []() -> int { throw "altro"; }), -1);
    EXPECT_EQ(spia.volte, 2);
}

TEST(TrappolaConfine, IlRinvioRilanciaUnaVolta) {
    Rinvio rinvio;
    EXPECT_FALSE(rinvio);
    EXPECT_NO_THROW(rinvio.rilancia());
    EXPECT_FALSE(alConfine(rinvio, false, []() -> bool { solleva(errori::overflow); }));
    EXPECT_TRUE(rinvio);
    try {
        rinvio.rilancia();
        ADD_FAILURE() << "nothing raised";
    } catch (const Errore& errore) {
        EXPECT_EQ(errore.numero(), errori::overflow);
    }
    EXPECT_FALSE(rinvio);
    EXPECT_NO_THROW(rinvio.rilancia());
}

TEST(TrappolaIgnorando, DiceSeERiuscito) {
    int fatto = 0;
    EXPECT_TRUE(ignorando([&] { ++fatto; }));
    EXPECT_EQ(fatto, 1);
    EXPECT_FALSE(ignorando([] { solleva(errori::overflow); }));
    EXPECT_FALSE(ignorando([] { throw 7; }));
}
