#pragma once

#include "support/errori/errore.h"

#include <windows.h>

// The one place where a failure of Windows becomes an Errore.

// A GetLastError code.
[[nodiscard]] Errore erroreWin32(DWORD codice);
[[noreturn]] void sollevaWin32(DWORD codice = GetLastError());

// A failed HRESULT, with the description the component left in the thread's error object, if any.
// Takes that error object away.
[[nodiscard]] Errore erroreHresult(HRESULT hr);

// Raises when hr is a failure.
void verifica(HRESULT hr);

// The exception being handled as an Errore: an Errore as it is, std::bad_alloc as error 7, any
// other as error 440. Call it inside a catch.
[[nodiscard]] Errore erroreCorrente();
