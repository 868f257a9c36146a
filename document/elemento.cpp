#include "document/elemento.h"

#include <algorithm>
#include <numeric>

namespace {

// An item and the block that its texts lie in.
class ElementoProprio {
public:
    explicit ElementoProprio(const TestiElemento& testi)
        : memoria_(std::make_unique_for_overwrite<wchar_t[]>(std::accumulate(
              testi.begin(), testi.end(), std::size_t{0},
              [](std::size_t somma, std::wstring_view testo) { return somma + testo.size(); }))),
          elemento_(copia(testi, memoria_.get())) {}

    [[nodiscard]] const Elemento& elemento() const noexcept { return elemento_; }

private:
    static TestiElemento copia(const TestiElemento& testi, wchar_t* dove) {
        TestiElemento copie;
        std::ranges::transform(testi, copie.begin(), [&dove](std::wstring_view testo) {
            const std::wstring_view copiato(dove, testo.size());
            dove = std::ranges::copy(testo, dove).out;
            return copiato;
        });
        return copie;
    }

    std::unique_ptr<wchar_t[]> memoria_;
    Elemento elemento_;
};

} // namespace

ElementoCondiviso creaElemento(const TestiElemento& testi) {
    auto proprio = std::make_shared<const ElementoProprio>(testi);
    const Elemento* const elemento = &proprio->elemento();
    return {std::move(proprio), elemento};
}

const ElementoCondiviso& elementoVuoto() {
    static const ElementoCondiviso vuoto = std::make_shared<const Elemento>(TestiElemento{});
    return vuoto;
}
