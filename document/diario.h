#pragma once

#include "document/modifica.h"
#include "document/tabellaElementi.h"
#include "support/tempo/dataora.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

class ContenutoRecord;
enum class TipoRecord : std::uint8_t;

// The diary of work that no file holds yet: what it tells and how its bytes tell it.

// The texts of some fields, in the order of whoever shows them.
using TestiCampi = std::vector<std::wstring>;

// An item that is being written in its editor.
struct Bozza {
    // The index of the item, -1 for a new one.
    int indice = -1;
    TestiCampi testi;

    bool operator==(const Bozza&) const = default;
};

// A document as it stands, with what is being written.
struct LavoroNonSalvato {
    // Local time of its first change.
    DataOra ora;
    // The document's file; empty for a new document.
    std::wstring percorso;
    DataOra ultimaData;
    // How many changes of items it took, and whether the channel's fields changed.
    int modifiche = 0;
    bool canaleModificato = false;
    TabellaElementi elementi;
    TestiCampi canale;
    std::optional<Bozza> bozza;
};

// A date as one of those texts; nothing for a text that is none.
[[nodiscard]] std::wstring comeTesto(DataOra data);
[[nodiscard]] std::optional<DataOra> dataDaTesto(const std::wstring& testo);

// Writes a diary, record by record. A record costs what its change holds.
class ScrittoreDiario {
public:
    // Takes the bytes of one record, or a few of them. What it raises goes through, and the diary
    // is then not to be continued.
    using Destinazione = std::function<void(std::string_view)>;
    explicit ScrittoreDiario(Destinazione destinazione) : destinazione_(std::move(destinazione)) {}

    // The whole work, with which every diary begins.
    void inizia(const LavoroNonSalvato& lavoro);

    // A change of the items; what was being written in the editor ends with it.
    void modifica(const Modifica& modifica, DataOra ultimaData);
    // The channel's texts as they are now: of those that changed, what changed. As many as at the
    // beginning.
    void canale(std::span<const std::wstring> testi);
    // The same of the editor; the first call says that it was opened.
    void bozza(const Bozza& bozza);
    // The editor was left without a change; nothing when none was told of.
    void bozzaChiusa();

private:
    void scrivi(TipoRecord tipo, const ContenutoRecord& contenuto);
    void cambiati(TipoRecord tipo, TestiCampi& noti, std::span<const std::wstring> testi);

    Destinazione destinazione_;
    std::uint64_t catena_ = 0;
    TestiCampi canale_;
    std::optional<Bozza> bozza_;
};

// What a diary tells.
struct LetturaDiario {
    // Nothing when its beginning does not read, or a later program wrote it.
    std::optional<LavoroNonSalvato> lavoro;
    // Whether it reads to its last byte. What stands behind a record that does not is passed over.
    bool intero = false;
    bool formatoSuccessivo = false;
};

[[nodiscard]] LetturaDiario leggiDiario(std::span<const std::byte> byte);

// "Lavoro non salvato su «notizie.xml», 21/11/2026 13:05: 3 elementi cambiati." The time in the
// user's format. Nothing of a diary without work.
[[nodiscard]] std::wstring descriviLavoro(const LetturaDiario& lettura,
                                          const FormatoLocale& formato);
