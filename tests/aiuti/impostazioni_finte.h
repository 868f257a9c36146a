#pragma once

#include "support/errori/errore.h"
#include "support/servizi/impostazioni.h"

#include <map>
#include <string>
#include <utility>

// A settings store in memory, for lists whose rules matter and whose registry does not.
class ImpostazioniFinte final : public Impostazioni {
public:
    [[nodiscard]] std::wstring leggi(std::wstring_view sezione, std::wstring_view chiave,
                                     std::wstring_view altrimenti) const override {
        const auto voce = valori.find({std::wstring(sezione), std::wstring(chiave)});
        return voce == valori.end() ? std::wstring(altrimenti) : voce->second;
    }
    void scrivi(std::wstring_view sezione, std::wstring_view chiave,
                std::wstring_view valore) override {
        if (rifiuta) {
            solleva(errori::accessoAlPercorso);
        }
        valori[{std::wstring(sezione), std::wstring(chiave)}] = valore;
    }

    // Writing raises error 75.
    bool rifiuta = false;
    std::map<std::pair<std::wstring, std::wstring>, std::wstring> valori;
};
