#include "support/utilita/koUtilitaErrori.h"

#include "support/errori/errore.h"

std::wstring koUtilitaErrori::MessaggioErroreITA(std::int32_t numero) {
    return std::wstring(testoErrore(numero));
}
