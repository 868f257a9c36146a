#include "ui/controls/codaAvvisi.h"

#include <gtest/gtest.h>

namespace {

Avviso avviso(const wchar_t* argomento, const wchar_t* testo) {
    return {.argomento = argomento, .testo = testo, .pulsanti = {}, .chiuso = {}};
}

// The texts in the order in which they come; empties the queue.
std::wstring tutti(CodaAvvisi& coda) {
    std::wstring testi;
    while (coda.numero() != 0) {
        testi += coda.primo().testo + L';';
        coda.togli(coda.numero());
    }
    return testi;
}

} // namespace

TEST(CodaAvvisi, VuotaNonHaNumero) {
    EXPECT_EQ(CodaAvvisi().numero(), 0);
}

TEST(CodaAvvisi, GliAvvisiVengonoNellOrdineInCuiSonoStatiDetti) {
    CodaAvvisi coda;
    coda.metti(avviso(L"a", L"uno"));
    coda.metti(avviso(L"b", L"due"));
    coda.metti(avviso(L"c", L"tre"));
    EXPECT_EQ(tutti(coda), L"uno;due;tre;");
}

TEST(CodaAvvisi, LoStessoArgomentoPrendeIlPostoDelPrimo) {
    CodaAvvisi coda;
    for (const wchar_t* const argomento : {L"a", L"b", L"c"}) {
        coda.metti(avviso(argomento, L"vecchio"));
    }
    const int primo = coda.numero();
    coda.metti(avviso(L"b", L"nuovo"));
    EXPECT_EQ(coda.numero(), primo);
    coda.metti(avviso(L"a", L"altro"));
    EXPECT_NE(coda.numero(), primo);
    EXPECT_EQ(tutti(coda), L"altro;nuovo;vecchio;");
}

TEST(CodaAvvisi, SiRitiraSoloQuelCheParlaDiQuello) {
    CodaAvvisi coda;
    for (const wchar_t* const argomento : {L"a", L"b", L"c"}) {
        coda.metti(avviso(argomento, argomento));
    }
    coda.ritira(L"b");
    coda.ritira(L"nessuno");
    EXPECT_EQ(tutti(coda), L"a;c;");
}

TEST(CodaAvvisi, UnNumeroNonTornaMai) {
    CodaAvvisi coda;
    coda.metti(avviso(L"a", L"uno"));
    const int primo = coda.numero();
    coda.metti(avviso(L"a", L"due"));
    coda.togli(primo);
    EXPECT_EQ(coda.primo().testo, L"due");
    const int secondo = coda.numero();
    coda.togli(secondo);
    coda.metti(avviso(L"a", L"tre"));
    EXPECT_GT(coda.numero(), secondo);
    EXPECT_GT(secondo, primo);
}
