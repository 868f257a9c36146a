#include "support/windows/com_win.h"
#include "support/windows/heap_win.h"

#include <windows.h>

#include <commctrl.h>

#include <gtest/gtest.h>

// Console output is UTF-8, so that a failure shows Italian texts as they are.
int main(int argc, char** argv) {
    heapPerPiccoliBlocchi();
    SetConsoleOutputCP(CP_UTF8);
    const Apartamento apartamento;
    const INITCOMMONCONTROLSEX classi{sizeof(classi),
                                      ICC_WIN95_CLASSES | ICC_DATE_CLASSES | ICC_STANDARD_CLASSES};
    InitCommonControlsEx(&classi);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
