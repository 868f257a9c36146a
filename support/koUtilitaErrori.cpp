#include "support/koUtilitaErrori.h"

#include "support/errore.h"

std::wstring koUtilitaErrori::MessaggioErroreITA(std::int32_t numero) {
    return std::wstring(testoErrore(numero));
}
