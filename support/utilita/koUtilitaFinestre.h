#pragma once

#include <cstdint>
#include <string>

struct HWND__; // NOLINT(bugprone-reserved-identifier): Windows' own name for what HWND points to

// Windows and forms, part of koUtilita. A handle of no window raises error 5.
class koUtilitaFinestre {
public:
    // Shows a top-level window of exactly this title, restored when it was minimised, and brings it
    // to the front as far as Windows allows; false when there is none or the title is empty.
    // NOLINTNEXTLINE(modernize-use-nodiscard): some callers only try
    static bool ShowFinestraConTitolo(const std::wstring& titolo);

    // Centres a form in the inside of its parent; one that is no child window of it, over it, as
    // far as the screen reaches. CentraForm: on the work area of the screen that the form is on.
    static void CentraFormFiglio(HWND__* figlio, HWND__* padre);
    static void CentraForm(HWND__* form);

    // Keeps a window above all others, or no longer.
    static void FinetraTopMost(HWND__* hWnd, bool SempreInPrimoPiano);

    // Paints the inside of a form, its controls left out, from top to bottom: each of red, green
    // and blue of the first colour moved by PassoA at the top, by PassoB at the bottom and evenly
    // in between, within 0 and 255. For WM_ERASEBKGND or WM_PAINT: the picture is not kept. The
    // colour is 0x00BBGGRR or 0x80000000 plus a system colour's index; another raises error 380.
    static void SfumaForm(HWND__* form, std::uint32_t ColoreIniziale, int PassoA, int PassoB);

    // Selects the whole text of a text box.
    static void Evidenzia(HWND__* casella);
};
