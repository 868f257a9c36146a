#pragma once

#include "support/errori/errore.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

// A font as it is stored.
struct FontProprieta {
    std::wstring nome;
    double punti = 0;
    // 400 is normal, 700 bold.
    std::int32_t peso = 400;
    bool corsivo = false;
    bool sottolineato = false;
    bool barrato = false;

    friend bool operator==(const FontProprieta&, const FontProprieta&) = default;
};

using ValoreProprieta = std::variant<bool, std::int16_t, double, std::uint32_t, FontProprieta>;

// A bag of a control's properties, by key.
class BorsaProprieta {
public:
    BorsaProprieta() = default;
    BorsaProprieta(const BorsaProprieta&) = delete;
    BorsaProprieta& operator=(const BorsaProprieta&) = delete;
    virtual ~BorsaProprieta() = default;

    // The value stored, else the default. Raises 13 when one of another type is stored.
    template <class Tipo>
    [[nodiscard]] Tipo ReadProperty(std::wstring_view chiave, const Tipo& predefinito) const {
        const auto valore = prendi(chiave);
        if (!valore) {
            return predefinito;
        }
        const auto* const mio = std::get_if<Tipo>(&*valore);
        if (mio == nullptr) {
            solleva(errori::tipoNonCorrispondente);
        }
        return *mio;
    }

    // Stores a value, unless it is the default: that is not stored.
    template <class Tipo>
    void WriteProperty(std::wstring_view chiave, const Tipo& valore, const Tipo& predefinito) {
        if (!(valore == predefinito)) {
            metti(chiave, valore);
        }
    }

protected:
    [[nodiscard]] virtual std::optional<ValoreProprieta> prendi(std::wstring_view chiave) const = 0;
    virtual void metti(std::wstring_view chiave, const ValoreProprieta& valore) = 0;
};
