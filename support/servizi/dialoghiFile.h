#pragma once

#include <string>
#include <string_view>

// The file dialogs as a service: they are modal, so tests put a fake in their place.

// What a file dialog sees to.
struct OpzioniFile {
    bool fileEsistente = false;        // only a file that is there can be chosen
    bool senzaSolaLettura = false;     // no box to open it read-only
    bool chiedeSovrascrittura = false; // before a file that is there is chosen
    bool cartellaEsistente = false;    // only a folder that is there can be named

    bool operator==(const OpzioniFile&) const = default;
};
inline constexpr OpzioniFile opzioniApri{.fileEsistente = true, .senzaSolaLettura = true};
inline constexpr OpzioniFile opzioniSalva{.chiedeSovrascrittura = true, .cartellaEsistente = true};

// What a file dialog is asked for.
struct RichiestaFile {
    // "Description|*.a;*.b|Description|*.*".
    std::wstring filtro;
    OpzioniFile opzioni;
    // Added to a name typed without one; with its dot (".xml"). Empty for none.
    std::wstring estensione;
};

class DialoghiFile {
public:
    DialoghiFile() = default;
    DialoghiFile(const DialoghiFile&) = delete;
    DialoghiFile& operator=(const DialoghiFile&) = delete;
    virtual ~DialoghiFile() = default;

    // Shows the dialog over the active window and gives the full path chosen. Raises 32755 when
    // the user cancels.
    [[nodiscard]] virtual std::wstring apri(const RichiestaFile& richiesta) = 0;
    [[nodiscard]] virtual std::wstring salva(const RichiestaFile& richiesta) = 0;
};

// A filter as Windows wants it: each piece ends with a character 0, the whole with one more.
[[nodiscard]] std::wstring filtroWindows(std::wstring_view filtro);

// A default extension as Windows wants it, without its dot.
[[nodiscard]] std::wstring estensioneWindows(std::wstring_view estensione);
