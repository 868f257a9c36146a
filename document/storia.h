#pragma once

#include "document/documento.h"

#include <cstddef>
#include <string>
#include <vector>

// What was done to the document's items since it was opened or made, to take it back step by step
// and to do it again. A step holds what it changed and no table. Before all other observers of the
// document: one that raises must not keep a change from being a step.
class Storia final : private OsservatoreDocumento {
public:
    // The document outlives it.
    explicit Storia(Documento& documento) : documento_(documento) { documento_.osserva(*this); }
    Storia(const Storia&) = delete;
    Storia& operator=(const Storia&) = delete;
    ~Storia() { documento_.lascia(*this); }

    // Take back the last step, or do again the last one taken back: like any change, the document
    // becomes modified by it. Give what was done, for the user; an empty text when there was
    // nothing to do.
    std::wstring annulla();
    std::wstring ripeti();

private:
    void elementiModificati(const Modifica& modifica, Causa causa) override;
    void elementiSostituiti() override;

    void ripercorri(const Modifica& modifica, std::size_t arrivo);

    Documento& documento_;
    std::vector<Modifica> passi_;
    // How many of the steps are done: the others were taken back.
    std::size_t fatti_ = 0;
    // Where the history stands once the step under way has changed the table.
    std::size_t arrivo_ = 0;
    bool ripercorre_ = false;
};
