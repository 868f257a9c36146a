#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

// The fields of an item, the first index of the table.
enum class CampoElemento : std::uint8_t { Titolo, Link, Descrizione, Autore, Data, Guid };
inline constexpr int numeroCampi = 6;

// The item table: strings by field and item, with the 16-bit count kept beside it. It always has a
// first item: empty, with count 0, in an empty document. The writer and the page go by the upper
// bound, never by the count. Growing, removing and moving copy no texts.
class TabellaElementi {
public:
    TabellaElementi();
    TabellaElementi(const TabellaElementi& altra);
    TabellaElementi(TabellaElementi&& altra) noexcept;
    TabellaElementi& operator=(const TabellaElementi& altra);
    TabellaElementi& operator=(TabellaElementi&& altra) noexcept;
    ~TabellaElementi();

    // Back to one empty item and count 0.
    void svuota();

    // `numero` empty items, 1 to 32767; the count becomes `numero`. Raises error 6 above.
    void dimensiona(std::int64_t numero);

    [[nodiscard]] std::int16_t conteggio() const noexcept { return conteggio_; }
    // The last item index, at least 0.
    [[nodiscard]] int limiteSuperiore() const noexcept;

    // Raise error 9 when the index is beyond the upper bound.
    [[nodiscard]] const std::wstring& operator()(CampoElemento campo, int indice) const;
    [[nodiscard]] std::wstring& operator()(CampoElemento campo, int indice);

    // One more empty item at the end (the first one when the count was 0); gives its index. Raises
    // error 6 past 32767 items, and leaves the table as it was.
    int aggiungi();

    // Removes an item; the last one left leaves the empty table. Raises error 9.
    void rimuovi(int indice);

    // The item at `da` ends at index `a`, the others keep their order. Raises error 9.
    void sposta(int da, int a);

private:
    using Elemento = std::array<std::wstring, numeroCampi>;

    // Raises error 9 beyond the upper bound.
    [[nodiscard]] std::size_t posizione(int indice) const;

    // Pointers, so that removing or moving among thousands shifts words and not texts.
    std::vector<std::unique_ptr<Elemento>> elementi_;
    std::int16_t conteggio_ = 0;
};
