#include "support/immagini/ingrandimento.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace {

constexpr int canali = 4;
constexpr int opacita = 3;

// The two pixels that lie around a place, and how much of the second is in it.
struct Fra {
    int primo;
    int secondo;
    double parte;
};

Fra fra(int pixel, int lato, int prima) noexcept {
    const double dove = std::clamp((pixel + 0.5) * prima / lato - 0.5, 0.0, prima - 1.0);
    const int primo = static_cast<int>(dove);
    return {primo, std::min(primo + 1, prima - 1), dove - primo};
}

double canale(std::uint32_t punto, int quale) noexcept {
    return punto >> (8 * quale) & 0xFF;
}

} // namespace

std::vector<std::uint32_t> ingrandite(const FilaDiFigure& fila, int lato) {
    std::vector<std::uint32_t> nuovi;
    nuovi.reserve(static_cast<std::size_t>(fila.quante) * lato * lato);
    for (int y = 0; y < lato; ++y) {
        const Fra righe = fra(y, lato, fila.lato);
        for (int x = 0; x < fila.quante * lato; ++x) {
            const Fra colonne = fra(x % lato, lato, fila.lato);
            const int figura = x / lato * fila.lato;
            std::array<double, canali> somma{};
            const auto conta = [&](int colonna, int riga, double peso) {
                const std::uint32_t punto =
                    fila.punti[static_cast<std::size_t>(riga) * fila.quante * fila.lato + figura +
                               colonna];
                const double peso_ = peso * canale(punto, opacita);
                for (int c = 0; c < opacita; ++c) {
                    somma[c] += peso_ * canale(punto, c);
                }
                somma[opacita] += peso_;
            };
            conta(colonne.primo, righe.primo, (1 - colonne.parte) * (1 - righe.parte));
            conta(colonne.secondo, righe.primo, colonne.parte * (1 - righe.parte));
            conta(colonne.primo, righe.secondo, (1 - colonne.parte) * righe.parte);
            conta(colonne.secondo, righe.secondo, colonne.parte * righe.parte);
            auto punto = static_cast<std::uint32_t>(std::lround(somma[opacita])) << (8 * opacita);
            for (int c = 0; c < opacita && somma[opacita] > 0; ++c) {
                punto |= static_cast<std::uint32_t>(std::lround(somma[c] / somma[opacita]))
                         << (8 * c);
            }
            nuovi.push_back(punto);
        }
    }
    return nuovi;
}
