#include "support/com_win.h"

#include <windows.h>

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR, int) {
    const Apartamento apartamento;
    return 0;
}
