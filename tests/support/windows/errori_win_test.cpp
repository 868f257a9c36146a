#include "support/windows/errori_win.h"

#include "support/windows/com_win.h"
#include "tests/aiuti/sollevato.h"
#include "tests/aiuti/testi.h"

#include <map>
#include <new>
#include <stdexcept>

#include <gtest/gtest.h>

namespace {

// Leaves a description as a component does.
void lasciaDescrizione(const wchar_t* testo) {
    ComPtr<ICreateErrorInfo> crea;
    ASSERT_EQ(CreateErrorInfo(crea.riempi()), S_OK);
    ASSERT_EQ(crea->SetDescription(Bstr(testo).get()), S_OK);
    void* info = nullptr;
    ASSERT_EQ(crea->QueryInterface(IID_IErrorInfo, &info), S_OK);
    const ComPtr<IErrorInfo> proprietario(static_cast<IErrorInfo*>(info));
    ASSERT_EQ(SetErrorInfo(0, proprietario.get()), S_OK);
}

HRESULT hresult(std::uint32_t codice) {
    return static_cast<HRESULT>(codice);
}

template <class Eccezione>
Errore corrente(const Eccezione& eccezione) {
    try {
        throw eccezione;
    } catch (...) {
        return erroreCorrente();
    }
}

} // namespace

TEST(ErroriDiWindows, OgniCodiceDiGetLastError) {
    const std::map<DWORD, std::int32_t> attesi{
        {2, 53},  {3, 76},   {5, 75},   {32, 70},  {33, 70}, {15, 68}, {1005, 68},
        {21, 71}, {112, 61}, {123, 52}, {161, 52}, {19, 70}, {206, 76}};
    for (DWORD codice = 0; codice < 2000; ++codice) {
        const auto atteso = attesi.find(codice);
        const Errore e = erroreWin32(codice);
        ASSERT_EQ(e.numero(), atteso == attesi.end() ? 57 : atteso->second) << codice;
        ASSERT_EQ(e.descrizione(), testoErrore(e.numero())) << codice;
    }
}

TEST(ErroriDiWindows, SollevaLUltimoErrore) {
    SetLastError(ERROR_DISK_FULL);
    const auto e = sollevatoDa([]() -> int { sollevaWin32(); });
    EXPECT_EQ(e.numero, 61);
    EXPECT_EQ(e.descrizione, testi::diErrore(61));
}

TEST(ErroriDiWindows, GliHresultNoti) {
    const std::map<std::uint32_t, std::int32_t> attesi{
        {0x80070005, 70},  {0x8007000E, 7},  {0x80020005, 13}, {0x8002000A, 6},
        {0x8002000B, 9},   {0x80070057, 5},  {0x800A000D, 13}, {0x800A01A8, 424},
        {0x80040154, 429}, {0x800401F3, 429}};
    for (const auto& [codice, numero] : attesi) {
        const Errore e = erroreHresult(hresult(codice));
        EXPECT_EQ(e.numero(), numero) << codice;
        EXPECT_EQ(e.descrizione(), testoErrore(numero)) << codice;
    }
}

TEST(ErroriDiWindows, GliAltriHresultSonoSeStessi) {
    const Errore e = erroreHresult(E_FAIL);
    EXPECT_EQ(e.numero(), -2147467259);
    EXPECT_EQ(e.descrizione(), testi::diErrore(440));
}

TEST(ErroriDiWindows, LaDescrizioneDelComponente) {
    lasciaDescrizione(L"detto dal componente");
    EXPECT_EQ(erroreHresult(E_FAIL).descrizione(), L"detto dal componente");
    // It was taken away.
    EXPECT_EQ(erroreHresult(E_FAIL).descrizione(), testi::diErrore(440));
    // A low word that the table lacks keeps the component's own words.
    lasciaDescrizione(L"detto dal componente");
    const Errore e = erroreHresult(hresult(0x800A1234));
    EXPECT_EQ(e.numero(), 0x1234);
    EXPECT_EQ(e.descrizione(), L"detto dal componente");
}

TEST(ErroriDiWindows, VerificaLasciaPassareISuccessi) {
    EXPECT_NO_THROW(verifica(S_OK));
    EXPECT_NO_THROW(verifica(S_FALSE));
    EXPECT_THROW(verifica(E_FAIL), Errore);
}

TEST(ErroriDiWindows, LErroreCorrente) {
    EXPECT_EQ(corrente(Errore(18343, L"x")).numero(), 18343);
    EXPECT_EQ(corrente(Errore(18343, L"x")).descrizione(), L"x");
    EXPECT_EQ(corrente(std::bad_alloc()).numero(), 7);
    EXPECT_EQ(corrente(std::runtime_error("x")).numero(), 440);
    EXPECT_EQ(corrente(1).descrizione(), testi::diErrore(440));
}
