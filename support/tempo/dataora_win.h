#pragma once

#include "support/tempo/dataora.h"

#include <windows.h>

// Windows' form of a date and time and back; milliseconds and the day of the week are dropped.
[[nodiscard]] DataOra daSystemTime(const SYSTEMTIME& tempo);
[[nodiscard]] SYSTEMTIME aSystemTime(DataOra data) noexcept;
