#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Errors and log, part of koUtilita; what shows a message is in koUtilita itself.
class koUtilitaErrori {
public:
    // The Italian text of a run-time error, of the one table that errors are raised with; empty for
    // a number that it lacks.
    [[nodiscard]] static std::wstring MessaggioErroreITA(std::int32_t numero);

    // Appends "yyyy-mmm-dd hh:mm:ss text" (local time, the user's month names and time separator)
    // to a log, in the ANSI code page. A file name that does not end in ".log" gets it. Line breaks
    // in the text become blanks: one call, one line. Raises error 52 for an empty name, else the
    // run-time error of the failure.
    static void ScriviLog(const std::wstring& file, std::wstring_view testo);
};
