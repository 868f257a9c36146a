#include "support/utilita/koUtilita.h"

#include <gtest/gtest.h>

TEST(KoUtilitaVersioni, ConfrontaVersioneContaNumeroPerNumero) {
    EXPECT_LT(koUtilita::ConfrontaVersione(L"1.9.0", L"1.10.0"), 0);
    EXPECT_GT(koUtilita::ConfrontaVersione(L"2", L"1.99.99.99"), 0);
    EXPECT_EQ(koUtilita::ConfrontaVersione(L"1.0", L"1"), 0);
    EXPECT_EQ(koUtilita::ConfrontaVersione(L" 01.002", L"1.2.0.0"), 0);
    EXPECT_LT(koUtilita::ConfrontaVersione(L"1.2.3.4", L"1.2.3.5"), 0);
    EXPECT_GT(koUtilita::ConfrontaVersione(L"4294967297", L"4294967296"), 0);
}

TEST(KoUtilitaVersioni, CioCheNonENumeroConfrontandoVersioniValeZero) {
    EXPECT_EQ(koUtilita::ConfrontaVersione(L"", L""), 0);
    EXPECT_EQ(koUtilita::ConfrontaVersione(L"", L"0.0.0.0"), 0);
    EXPECT_EQ(koUtilita::ConfrontaVersione(L"abc", L"0"), 0);
    EXPECT_LT(koUtilita::ConfrontaVersione(L"..", L"0.0.0.1"), 0);
    EXPECT_EQ(koUtilita::ConfrontaVersione(L"1beta.2", L"1.2"), 0);
    EXPECT_GT(koUtilita::ConfrontaVersione(std::wstring(1000, L'9'), std::wstring(999, L'9')), 0);
}

TEST(NomeSistema, ISistemiDellElencoHannoIlLoroNome) {
    const auto nome = [](std::uint32_t maggiore, std::uint32_t minore, bool nt) {
        return nomeSistema({maggiore, minore, 0, nt}, L"qualunque");
    };
    EXPECT_EQ(nome(4, 0, false), L"Windows 95");
    EXPECT_EQ(nome(4, 10, false), L"Windows 98");
    EXPECT_EQ(nome(4, 90, false), L"Windows Millennium");
    EXPECT_EQ(nome(4, 0, true), L"Windows NT");
    EXPECT_EQ(nome(5, 0, true), L"Windows 2000");
    EXPECT_EQ(nome(5, 1, true), L"Windows XP");
}

TEST(NomeSistema, UnSistemaPiuNuovoSiChiamaComeDiceDiSe) {
    EXPECT_EQ(nomeSistema({6, 1, 7601}, L"Microsoft Windows 7"), L"Windows 7");
    EXPECT_EQ(nomeSistema({6, 3, 9600}, L"Windows 8.1 Pro"), L"Windows 8.1 Pro");
    EXPECT_EQ(nomeSistema({10, 0, 19045}, L"Windows 10 Home"), L"Windows 10 Home");
    EXPECT_EQ(nomeSistema({10, 0, 22000}, L"Windows 10 Home"), L"Windows 11 Home");
    EXPECT_EQ(nomeSistema({10, 0, 26100}, L"Windows Server 2025"), L"Windows Server 2025");
    EXPECT_EQ(nomeSistema({10, 0, 26100}, L""), L"Windows 10.0");
}
