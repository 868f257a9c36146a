#pragma once

#include "support/servizi/cartelleDati.h"

#include <string_view>

// Those of this user on this machine, under the name of the program; empty where Windows has no
// place for them.
[[nodiscard]] CartelleDati cartelleUtente(std::wstring_view applicazione);
