#pragma once

#include "document/elemento.h"

#include <cstddef>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

// The items of a document that is being read, and their texts in large blocks. As thousands of
// strings they would lie between what the DOM allocates and frees for each node, and leave a heap
// of crumbs to search. What `elementi` gives keeps all of it alive, down to the last item.
class Deposito {
public:
    // A copy of the text that lives as long as the store.
    [[nodiscard]] std::wstring_view conserva(std::wstring_view testo);

    // One more item, of texts that the store keeps.
    void aggiungi(const TestiElemento& testi) { elementi_.emplace_back(testi); }

    // The items in their order, without a copy. The store takes nothing more from here on.
    [[nodiscard]] static std::vector<ElementoCondiviso>
    elementi(const std::shared_ptr<const Deposito>& deposito);

private:
    std::vector<std::unique_ptr<wchar_t[]>> blocchi_;
    std::span<wchar_t> libero_;
    std::size_t blocco_ = 0;
    std::vector<Elemento> elementi_;
};
