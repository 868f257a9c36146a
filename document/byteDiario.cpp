#include "document/byteDiario.h"

#include "support/caratteri/impronta.h"

#include <array>
#include <cstring>
#include <limits>

namespace {

// The length counts kind and content; it stands before, with the checksum behind it.
constexpr std::size_t lungoTesta = sizeof(std::uint32_t) + sizeof(std::uint64_t);

// Lowest byte first, whatever machine this is.
template <class Intero>
void aggiungi(std::string& byte, Intero valore) {
    for (std::size_t i = 0; i < sizeof valore; ++i) {
        byte += static_cast<char>(static_cast<unsigned char>(valore >> (8 * i)));
    }
}

template <class Intero>
Intero intero(std::span<const std::byte> byte) noexcept {
    Intero valore = 0;
    for (std::size_t i = 0; i < sizeof valore; ++i) {
        valore |= static_cast<Intero>(std::to_integer<Intero>(byte[i]) << (8 * i));
    }
    return valore;
}

} // namespace

void ContenutoRecord::numero(std::uint64_t valore) {
    while (valore >= 0x80) {
        byte_ += static_cast<char>(static_cast<unsigned char>(valore | 0x80U));
        valore >>= 7U;
    }
    byte_ += static_cast<char>(static_cast<unsigned char>(valore));
}

void ContenutoRecord::conSegno(std::int64_t valore) {
    // The sign in the lowest bit, so that small numbers of either are short.
    const auto doppio = static_cast<std::uint64_t>(valore) << 1U;
    numero(valore < 0 ? ~doppio : doppio);
}

void ContenutoRecord::testo(std::wstring_view valore) {
    numero(valore.size());
    if constexpr (sizeof(wchar_t) == 2) {
        byte_.append(reinterpret_cast<const char*>(valore.data()), valore.size() * 2);
    } else {
        for (const wchar_t c : valore) {
            aggiungi(byte_, static_cast<std::uint16_t>(c));
        }
    }
}

void ContenutoRecord::elemento(const Elemento& valore) {
    for (const std::wstring_view testo : valore.testi()) {
        this->testo(testo);
    }
}

std::optional<std::uint64_t> LettoreRecord::numero() noexcept {
    std::uint64_t valore = 0;
    for (unsigned scorrimento = 0; scorrimento < 64 && !byte_.empty(); scorrimento += 7) {
        const auto byte = std::to_integer<std::uint64_t>(byte_.front());
        byte_ = byte_.subspan(1);
        valore |= (byte & 0x7FU) << scorrimento;
        if (byte < 0x80) {
            return valore;
        }
    }
    return std::nullopt;
}

std::optional<std::int64_t> LettoreRecord::conSegno() noexcept {
    const auto letto = numero();
    if (!letto) {
        return std::nullopt;
    }
    const std::uint64_t meta = *letto >> 1U;
    return static_cast<std::int64_t>((*letto & 1U) != 0 ? ~meta : meta);
}

std::optional<int> LettoreRecord::piccolo(int massimo) noexcept {
    const auto letto = numero();
    if (!letto || *letto > static_cast<std::uint64_t>(massimo)) {
        return std::nullopt;
    }
    return static_cast<int>(*letto);
}

std::optional<std::wstring> LettoreRecord::testo() {
    const auto lunghezza = numero();
    if (!lunghezza || *lunghezza > byte_.size() / 2) {
        return std::nullopt;
    }
    const auto unita = byte_.first(static_cast<std::size_t>(*lunghezza) * 2);
    byte_ = byte_.subspan(unita.size());
    std::wstring valore(static_cast<std::size_t>(*lunghezza), L'\0');
    if constexpr (sizeof(wchar_t) == 2) {
        std::memcpy(valore.data(), unita.data(), unita.size());
    } else {
        for (std::size_t i = 0; i < valore.size(); ++i) {
            valore[i] = static_cast<wchar_t>(intero<std::uint16_t>(unita.subspan(2 * i)));
        }
    }
    return valore;
}

ElementoCondiviso LettoreRecord::elemento() {
    std::array<std::wstring, numeroCampi> testi;
    TestiElemento viste;
    for (std::size_t i = 0; i < testi.size(); ++i) {
        auto letto = testo();
        if (!letto) {
            return nullptr;
        }
        testi[i] = std::move(*letto);
        viste[i] = testi[i];
    }
    return creaElemento(viste);
}

std::string record(TipoRecord tipo, const ContenutoRecord& contenuto, std::uint64_t& catena) {
    std::string corpo;
    corpo.reserve(1 + contenuto.byte().size());
    corpo += static_cast<char>(tipo);
    corpo += contenuto.byte();
    catena = impronta(std::as_bytes(std::span(corpo)), catena);
    std::string intero;
    intero.reserve(lungoTesta + corpo.size());
    aggiungi(intero, static_cast<std::uint32_t>(corpo.size()));
    aggiungi(intero, catena);
    return intero += corpo;
}

std::optional<RecordLetto> leggiRecord(std::span<const std::byte>& byte,
                                       std::uint64_t& catena) noexcept {
    if (byte.size() < lungoTesta) {
        return std::nullopt;
    }
    const auto lunghezza = intero<std::uint32_t>(byte);
    const auto somma = intero<std::uint64_t>(byte.subspan(sizeof lunghezza));
    if (lunghezza == 0 || lunghezza > byte.size() - lungoTesta) {
        return std::nullopt;
    }
    const auto corpo = byte.subspan(lungoTesta, lunghezza);
    if (impronta(corpo, catena) != somma) {
        return std::nullopt;
    }
    catena = somma;
    byte = byte.subspan(lungoTesta + lunghezza);
    return RecordLetto{static_cast<TipoRecord>(corpo.front()), corpo.subspan(1)};
}
