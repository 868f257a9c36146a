#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// The file dialogs as a service: they are modal, so tests put a fake in their place.

// What a file dialog is asked for.
struct RichiestaFile {
    // "Description|*.a;*.b|Description|*.*".
    std::wstring filtro;
    // The common dialog's flags, by their value (4100: the file must exist, no read-only box;
    // 2050: ask before overwriting, the path must exist).
    std::uint32_t opzioni = 0;
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

[[noreturn]] void sollevaDialogoAnnullato();
