#pragma once

#include "datetime/ClsUTC.h"
#include "document/canale.h"
#include "document/tabellaElementi.h"
#include "support/testi/formato.h"

#include <string>

// The text of the HTML pages, each line ended by CR LF. Field values stand in it as they are, not
// escaped: markup typed into a description is rendered. A date is shown in the user's format; a
// text that is no date is shown unchanged.

// The whole feed: channel, image when it was set, every item up to the table's upper bound.
[[nodiscard]] std::wstring paginaFeed(const Canale& canale, const TabellaElementi& items,
                                      const ClsUTC& utc, const FormatoLocale& formato);

// The items alone, for a preview.
[[nodiscard]] std::wstring paginaElementi(const TabellaElementi& items, const ClsUTC& utc,
                                          const FormatoLocale& formato);
