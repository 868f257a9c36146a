#pragma once

#include "document/modifica.h"
#include "document/tabellaElementi.h"
#include "support/tempo/dataora.h"

#include <string>
#include <string_view>
#include <vector>

// Hears what happens to the document, after it happened.
class OsservatoreDocumento {
public:
    OsservatoreDocumento() = default;
    OsservatoreDocumento(const OsservatoreDocumento&) = delete;
    OsservatoreDocumento& operator=(const OsservatoreDocumento&) = delete;

    virtual void elementiModificati(const Modifica& modifica, Causa causa) = 0;
    // All the items are others now: those of a file that was opened, or none.
    virtual void elementiSostituiti() = 0;
    // A value of the channel is another one, by the user or by code.
    virtual void campiModificati() {}

protected:
    ~OsservatoreDocumento() = default;
};

// The document's owner: its items, its file and whether it was modified. The channel's values live
// in their fields. The items change by `applica` and `sostituisci` alone.
class Documento {
public:
    static constexpr std::wstring_view nuovoDocumento = L"Nuovo Documento";

    Documento() = default;
    Documento(const Documento&) = delete;
    Documento& operator=(const Documento&) = delete;
    ~Documento() = default;

    [[nodiscard]] const TabellaElementi& elementi() const noexcept { return elementi_; }

    // Changes of the table as it is now: a new item at the end, one that comes to stand at an index
    // (at most the count), another one in an item's place, an item gone, an item from `da` to index
    // `a`. Raise error 9 for an index that no item has, 6 when the table is full.
    [[nodiscard]] Modifica aggiunta(ElementoCondiviso elemento) const;
    [[nodiscard]] Modifica aggiunta(int indice, ElementoCondiviso elemento) const;
    [[nodiscard]] Modifica cambio(int indice, ElementoCondiviso elemento) const;
    [[nodiscard]] Modifica rimozione(int indice) const;
    [[nodiscard]] Modifica spostamento(int da, int a) const;

    // Makes a change; the observers hear of it in the order they came, the last with the flag
    // already set. Raises errors 6 and 9 and leaves the table as it was; what an observer raises
    // keeps the change and the later observers from hearing of it.
    void applica(const Modifica& modifica, Causa causa = Causa::Comando);

    // These items instead of all that were there; neither path nor flags change.
    void sostituisci(TabellaElementi elementi);

    // Full path of the file; empty for a new document.
    [[nodiscard]] const std::wstring& percorso() const noexcept { return percorso_; }
    void percorso(std::wstring valore) noexcept { percorso_ = std::move(valore); }

    [[nodiscard]] bool modificato() const noexcept { return modificato_; }
    void modificato(bool valore) noexcept { modificato_ = valore; }

    // A value of the channel changed in its field: the document is modified.
    void campiModificati();

    // Sets the new-document flag from the name (true exactly for "Nuovo Documento") and gives the
    // window's caption: the title alone for an empty name, else title, two blanks and "[name]".
    [[nodiscard]] std::wstring ImpostaTitolo(std::wstring_view nome);
    [[nodiscard]] bool nuovo() const noexcept { return nuovo_; }

    // Whether the document may go without a question: it is unmodified, or it has no file and
    // nothing in it: no items, and `campiVuoti` (all nine texts blank).
    [[nodiscard]] bool scartabile(bool campiVuoti) const noexcept;

    // Local date and time proposed for a new item.
    [[nodiscard]] DataOra ultimaData() const noexcept { return ultimaData_; }
    void ultimaData(DataOra valore) noexcept { ultimaData_ = valore; }

    // Not owned: an observer leaves before it goes.
    void osserva(OsservatoreDocumento& osservatore) { osservatori_.push_back(&osservatore); }
    void lascia(OsservatoreDocumento& osservatore) noexcept {
        std::erase(osservatori_, &osservatore);
    }

private:
    TabellaElementi elementi_;
    std::wstring percorso_;
    DataOra ultimaData_;
    std::vector<OsservatoreDocumento*> osservatori_;
    bool modificato_ = false;
    bool nuovo_ = true;
};
