#include "document/statoFile_win.h"

#include "support/caratteri/impronta.h"
#include "support/windows/xml_win.h"

namespace {

// Size and time, from the listing.
std::optional<StatoFile> visto(const std::wstring& percorso) noexcept {
    WIN32_FILE_ATTRIBUTE_DATA dati{};
    if (!GetFileAttributesExW(percorso.c_str(), GetFileExInfoStandard, &dati)) {
        return std::nullopt;
    }
    const auto intero = [](DWORD alto, DWORD basso) {
        return (std::uint64_t{alto} << 32U) | basso;
    };
    return StatoFile{
        .lunghezza = intero(dati.nFileSizeHigh, dati.nFileSizeLow),
        .scritto = intero(dati.ftLastWriteTime.dwHighDateTime, dati.ftLastWriteTime.dwLowDateTime),
        .somma = 0};
}

} // namespace

std::optional<StatoFile> statoFile(const std::wstring& percorso,
                                   std::span<const std::byte> contenuto) noexcept {
    auto stato = visto(percorso);
    if (stato) {
        stato->lunghezza = contenuto.size();
        stato->somma = impronta(contenuto);
    }
    return stato;
}

std::optional<StatoFile> statoFile(const std::wstring& percorso) noexcept {
    try {
        const ContenutoFile contenuto(percorso);
        return contenuto ? statoFile(percorso, contenuto.byte()) : std::nullopt;
    } catch (const Errore&) {
        return std::nullopt;
    }
}

bool ancora(const StatoFile& stato, const std::wstring& percorso) noexcept {
    const auto adesso = visto(percorso);
    if (!adesso || adesso->lunghezza != stato.lunghezza) {
        return false;
    }
    if (adesso->scritto == stato.scritto) {
        return true;
    }
    const auto letto = statoFile(percorso);
    return letto && letto->lunghezza == stato.lunghezza && letto->somma == stato.somma;
}
