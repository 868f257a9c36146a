#pragma once

#include "support/servizi/dialoghiFile.h"

#include <cstdint>

// Windows' own file dialogs. No name is proposed, and the process's folder stays what it was.
class DialoghiFileWindows final : public DialoghiFile {
public:
    [[nodiscard]] std::wstring apri(const RichiestaFile& richiesta) override;
    [[nodiscard]] std::wstring salva(const RichiestaFile& richiesta) override;
};

// The OFN_ flags of these options.
[[nodiscard]] std::uint32_t opzioniWindows(const OpzioniFile& opzioni) noexcept;
