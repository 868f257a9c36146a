#pragma once

#include <cstdint>
#include <optional>
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

// The system, versions and processes, part of koUtilita.
class koUtilitaSistema {
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

    // Waits while the windows of this thread go on living; the end of the program ends the wait.
    static void WaitSecondi(std::uint32_t secondi);
    // Waits while nothing happens in this thread.
    static void Sleep(std::uint32_t millisecondi) noexcept;

    // Runs a command line (a program with blanks in its path in quotation marks) and gives its exit
    // code; nothing when it still runs after that time, and it runs on. Raises error 5 for an empty
    // command, else the run-time error of the failed start.
    static constexpr std::uint32_t senzaLimite = 0xFFFFFFFF;
    static std::optional<std::uint32_t> ShellSospensiva(const std::wstring& comando,
                                                        std::uint32_t millisecondi = senzaLimite);
};
