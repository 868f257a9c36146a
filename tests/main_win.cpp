#include "support/windows/com_win.h"
#include "support/windows/heap_win.h"

#include <windows.h>

#include <commctrl.h>

#include <atomic>
#include <memory>

#include <gtest/gtest.h>

namespace {

std::atomic<int> guasti{0};

// A fault of our own code: in it, or where it called nothing.
LONG CALLBACK conta(EXCEPTION_POINTERS* quale) noexcept {
    const EXCEPTION_RECORD& eccezione = *quale->ExceptionRecord;
    MEMORY_BASIC_INFORMATION dove{};
    VirtualQuery(eccezione.ExceptionAddress, &dove, sizeof(dove));
    if (eccezione.ExceptionCode == EXCEPTION_ACCESS_VIOLATION &&
        (eccezione.ExceptionAddress == nullptr ||
         dove.AllocationBase == GetModuleHandleW(nullptr))) {
        ++guasti;
    }
    return EXCEPTION_CONTINUE_SEARCH;
}

// What goes wrong in a window's procedure Windows passes over as if nothing had been: the test that
// it happens in fails all the same.
class Guasti final : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo& /*prova*/) override { guasti = 0; }
    void OnTestEnd(const testing::TestInfo& /*prova*/) override {
        EXPECT_EQ(guasti.load(), 0) << "access violations";
    }
};

} // namespace

// Console output is UTF-8, so that a failure shows Italian texts as they are.
int main(int argc, char** argv) {
    heapPerPiccoliBlocchi();
    SetConsoleOutputCP(CP_UTF8);
    const Apartamento apartamento;
    const INITCOMMONCONTROLSEX classi{sizeof(classi),
                                      ICC_WIN95_CLASSES | ICC_DATE_CLASSES | ICC_STANDARD_CLASSES};
    InitCommonControlsEx(&classi);
    testing::InitGoogleTest(&argc, argv);
    AddVectoredExceptionHandler(1, conta);
    // The end of a test is told to the last one first: before it is printed.
    testing::UnitTest::GetInstance()->listeners().Append(std::make_unique<Guasti>().release());
    return RUN_ALL_TESTS();
}
