#pragma once

#include "document/diario.h"
#include "document/diario_win.h"
#include "document/documento.h"

#include <functional>
#include <optional>
#include <string>

class Orologio;

// Where the custodian reads what stands in windows only.
class TestiInScrittura {
public:
    TestiInScrittura() = default;
    TestiInScrittura(const TestiInScrittura&) = delete;
    TestiInScrittura& operator=(const TestiInScrittura&) = delete;

    [[nodiscard]] virtual TestiCampi canale() const = 0;
    // Of the item editor that is open, once something was written in it; nothing before, and when
    // none is open.
    [[nodiscard]] virtual std::optional<TestiCampi> editor() const = 0;

protected:
    ~TestiInScrittura() = default;
};

// Keeps a diary of the document while it holds work that no file does: begun by the first change
// after the document was made, opened or saved, gone when it is saved, replaced or left regularly.
// What fails never disturbs the work: it is told once, and the diary rests until the next
// beginning.
class CustodeLavoro final : private OsservatoreDocumento {
public:
    // All outlive it. `cartella` is where diaries are; it is made at the first need. `guasto` hears
    // why no diary can be kept, inside the catch.
    CustodeLavoro(Documento& documento, const TestiInScrittura& testi, const Orologio& orologio,
                  std::wstring cartella, std::function<void()> guasto)
        : documento_(documento), testi_(testi), orologio_(orologio), cartella_(std::move(cartella)),
          guasto_(std::move(guasto)) {
        documento_.osserva(*this);
    }
    CustodeLavoro(const CustodeLavoro&) = delete;
    CustodeLavoro& operator=(const CustodeLavoro&) = delete;
    ~CustodeLavoro() { documento_.lascia(*this); }

    // Nothing waits in the queue: what was typed since goes into the diary, and what a command
    // wrote onto the disk itself.
    void codaVuota() noexcept;

    // The item editor opens for an item (-1: a new one), and was left.
    void editorAperto(int indice) noexcept;
    void editorChiuso() noexcept;

    // The work is in a file now, or its user let it go.
    void dimentica() noexcept;

    // The document was given this work: a diary of it begins at once. Raises the run-time error of
    // the failure.
    void riprendi(const LavoroNonSalvato& lavoro);

    // The diary that this custodian writes, to be left alone by who looks for others; empty where
    // there is none.
    [[nodiscard]] std::wstring diario() const { return file_ ? file_->percorso() : L""; }

private:
    void elementiModificati(const Modifica& modifica, Causa causa) override;
    void elementiSostituiti() override { dimentica(); }
    void campiModificati() override { campiCambiati_ = true; }

    template <class Azione>
    void annotando(Azione azione) noexcept;
    void comincia();
    void scriviTutto(FileDiario& file);
    [[nodiscard]] LavoroNonSalvato lavoro() const;
    void annotaCampi();
    void annotaEditor();
    void compatta();

    Documento& documento_;
    const TestiInScrittura& testi_;
    const Orologio& orologio_;
    std::wstring cartella_;
    std::function<void()> guasto_;

    std::optional<FileDiario> file_;
    // Where the records that the scribe gives go.
    FileDiario* destinazione_ = nullptr;
    ScrittoreDiario scrittore_{[this](std::string_view nuovi) { destinazione_->aggiungi(nuovi); }};
    std::uint64_t lunghezzaBase_ = 0;
    DataOra ora_;
    int modifiche_ = 0;
    // The index of the item whose editor is open.
    std::optional<int> editor_;
    // The diary tells of what is being written there.
    bool inScrittura_ = false;
    bool campiCambiati_ = false;
    bool canaleModificato_ = false;
    bool daScaricare_ = false;
    bool guasta_ = false;
};
