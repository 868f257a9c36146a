#include "ui/controls/proprietaNumerico.h"

#include <array>
#include <map>
#include <vector>

#include <gtest/gtest.h>

namespace {

class Borsa final : public BorsaProprieta {
public:
    std::map<std::wstring, ValoreProprieta, std::less<>> valori;
    mutable std::vector<std::wstring> lette;
    std::vector<std::wstring> scritte;

protected:
    [[nodiscard]] std::optional<ValoreProprieta> prendi(std::wstring_view chiave) const override {
        lette.emplace_back(chiave);
        const auto voce = valori.find(chiave);
        return voce == valori.end() ? std::nullopt : std::optional(voce->second);
    }
    void metti(std::wstring_view chiave, const ValoreProprieta& valore) override {
        scritte.emplace_back(chiave);
        valori.insert_or_assign(std::wstring(chiave), valore);
    }
};

const FontProprieta ambiente{L"Tahoma", 8, 400, false, false, false};

ProprietaNumerico tutteDiverse() {
    ProprietaNumerico p;
    p.CifreDecimali = 0;
    p.VisualizzaZero = false;
    p.Massimo = 10000;
    p.Incremento = 5;
    p.Minimo = -1;
    p.Font = {L"Arial", 12, 700, true, false, false};
    p.Valore = 7;
    p.ForeColor = 0x0000FF;
    p.Enabled = false;
    p.Locked = true;
    return p;
}

} // namespace

TEST(ProprietaNumericoBorsa, SiLeggonoNelLoroOrdine) {
    const Borsa borsa;
    const ProprietaNumerico p = leggiProprieta(borsa, ambiente);
    EXPECT_EQ(borsa.lette,
              (std::vector<std::wstring>{L"CifreDecimali", L"VisualizzaZero", L"Massimo",
                                         L"Incremento", L"Minimo", L"Font", L"Valore", L"ForeColor",
                                         L"Enabled", L"Locked"}));
    EXPECT_EQ(p.CifreDecimali, 2);
    EXPECT_TRUE(p.VisualizzaZero);
    EXPECT_EQ(p.Massimo, 100);
    EXPECT_EQ(p.Incremento, 1);
    EXPECT_EQ(p.Minimo, 0);
    EXPECT_EQ(p.Font, ambiente);
    EXPECT_EQ(p.Valore, 0);
    EXPECT_EQ(p.ForeColor, 0x80000008U);
    EXPECT_TRUE(p.Enabled);
    EXPECT_FALSE(p.Locked);
}

TEST(ProprietaNumericoBorsa, SiScrivonoNelLoroOrdine) {
    Borsa borsa;
    scriviProprieta(borsa, tutteDiverse(), ambiente);
    EXPECT_EQ(borsa.scritte,
              (std::vector<std::wstring>{L"Massimo", L"Valore", L"Incremento", L"Minimo", L"Font",
                                         L"VisualizzaZero", L"ForeColor", L"Enabled", L"Locked",
                                         L"CifreDecimali"}));
}

TEST(ProprietaNumericoBorsa, UnPredefinitoNonSiConserva) {
    Borsa borsa;
    ProprietaNumerico p;
    p.Font = ambiente;
    scriviProprieta(borsa, p, ambiente);
    EXPECT_TRUE(borsa.valori.empty());
    p.Incremento = 2;
    scriviProprieta(borsa, p, ambiente);
    EXPECT_EQ(borsa.scritte, std::vector<std::wstring>{L"Incremento"});
}

TEST(ProprietaNumericoBorsa, QuelCheSiScriveSiRilegge) {
    Borsa borsa;
    const ProprietaNumerico scritte = tutteDiverse();
    scriviProprieta(borsa, scritte, ambiente);
    const ProprietaNumerico p = leggiProprieta(borsa, ambiente);
    EXPECT_EQ(p.CifreDecimali, scritte.CifreDecimali);
    EXPECT_EQ(p.VisualizzaZero, scritte.VisualizzaZero);
    EXPECT_EQ(p.Massimo, scritte.Massimo);
    EXPECT_EQ(p.Incremento, scritte.Incremento);
    EXPECT_EQ(p.Minimo, scritte.Minimo);
    EXPECT_EQ(p.Font, scritte.Font);
    EXPECT_EQ(p.Valore, scritte.Valore);
    EXPECT_EQ(p.ForeColor, scritte.ForeColor);
    EXPECT_EQ(p.Enabled, scritte.Enabled);
    EXPECT_EQ(p.Locked, scritte.Locked);
}

TEST(ProprietaNumericoBorsa, UnTipoSbagliatoEErrore13) {
    Borsa borsa;
    borsa.valori.insert_or_assign(L"Massimo", true);
    try {
        static_cast<void>(leggiProprieta(borsa, ambiente));
        ADD_FAILURE();
    } catch (const Errore& errore) {
        EXPECT_EQ(errore.numero(), 13);
    }
}

TEST(ProprietaNumericoBorsa, LeDescrizioniPubblicate) {
    using Voce = std::array<std::wstring_view, 3>;
    std::vector<Voce> pubblicate;
    for (const auto& voce : descrizioniNumerico()) {
        pubblicate.push_back({voce.nome, voce.descrizione, voce.categoria});
    }
    // The doubled blanks belong to the texts.
    EXPECT_EQ(
        pubblicate,
        (std::vector<Voce>{
            {L"Valore", L"Proprietà che restituisce o imposta il valore contenuto nel controllo.",
             L"Dati"},
            {L"Massimo",
             L"Imposta il valore massimo che il controllo può contenere. Se l'utente inserisce un "
             L"valore superiore  a tale limite verrà generato l'evento MassimoSuperato e il valore "
             L"sarà automaticamente impostato al valore massimo.",
             L""},
            {L"Minimo",
             L"Restituisce o imposta il valore minimo che il controllo può contenere. Se l'utente "
             L"tenta di immettere un valore inferiore a tale limite verrà generato l'evento "
             L"MinimoSuperato e il valore sarà automaticamente impostato al valore minimo.",
             L""},
            {L"Incremento",
             L"Imposta o restituisce l'unità di incremento/decremento usata quando vengono premuti "
             L"i pulsanti di scorrimento a lato del controllo.",
             L"Azioni"},
            {L"Font",
             L"Imposta o restituisce il font utilizzato dal controllo per visualizzare il testo.",
             L"Carattere"},
            {L"VisualizzaZero",
             L"Proprietà booleana che consente di indicare se il controllo debba visualizzare o "
             L"meno il valore zero.",
             L"Aspetto"},
            {L"Text", L"Proprietà che restituisce o imposta il testo contenuto nel controllo.",
             L""},
            {L"ForeColor",
             L"Restituisce o imposta il colore  utilizzato per la visualizzazione del testo.", L""},
            {L"Enabled",
             L"Restituisce o imposta un valore che determina se un oggetto è in grado di "
             L"rispondere "
             L"agli eventi generati dall'utente.",
             L""},
            {L"Locked", L"Determina se un controllo può essere modificato.", L""},
            {L"CifreDecimali", L"", L""}}));
}
