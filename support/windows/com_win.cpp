#include "support/windows/com_win.h"

#include "support/windows/errori_win.h"

#include <ole2.h>

Apartamento::Apartamento() {
    verifica(OleInitialize(nullptr));
}

Apartamento::~Apartamento() {
    OleUninitialize();
}
