// Runs until the event that its command line names is set, at most a minute; ends with code 7.

#include "support/windows/maniglie_win.h"

#include <windows.h>

namespace {

struct TrattiEvento {
    using Tipo = HANDLE;
    static Tipo vuota() noexcept { return nullptr; }
    static void chiudi(Tipo evento) noexcept { CloseHandle(evento); }
};

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR parametri, int) {
    const Maniglia<TrattiEvento> evento(OpenEventW(SYNCHRONIZE, FALSE, parametri));
    return evento && WaitForSingleObject(evento.get(), 60000) == WAIT_OBJECT_0 ? 7 : 1;
}
