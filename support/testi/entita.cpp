#include "support/testi/entita.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace {

constexpr std::array<std::wstring_view, 5> predefinite{L"amp", L"lt", L"gt", L"quot", L"apos"};
constexpr std::wstring_view spazi = L" \t\r\n";

class Lettore {
public:
    explicit Lettore(std::wstring_view testo) noexcept : resto_(testo) {}

    [[nodiscard]] bool finito() const noexcept { return resto_.empty(); }

    // Past that text, when it stands next.
    bool salta(std::wstring_view atteso) noexcept {
        const bool qui = resto_.starts_with(atteso);
        resto_.remove_prefix(qui ? atteso.size() : 0);
        return qui;
    }
    wchar_t prendi() noexcept {
        const wchar_t c = resto_.front();
        resto_.remove_prefix(1);
        return c;
    }
    // What stands before one of these characters, or before the end.
    std::wstring_view prima(std::wstring_view caratteri) noexcept {
        const auto parte = resto_.substr(0, resto_.find_first_of(caratteri));
        resto_.remove_prefix(parte.size());
        return parte;
    }
    // What stands before a text, and past it.
    std::wstring_view finoA(std::wstring_view fine) noexcept {
        const auto parte = resto_.substr(0, resto_.find(fine));
        resto_.remove_prefix(std::min(parte.size() + fine.size(), resto_.size()));
        return parte;
    }
    void saltaSpazi() noexcept {
        resto_.remove_prefix(std::min(resto_.find_first_not_of(spazi), resto_.size()));
    }
    // Past a comment or an instruction.
    bool saltaNota() noexcept {
        if (salta(L"<!--")) {
            finoA(L"-->");
            return true;
        }
        if (salta(L"<?")) {
            finoA(L"?>");
            return true;
        }
        return false;
    }
    std::optional<std::wstring_view> letterale() noexcept {
        for (const std::wstring_view apice : {L"\"", L"'"}) {
            if (salta(apice)) {
                return finoA(apice);
            }
        }
        return std::nullopt;
    }

private:
    std::wstring_view resto_;
};

struct Entita {
    // None: it lies outside the document.
    std::optional<std::wstring_view> sostituto;
    bool guardata = false;
};
using Elenco = std::map<std::wstring_view, Entita>;

// One entity declaration, but for its end. The first one of a name counts; those of parameters are
// all called "%", which nothing refers to.
void leggiEntita(Lettore& lettore, Elenco& entita) {
    lettore.saltaSpazi();
    const auto nome = lettore.prima(L" \t\r\n>\"'");
    lettore.saltaSpazi();
    entita.try_emplace(nome, Entita{lettore.letterale()});
}

// The declarations of the DOCTYPE, to its end.
void leggiDichiarazioni(Lettore& lettore, Elenco& entita) {
    for (int aperte = 1; aperte > 0 && !lettore.finito();) {
        if (lettore.saltaNota() || lettore.letterale()) {
            continue;
        }
        if (lettore.salta(L"<!ENTITY")) {
            ++aperte;
            leggiEntita(lettore, entita);
        } else {
            const wchar_t c = lettore.prendi();
            aperte += c == L'<' ? 1 : 0;
            aperte -= c == L'>' ? 1 : 0;
        }
    }
}

// Calls `azione` with the name in each reference of a content, until it answers false.
template <class Azione>
bool perOgniRiferimento(Lettore lettore, bool sostituto, Azione azione) {
    for (lettore.prima(L"<&"); !lettore.finito(); lettore.prima(L"<&")) {
        if (lettore.saltaNota()) {
            continue;
        }
        if (lettore.salta(L"<![CDATA[")) {
            lettore.finoA(L"]]>");
        } else if (lettore.prendi() == L'&') {
            // In a declaration an ampersand is written so; what it begins is a reference all the
            // same.
            if (sostituto && !lettore.salta(L"#38;")) {
                lettore.salta(L"#x26;");
            }
            if (!lettore.salta(L"#") && !azione(lettore.finoA(L";"))) {
                return false;
            }
        }
    }
    return true;
}

} // namespace

bool entitaNote(std::wstring_view documento) {
    Lettore lettore(documento);
    Elenco entita;
    for (lettore.prima(L"<"); lettore.saltaNota(); lettore.prima(L"<")) {
    }
    if (lettore.salta(L"<!DOCTYPE")) {
        leggiDichiarazioni(lettore, entita);
    }
    // Replacements that are referred to, each once: entities may not contain themselves, but no
    // depth is a limit.
    std::vector<std::wstring_view> daGuardare;
    const auto nota = [&](std::wstring_view nome) {
        if (std::ranges::find(predefinite, nome) != predefinite.end()) {
            return true;
        }
        const auto trovata = entita.find(nome);
        if (trovata == entita.end() || !trovata->second.sostituto) {
            return false;
        }
        if (!std::exchange(trovata->second.guardata, true)) {
            daGuardare.push_back(*trovata->second.sostituto);
        }
        return true;
    };
    bool note = perOgniRiferimento(lettore, false, nota);
    while (note && !daGuardare.empty()) {
        const Lettore sostituto(daGuardare.back());
        daGuardare.pop_back();
        note = perOgniRiferimento(sostituto, true, nota);
    }
    return note;
}
