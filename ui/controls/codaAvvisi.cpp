#include "ui/controls/codaAvvisi.h"

#include <algorithm>
#include <utility>

void CodaAvvisi::metti(Avviso avviso) {
    const auto uguale = std::ranges::find(
        voci_, std::wstring_view(avviso.argomento),
        [](const Voce& voce) -> std::wstring_view { return voce.avviso.argomento; });
    Voce nuova{++ultimo_, std::move(avviso)};
    if (uguale != voci_.end()) {
        *uguale = std::move(nuova);
    } else {
        voci_.push_back(std::move(nuova));
    }
}

void CodaAvvisi::ritira(std::wstring_view argomento) {
    std::erase_if(voci_, [&](const Voce& voce) { return voce.avviso.argomento == argomento; });
}

void CodaAvvisi::togli(int numero) {
    std::erase_if(voci_, [&](const Voce& voce) { return voce.numero == numero; });
}
