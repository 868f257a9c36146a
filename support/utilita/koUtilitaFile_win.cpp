#include "support/utilita/koUtilitaFile.h"

#include "support/windows/errori_win.h"
#include "support/windows/maniglie_win.h"

#include <windows.h>

bool koUtilitaFile::FileAperto(const std::wstring& file) {
    const ManigliaFile solo(CreateFileW(file.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                                        FILE_ATTRIBUTE_NORMAL, nullptr));
    if (solo) {
        return false;
    }
    const DWORD errore = GetLastError();
    if (errore == ERROR_SHARING_VIOLATION || errore == ERROR_LOCK_VIOLATION) {
        return true;
    }
    sollevaWin32(errore);
}

void koUtilitaFile::EliminaReadOnly(const std::wstring& file) {
    const DWORD attributi = GetFileAttributesW(file.c_str());
    if (attributi == INVALID_FILE_ATTRIBUTES) {
        sollevaWin32();
    }
    if ((attributi & FILE_ATTRIBUTE_READONLY) != 0 &&
        !SetFileAttributesW(file.c_str(), attributi & ~DWORD{FILE_ATTRIBUTE_READONLY})) {
        sollevaWin32();
    }
}
