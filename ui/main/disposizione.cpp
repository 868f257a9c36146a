#include "ui/main/disposizione.h"

#include <algorithm>

namespace {

constexpr double margine = margineTwips;
constexpr double dueMargini = 100;
// The strip keeps clear of the frame's right border, which cmdGetSize would cover.
constexpr double bordoPicCmd = 150;
// Below this the three image fields keep their width.
constexpr double larghezzaMinima = 400;

} // namespace

Disposizione DisponiControlli(const MisureFinestra& m) noexcept {
    Disposizione d;
    double larghezzaDati = m.larghezzaDati;
    if (m.larghezzaInterna - dueMargini > 0) {
        larghezzaDati = m.larghezzaInterna - dueMargini;
        d.fraDati = Riquadro{margine, m.altoDati, larghezzaDati, m.altezzaDati};
    }

    const double spazio = larghezzaDati - m.sinistraLogo - dueMargini;
    if (spazio >= larghezzaMinima) {
        d.larghezzaImmagine = std::min(spazio, m.larghezzaTitolo);
    }

    const double altoGriglia = m.altoDati + m.altezzaDati + margine;
    const double altezzaLibera = m.altezzaInterna - m.altezzaStato - altoGriglia - dueMargini;
    const double altezzaGriglia = altezzaLibera > 0 ? altezzaLibera : m.altezzaGriglia;
    const double sinistraPicCmd = m.larghezzaInterna - bordoPicCmd - m.larghezzaPicCmd;
    const double larghezzaGriglia = sinistraPicCmd - dueMargini;
    if (larghezzaGriglia > 0) {
        d.griglia = Riquadro{margine, altoGriglia, larghezzaGriglia, altezzaGriglia};
        d.picCmd = Riquadro{sinistraPicCmd, altoGriglia, m.larghezzaPicCmd, altezzaGriglia};
        d.cmdGetSize =
            Riquadro{sinistraPicCmd, m.altoLarghezza, m.larghezzaPicCmd, m.altezzaGetSize};
    }
    return d;
}
