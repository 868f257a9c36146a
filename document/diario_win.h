#pragma once

#include "support/tempo/dataora.h"
#include "support/windows/maniglie_win.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// A diary on disk, held as long as this object lives: nobody else can open it, so whoever can finds
// one that was left behind.
class FileDiario {
public:
    // Makes a new one, named after the time, and its folder where that is missing. Raises the
    // run-time error of the failure.
    [[nodiscard]] static FileDiario crea(const std::wstring& cartella, DataOra adesso);
    // One that nobody holds; nothing where somebody does, or there is none.
    [[nodiscard]] static std::optional<FileDiario> prendi(const std::wstring& percorso);

    [[nodiscard]] const std::wstring& percorso() const noexcept { return percorso_; }
    // In bytes.
    [[nodiscard]] std::uint64_t lunghezza() const noexcept { return lunghezza_; }

    // At the end. Raises the run-time error of the failure; the file is then as it was, as far as
    // it can be.
    void aggiungi(std::string_view nuovi);
    // What was written is on the disk itself afterwards. Raises as above.
    void scarica();
    [[nodiscard]] std::vector<std::byte> leggi();

    // The file goes away; whoever looks for diaries never sees it let go.
    void elimina() noexcept;

    // Another one, that `scrivi` fills, takes the place of this: a file beside it, then renamed.
    // Raises as above; what was there stays then.
    void riscrivi(DataOra adesso, const std::function<void(FileDiario& nuovo)>& scrivi);

private:
    FileDiario(std::wstring percorso, ManigliaFile file) noexcept
        : percorso_(std::move(percorso)), file_(std::move(file)) {}

    void posiziona(std::uint64_t dove);

    std::wstring percorso_;
    ManigliaFile file_;
    std::uint64_t lunghezza_ = 0;
};

// The diaries of a folder, the oldest first.
[[nodiscard]] std::vector<std::wstring> diariIn(const std::wstring& cartella);
