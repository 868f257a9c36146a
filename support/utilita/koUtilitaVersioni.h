#pragma once

#include <cstdint>
#include <string>
#include <string_view>

struct VersioneSO {
    std::uint32_t maggiore = 0;
    std::uint32_t minore = 0;
    std::uint32_t build = 0;
    bool nt = true;
};

// The name of a Windows version: those from "Windows 95" to "Windows XP" by their numbers, a newer
// one by the product name that its registry tells (Windows 11 still calls itself 10 there, which
// its build number sets right); where that is empty, "Windows" and the version.
[[nodiscard]] std::wstring nomeSistema(const VersioneSO& versione, std::wstring_view prodotto);

// Versions of the system and of files, part of koUtilita.
class koUtilitaVersioni {
public:
    // The Windows that really runs, whatever a manifest or a compatibility setting makes the
    // documented version calls say.
    [[nodiscard]] static std::wstring InfoSO();
    [[nodiscard]] static bool IsWindowsNT();
    [[nodiscard]] static VersioneSO InfoSOVersione();

    // The file version of a program or library, four numbers; "0.0.0.0" when it has none or is
    // missing.
    [[nodiscard]] static std::wstring GetVersione(const std::wstring& file);
    // Negative when A is older than B, 0 for the same, else positive: number by number, of any
    // length; what is missing or no number counts as 0.
    [[nodiscard]] static int ConfrontaVersione(std::wstring_view VersioneA,
                                               std::wstring_view VersioneB) noexcept;
};
