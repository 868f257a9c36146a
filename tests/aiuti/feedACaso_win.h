#pragma once

#include "tests/aiuti/feedDiProva_win.h"
#include "tests/aiuti/secondoLettore_win.h"

#include <cstdint>
#include <string>

// A document of random texts, which a save can hold; the same one for each seed.
[[nodiscard]] FeedDiProva feedACaso(std::uint32_t seme);

// What the file of a document says otherwise than it should, part by part in its order; empty when
// it is that document's.
[[nodiscard]] std::string differenza(const DocumentoLetto& letto, const FeedDiProva& scritto);
