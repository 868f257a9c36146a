#include "support/tempo/dataora_win.h"

#include <windows.h>

#include <oleauto.h>

#include <array>
#include <cmath>
#include <cstdlib>
#include <random>

#include <gtest/gtest.h>

TEST(DataOraDiWindows, ComeIlCalendarioDiSistema) {
    constexpr unsigned seme = 1899;
    std::mt19937_64 caso(seme);
    const auto primo = DataOra::daParti(100, 1, 1).secondi();
    const auto ultimo = DataOra::daParti(9999, 12, 31).secondi();
    std::uniform_int_distribution<std::int64_t> secondi(primo, ultimo);
    for (int i = 0; i < 20000; ++i) {
        const DataOra data = DataOra().piuSecondi(secondi(caso));
        SYSTEMTIME tempo = aSystemTime(data);
        ASSERT_EQ(daSystemTime(tempo), data) << "seed " << seme;
        double variante = 0;
        ASSERT_TRUE(SystemTimeToVariantTime(&tempo, &variante)) << "seed " << seme;
        // Days before the zero date count down while their fraction counts up.
        const double giorni = std::floor(static_cast<double>(data.secondi()) / 86400);
        ASSERT_EQ(std::trunc(variante), giorni) << "seed " << seme << ' ' << data.secondi();
        if (tempo.wYear >= 1601) {
            FILETIME contato{};
            SYSTEMTIME conGiorno{};
            ASSERT_TRUE(SystemTimeToFileTime(&tempo, &contato));
            ASSERT_TRUE(FileTimeToSystemTime(&contato, &conGiorno));
            ASSERT_EQ(conGiorno.wDayOfWeek, tempo.wDayOfWeek) << "seed " << seme;
        }
    }
}

TEST(DataOraDiWindows, LIstanteAttualeEUnSoloIstante) {
    for (int i = 0; i < 1000; ++i) {
        const Istante adesso = istanteAttuale();
        const SYSTEMTIME utc = aSystemTime(adesso.utc);
        SYSTEMTIME locale{};
        ASSERT_TRUE(SystemTimeToTzSpecificLocalTime(nullptr, &utc, &locale));
        ASSERT_EQ(daSystemTime(locale), adesso.locale);
    }
    FILETIME ora{};
    GetSystemTimeAsFileTime(&ora);
    SYSTEMTIME utc{};
    FileTimeToSystemTime(&ora, &utc);
    const auto scarto = daSystemTime(utc).secondi() - istanteAttuale().utc.secondi();
    EXPECT_LE(std::abs(scarto), 1);
}

TEST(DataOraDiWindows, SiMostraComeNelleImpostazioni) {
    const DataOra data = DataOra::daParti(2005, 1, 2, 13, 4, 5);
    const SYSTEMTIME tempo = aSystemTime(data);
    std::array<wchar_t, 40> giorno{};
    std::array<wchar_t, 40> ora{};
    // The patterns with the locale's separators in place of "/" and ":".
    const FormatoLocale formato = formatoUtente();
    GetDateFormatW(LOCALE_USER_DEFAULT, 0, &tempo,
                   (L"dd'" + formato.data + L"'MM'" + formato.data + L"'yyyy").c_str(),
                   giorno.data(), static_cast<int>(giorno.size()));
    GetTimeFormatW(LOCALE_USER_DEFAULT, 0, &tempo,
                   (L"HH'" + formato.ora + L"'mm'" + formato.ora + L"'ss").c_str(), ora.data(),
                   static_cast<int>(ora.size()));
    EXPECT_EQ(formattaDataOra(data, formato),
              std::wstring(giorno.data()) + L' ' + std::wstring(ora.data()));
}

TEST(FormatoDiWindows, ISeparatoriDellUtente) {
    const FormatoLocale formato = formatoUtente();
    const bool italiano = PRIMARYLANGID(GetUserDefaultLangID()) == LANG_ITALIAN;
    EXPECT_EQ(formato.lingua, Lingua::Utente);
    EXPECT_EQ(formato.decimale, italiano ? L',' : L'.');
    EXPECT_EQ(formato.data, L"/");
    EXPECT_EQ(formato.ora, L":");
}
