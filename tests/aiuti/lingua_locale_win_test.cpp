// The language that the tests run in is that of Wine's background programs too.

#include "support/windows/maniglie_win.h"
#include "support/windows/registro_win.h"
#include "tests/aiuti/attesa_win.h"
#include "tests/aiuti/cartella_win.h"

#include <windows.h>

#include <array>

#include <gtest/gtest.h>

namespace {

using Servizio = Maniglia<SC_HANDLE, CloseServiceHandle>;

bool arriva(const Servizio& servizio, DWORD stato) {
    return attendiChe([&] {
        SERVICE_STATUS adesso{};
        return QueryServiceStatus(servizio.get(), &adesso) && adesso.dwCurrentState == stato;
    });
}

} // namespace

TEST(Lingua, UnProgrammaAvviatoDalloSfondoNonLaCambia) {
    std::array<wchar_t, LOCALE_NAME_MAX_LENGTH> mia{};
    ASSERT_NE(GetUserDefaultLocaleName(mia.data(), static_cast<int>(mia.size())), 0);
    const Servizio gestore(OpenSCManagerW(nullptr, nullptr, SC_MANAGER_CONNECT));
    const Servizio servizio(OpenServiceW(gestore.get(), L"FontCache",
                                         SERVICE_START | SERVICE_STOP | SERVICE_QUERY_STATUS));
    if (!servizio) {
        GTEST_SKIP() << "no service that this user may start";
    }
    // The one place that every program reads its separators from.
    const auto scritta = [] {
        return leggiTesto(HKEY_CURRENT_USER, L"Control Panel\\International", L"LocaleName");
    };
    SERVICE_STATUS stato{};
    ControlService(servizio.get(), SERVICE_CONTROL_STOP, &stato);
    ASSERT_TRUE(arriva(servizio, SERVICE_STOPPED));
    ASSERT_TRUE(StartServiceW(servizio.get(), 0, nullptr));
    ASSERT_TRUE(arriva(servizio, SERVICE_RUNNING));
    EXPECT_EQ(inUtf8(scritta().value_or(L"")), inUtf8(mia.data()));
    ControlService(servizio.get(), SERVICE_CONTROL_STOP, &stato);
}
