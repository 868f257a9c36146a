#pragma once

#include "document/diario.h"
#include "support/tempo/dataora.h"

#include <optional>

class clsItemRss;

// The item editor as a service: it is modal, so tests put a fake in its place.
class EditorElementi {
public:
    EditorElementi() = default;
    EditorElementi(const EditorElementi&) = delete;
    EditorElementi& operator=(const EditorElementi&) = delete;
    virtual ~EditorElementi() = default;

    // Lets the user edit `elemento`; one without a date is proposed with `ultimaData`. `bozza`,
    // unless null, is what `testi` gave of an editor that was never left: it is shown instead of
    // what the item holds. Gives the local date and time chosen, or nothing when the user
    // cancelled: `elemento` is then as it was. Raises the failure to show the editor.
    [[nodiscard]] virtual std::optional<DataOra> modifica(clsItemRss& elemento, DataOra ultimaData,
                                                          const TestiCampi* bozza) = 0;

    // What the editor shows that is open, from the moment on when that is not what it was opened
    // with; nothing before, and when none is open.
    [[nodiscard]] virtual std::optional<TestiCampi> testi() const = 0;
};
