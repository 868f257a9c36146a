#pragma once

#include <string>
#include <string_view>

// Paths as texts, part of koUtilita: nothing is looked for on disk.
class koUtilitaPercorsi {
public:
    // The path without the blanks at its ends and with "\" as its last character; an empty one
    // stays empty. The caller's variable becomes the result too.
    // NOLINTNEXTLINE(modernize-use-nodiscard): some callers want the variable only
    static std::wstring AggiungiSepDir(std::wstring& percorso);

    // The parts of a path: what stands behind the last "\", "/" or ":", what stands before with
    // that character (the two together are the path), and the extension of the name with its dot.
    [[nodiscard]] static std::wstring DeterminaSoloFileName(std::wstring_view percorso);
    [[nodiscard]] static std::wstring EstraiPath(std::wstring_view percorso);
    [[nodiscard]] static std::wstring EstraiEstensione(std::wstring_view nome);
};
