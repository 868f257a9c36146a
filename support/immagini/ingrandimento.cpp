#include "support/immagini/ingrandimento.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace {

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
    const int larga = fila.quante * fila.lato;
    for (int y = 0; y < lato; ++y) {
        const Fra righe = fra(y, lato, fila.lato);
        for (int x = 0; x < fila.quante * lato; ++x) {
            const Fra colonne = fra(x % lato, lato, fila.lato);
            const int figura = x / lato * fila.lato;
            std::array<double, opacita> colori{};
            double opaco = 0;
            const auto conta = [&](int colonna, int riga, double peso) {
                const int dove = riga * larga + figura + colonna;
                const std::uint32_t punto = fila.punti[static_cast<std::size_t>(dove)];
                const double quanto = peso * canale(punto, opacita);
                int quale = 0;
                for (double& colore : colori) {
                    colore += quanto * canale(punto, quale++);
                }
                opaco += quanto;
            };
            conta(colonne.primo, righe.primo, (1 - colonne.parte) * (1 - righe.parte));
            conta(colonne.secondo, righe.primo, colonne.parte * (1 - righe.parte));
            conta(colonne.primo, righe.secondo, (1 - colonne.parte) * righe.parte);
            conta(colonne.secondo, righe.secondo, colonne.parte * righe.parte);
            auto punto = static_cast<std::uint32_t>(std::lround(opaco)) << (8U * opacita);
            if (opaco > 0) {
                unsigned bit = 0;
                for (const double colore : colori) {
                    punto |= static_cast<std::uint32_t>(std::lround(colore / opaco)) << bit;
                    bit += 8;
                }
            }
            nuovi.push_back(punto);
        }
    }
    return nuovi;
}
