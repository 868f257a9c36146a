#include "document/deposito.h"

#include <algorithm>

namespace {

// In characters. Blocks grow with the document: a small one keeps a small one.
constexpr std::size_t primoBlocco = std::size_t{8} * 1024;
constexpr std::size_t bloccoMassimo = std::size_t{512} * 1024;

} // namespace

std::wstring_view Deposito::conserva(std::wstring_view testo) {
    if (testo.size() > libero_.size()) {
        blocco_ = std::clamp(blocco_ * 2, primoBlocco, bloccoMassimo);
        const std::size_t misura = std::max(testo.size(), blocco_);
        blocchi_.push_back(std::make_unique_for_overwrite<wchar_t[]>(misura));
        libero_ = {blocchi_.back().get(), misura};
    }
    std::ranges::copy(testo, libero_.begin());
    const std::wstring_view copia(libero_.data(), testo.size());
    libero_ = libero_.subspan(testo.size());
    return copia;
}

std::vector<ElementoCondiviso> Deposito::elementi(const std::shared_ptr<const Deposito>& deposito) {
    std::vector<ElementoCondiviso> condivisi;
    condivisi.reserve(deposito->elementi_.size());
    for (const Elemento& elemento : deposito->elementi_) {
        condivisi.emplace_back(deposito, &elemento);
    }
    return condivisi;
}
