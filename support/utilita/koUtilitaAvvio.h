#pragma once

#include <string>

struct HWND__; // NOLINT(bugprone-reserved-identifier): Windows' own name for what HWND points to

// What Windows opens for the program, part of koUtilita; what tells a failure is in koUtilita
// itself. Texts reach the shell in the ANSI code page: a character it lacks becomes "?". `hWnd`
// owns what the shell shows.
class koUtilitaAvvio {
public:
    // Opens an address, or a document, with its default action; a failure is silent. The maker's
    // site and a new mail to the author are such addresses.
    static void GoWeb(HWND__* hWnd, const std::wstring& indirizzoWeb);
    static void Homepage(HWND__* hWnd);
    static void EMail(HWND__* hWnd);
};
