#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

// The fields of an item, in the order of the table.
enum class CampoElemento : std::uint8_t { Titolo, Link, Descrizione, Autore, Data, Guid };
inline constexpr int numeroCampi = 6;

// Six texts in the order of CampoElemento.
using TestiElemento = std::array<std::wstring_view, numeroCampi>;

// One item: a value that never changes, shared by whoever shows, keeps or writes it.
class Elemento {
public:
    // The texts are not copied: whoever makes one by hand sees to it that they live as long.
    explicit Elemento(const TestiElemento& testi) noexcept : testi_(testi) {}

    [[nodiscard]] std::wstring_view operator[](CampoElemento campo) const noexcept {
        return testi_[static_cast<std::size_t>(campo)];
    }
    [[nodiscard]] const TestiElemento& testi() const noexcept { return testi_; }

    // Equal texts, wherever they lie.
    bool operator==(const Elemento& altro) const = default;

private:
    TestiElemento testi_;
};

// Keeps the item and the memory of its texts alive.
using ElementoCondiviso = std::shared_ptr<const Elemento>;

// An item with memory of its own for these texts.
[[nodiscard]] ElementoCondiviso creaElemento(const TestiElemento& testi);

// The item without a text, the same one each time.
[[nodiscard]] const ElementoCondiviso& elementoVuoto();
