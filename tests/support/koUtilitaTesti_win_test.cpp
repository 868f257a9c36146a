#include "support/koUtilita.h"

#include "support/dataora_win.h"
#include "support/errori_win.h"
#include "tests/aiuti/sollevato.h"

#include <windows.h>

#include <oleauto.h>

#include <gtest/gtest.h>

namespace {

// What the automation run time makes of a number.
DataOra diWindows(std::int32_t numero) {
    DATE data = 0;
    SYSTEMTIME tempo{};
    verifica(VarDateFromI4(numero, &data));
    if (!VariantTimeToSystemTime(data, &tempo)) {
        solleva(errori::automazione);
    }
    return daSystemTime(tempo);
}

} // namespace

TEST(KoUtilitaDateDiWindows, LongToDateDaLaDataCheNeDaWindows) {
    for (const std::int32_t numero : {0, 1, -1, 2, 60, 38671, -100000, 2958465, -657434}) {
        EXPECT_EQ(koUtilita::LongToDate(numero), diWindows(numero)) << numero;
    }
    for (const std::int32_t numero : {2958466, -657435, INT32_MAX, INT32_MIN}) {
        EXPECT_EQ(sollevatoDa([numero] { return koUtilita::LongToDate(numero); }).numero,
                  sollevatoDa([numero] { return diWindows(numero); }).numero)
            << numero;
    }
}
