#pragma once

#include "document/copie_win.h"
#include "document/custodeFile.h"
#include "document/perdite.h"
#include "document/statoFile_win.h"

#include <optional>
#include <span>
#include <string>
#include <utility>

class Avvisi;
class Documento;
class FinestraPrincipale;
struct PulsanteAvviso;
class Messaggi;
class Orologio;
struct Servizi;

// Keeps a copy of each file that a command replaces, and says what the user may not know of it: it
// could not be made, the document's file was no longer the one that was opened, or it holds what
// the next save drops.
class CustodeCopie final : public CustodeFile {
public:
    // All outlive it; the folder of copies is made at the first need.
    CustodeCopie(const Servizi& servizi, const FinestraPrincipale& finestra,
                 const Documento& documento, Avvisi& avvisi);

    [[nodiscard]] bool conserva(const std::wstring& percorso) noexcept override;
    void nonSostituito(const std::wstring& percorso) noexcept override;

    // The document is another one, in no file yet.
    void nuovoDocumento();
    // The document was read from its file: how that stood, and what a save drops.
    void aperto(std::optional<StatoFile> file, std::span<const Perdita> perdite);
    // It was written to its file.
    void salvato();

private:
    [[nodiscard]] PulsanteAvviso apriCopie(const std::wstring& percorso) const;

    CopieFile copie_;
    const FinestraPrincipale& finestra_;
    const Documento& documento_;
    Messaggi& messaggi_;
    const Orologio& orologio_;
    Avvisi& avvisi_;
    // The document's file as the program knows it.
    std::optional<StatoFile> file_;
    // What the file held that is being replaced, when no copy could be made of it.
    std::optional<std::string> trattenuto_;
};
