#pragma once

#include "document/copie_win.h"
#include "document/custodeFile.h"
#include "document/statoFile_win.h"

#include <optional>
#include <string>
#include <utility>

class Avvisi;
class Documento;
class Orologio;

// Keeps a copy of each file that a command replaces, and says where that did not go as the user may
// think: it could not be made, or the document's file was no longer the one that was opened.
class CustodeCopie final : public CustodeFile {
public:
    // `cartella` is that of all copies, made at the first need. The others outlive it.
    CustodeCopie(std::wstring cartella, const Documento& documento, const Orologio& orologio,
                 Avvisi& avvisi)
        : copie_(std::move(cartella)), documento_(documento), orologio_(orologio), avvisi_(avvisi) {
    }

    void conserva(const std::wstring& percorso) noexcept override;

    // The document's file as it was read or written; nothing for a document that no file holds.
    void documentoIn(std::optional<StatoFile> stato) noexcept { stato_ = stato; }

    // Says what the next save of the document drops, if anything.
    void avvisaPerdite(std::wstring testo);

    // Shows the copies of the document's file.
    void apriCopie() const;

private:
    CopieFile copie_;
    const Documento& documento_;
    const Orologio& orologio_;
    Avvisi& avvisi_;
    std::optional<StatoFile> stato_;
};
