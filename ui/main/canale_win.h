#pragma once

#include "document/canale.h"

class CampiCanale;

// What the fields hold, trimmed the way the feed wants it; the image is built anew from its fields.
// Raises 5, 6 or 380 for a date or a number that no feed can carry.
[[nodiscard]] Canale raccogliCanale(const CampiCanale& campi);
