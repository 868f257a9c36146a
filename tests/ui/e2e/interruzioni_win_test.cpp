// The shipped executable ended at any moment of random work, and what it then still knows.

#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/chiaveSalvata_win.h"
#include "tests/aiuti/datiLocali_win.h"
#include "tests/aiuti/giri.h"
#include "tests/aiuti/lavoroACaso_win.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <map>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

TEST(Interruzioni, NienteSiPerdeQualunqueSiaIlMomento) {
    using Genere = LavoroACaso::Genere;
    constexpr std::array generi{Genere::Grande, Genere::Nuovo, Genere::Piccolo, Genere::Piccolo,
                                Genere::Piccolo};
    const std::uint32_t uccisioni = daAmbiente("OSTRELLE_UCCISIONI", 6);
    const std::uint32_t primo = daAmbiente("OSTRELLE_SEME", 20261121);
    // Each in its turn; few are spread over all kinds.
    const std::uint32_t perVita = uccisioni < 50 ? 2 : 10;
    const bool molte = uccisioni >= 50;
    std::map<std::string, int> conti;
    int perdite = 0;
    for (std::uint32_t fatte = 0, vita = 0; fatte < uccisioni; ++vita) {
        const CartellaProva cartella;
        const ChiaveSalvata impostazioni(HKEY_CURRENT_USER,
                                         L"Software\\VB and VBA Program Settings\\Ostrelle");
        const DatiLocaliProva dati(cartella.file(L"dati"));
        LavoroACaso lavoro(primo + vita, generi[vita % generi.size()], cartella.percorso());
        try {
            for (std::uint32_t i = 0; i < perVita && fatte < uccisioni; ++i) {
                ++fatte;
                lavoro.uccidi();
            }
            lavoro.concludi();
        } catch (const std::exception& errore) {
            ++perdite;
            ADD_FAILURE() << "seed " << primo + vita << ": " << errore.what() << "\nafter "
                          << lavoro.fatto();
        } catch (const Terminata&) {
            ++perdite;
            ADD_FAILURE() << "seed " << primo + vita << ": the program ended by itself after "
                          << lavoro.fatto();
        }
        for (const auto& [che, quante] : lavoro.conti()) {
            conti[che] += quante;
        }
        if (molte) {
            std::printf("%u di %u, perdite %d\n", fatte, uccisioni, perdite);
            std::fflush(stdout);
        }
    }
    if (molte) {
        conti["vite guaste"] = perdite;
        for (const auto& [che, quante] : conti) {
            std::printf("conto %s: %d\n", che.c_str(), quante);
        }
    }
}
