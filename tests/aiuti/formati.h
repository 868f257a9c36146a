#pragma once

#include "support/testi/formato.h"

// The two locales of the tests, whatever the user's is.
inline const FormatoLocale italiano{};
inline const FormatoLocale inglese{Lingua::Inglese, L'.', L"/", L":"};
