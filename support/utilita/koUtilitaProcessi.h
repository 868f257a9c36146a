#pragma once

#include <cstdint>
#include <optional>
#include <string>

// Processes and waiting, part of koUtilita.
class koUtilitaProcessi {
public:
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
