#pragma once

#include "support/servizi/impostazioni.h"

// The settings store in the user's registry.
class ImpostazioniRegistro final : public Impostazioni {
public:
    explicit ImpostazioniRegistro(std::wstring_view applicazione);

    [[nodiscard]] std::wstring leggi(std::wstring_view sezione, std::wstring_view chiave,
                                     std::wstring_view altrimenti) const override;
    void scrivi(std::wstring_view sezione, std::wstring_view chiave,
                std::wstring_view valore) override;

private:
    [[nodiscard]] std::wstring percorso(std::wstring_view sezione) const;

    std::wstring radice_;
};
