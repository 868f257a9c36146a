// Runs until the event that its command line names is set, at most a minute; ends with code 7.

#include "support/windows/maniglie_win.h"

#include <windows.h>

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR parametri, int) {
    const ManigliaOggetto evento(OpenEventW(SYNCHRONIZE, FALSE, parametri));
    return evento && WaitForSingleObject(evento.get(), 60000) == WAIT_OBJECT_0 ? 7 : 1;
}
