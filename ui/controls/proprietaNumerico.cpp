#include "ui/controls/proprietaNumerico.h"

#include <array>

namespace {

constexpr std::array descrizioni{
    DescrizioneProprieta{L"Valore",
                         L"Proprietà che restituisce o imposta il valore contenuto nel controllo.",
                         L"Dati"},
    DescrizioneProprieta{L"Massimo",
                         L"Imposta il valore massimo che il controllo può contenere. Se l'utente "
                         L"inserisce un valore superiore  a tale limite verrà generato l'evento "
                         L"MassimoSuperato e il valore sarà automaticamente impostato al valore "
                         L"massimo.",
                         L""},
    DescrizioneProprieta{L"Minimo",
                         L"Restituisce o imposta il valore minimo che il controllo può contenere. "
                         L"Se l'utente tenta di immettere un valore inferiore a tale limite verrà "
                         L"generato l'evento MinimoSuperato e il valore sarà automaticamente "
                         L"impostato al valore minimo.",
                         L""},
    DescrizioneProprieta{L"Incremento",
                         L"Imposta o restituisce l'unità di incremento/decremento usata quando "
                         L"vengono premuti i pulsanti di scorrimento a lato del controllo.",
                         L"Azioni"},
    DescrizioneProprieta{L"Font",
                         L"Imposta o restituisce il font utilizzato dal controllo per "
                         L"visualizzare il testo.",
                         L"Carattere"},
    DescrizioneProprieta{L"VisualizzaZero",
                         L"Proprietà booleana che consente di indicare se il controllo debba "
                         L"visualizzare o meno il valore zero.",
                         L"Aspetto"},
    DescrizioneProprieta{
        L"Text", L"Proprietà che restituisce o imposta il testo contenuto nel controllo.", L""},
    DescrizioneProprieta{L"ForeColor",
                         L"Restituisce o imposta il colore  utilizzato per la visualizzazione del "
                         L"testo.",
                         L""},
    DescrizioneProprieta{L"Enabled",
                         L"Restituisce o imposta un valore che determina se un oggetto è in grado "
                         L"di rispondere agli eventi generati dall'utente.",
                         L""},
    DescrizioneProprieta{L"Locked", L"Determina se un controllo può essere modificato.", L""},
    DescrizioneProprieta{L"CifreDecimali", L"", L""},
};

} // namespace

ProprietaNumerico leggiProprieta(const BorsaProprieta& borsa, const FontProprieta& ambiente) {
    ProprietaNumerico p;
    p.CifreDecimali = borsa.ReadProperty(L"CifreDecimali", p.CifreDecimali);
    p.VisualizzaZero = borsa.ReadProperty(L"VisualizzaZero", p.VisualizzaZero);
    p.Massimo = borsa.ReadProperty(L"Massimo", p.Massimo);
    p.Incremento = borsa.ReadProperty(L"Incremento", p.Incremento);
    p.Minimo = borsa.ReadProperty(L"Minimo", p.Minimo);
    p.Font = borsa.ReadProperty(L"Font", ambiente);
    p.Valore = borsa.ReadProperty(L"Valore", p.Valore);
    p.ForeColor = borsa.ReadProperty(L"ForeColor", p.ForeColor);
    p.Enabled = borsa.ReadProperty(L"Enabled", p.Enabled);
    p.Locked = borsa.ReadProperty(L"Locked", p.Locked);
    return p;
}

void scriviProprieta(BorsaProprieta& borsa, const ProprietaNumerico& p,
                     const FontProprieta& ambiente) {
    const ProprietaNumerico predefinite;
    borsa.WriteProperty(L"Massimo", p.Massimo, predefinite.Massimo);
    borsa.WriteProperty(L"Valore", p.Valore, predefinite.Valore);
    borsa.WriteProperty(L"Incremento", p.Incremento, predefinite.Incremento);
    borsa.WriteProperty(L"Minimo", p.Minimo, predefinite.Minimo);
    borsa.WriteProperty(L"Font", p.Font, ambiente);
    borsa.WriteProperty(L"VisualizzaZero", p.VisualizzaZero, predefinite.VisualizzaZero);
    borsa.WriteProperty(L"ForeColor", p.ForeColor, predefinite.ForeColor);
    borsa.WriteProperty(L"Enabled", p.Enabled, predefinite.Enabled);
    borsa.WriteProperty(L"Locked", p.Locked, predefinite.Locked);
    borsa.WriteProperty(L"CifreDecimali", p.CifreDecimali, predefinite.CifreDecimali);
}

std::span<const DescrizioneProprieta> descrizioniNumerico() noexcept {
    return descrizioni;
}
