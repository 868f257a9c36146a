#pragma once

#include "support/servizi/messaggi.h"
#include "support/utilita/koUtilitaCartelle.h"
#include "support/utilita/koUtilitaErrori.h"
#include "support/utilita/koUtilitaFile.h"
#include "support/utilita/koUtilitaFinestre.h"
#include "support/utilita/koUtilitaIni.h"
#include "support/utilita/koUtilitaProcessi.h"
#include "support/utilita/koUtilitaRegistro.h"
#include "support/utilita/koUtilitaTesti.h"
#include "support/utilita/koUtilitaVersioni.h"

#include <cstdint>
#include <string>
#include <string_view>

struct HWND__; // NOLINT(bugprone-reserved-identifier): Windows' own name for what HWND points to

class Errore;

// General helpers, for this program and others; the bases hold them by subject. Has no state but
// the service that shows its messages; make one where it is needed. Up to PrintErrore texts reach
// Windows in the ANSI code page: a character it lacks becomes "?".
class koUtilita : public koUtilitaCartelle,
                  public koUtilitaErrori,
                  public koUtilitaFile,
                  public koUtilitaFinestre,
                  public koUtilitaIni,
                  public koUtilitaProcessi,
                  public koUtilitaRegistro,
                  public koUtilitaTesti,
                  public koUtilitaVersioni {
public:
    explicit koUtilita(Messaggi& messaggi) noexcept : messaggi_(messaggi) {}

    // Opens a document or an address with its default action; true when Windows started the
    // program. A failure is told in a message box unless `muto`. `hWnd` owns what the shell shows.
    // NOLINTNEXTLINE(modernize-use-nodiscard): the user was told already
    bool EseguiEx(HWND__* hWnd, const std::wstring& file, bool muto = false) const;

    // The same for an address, the maker's site and a new mail to the author; failures are silent.
    static void GoWeb(HWND__* hWnd, const std::wstring& indirizzoWeb);
    static void Homepage(HWND__* hWnd);
    static void EMail(HWND__* hWnd);

    // The path without the blanks at its ends and with "\" as its last character; an empty one
    // stays empty. The caller's variable becomes the result too.
    // NOLINTNEXTLINE(modernize-use-nodiscard): some callers want the variable only
    static std::wstring AggiungiSepDir(std::wstring& percorso);

    // A new empty file in the temporary folder, the caller's to delete; where Windows makes none, a
    // fixed name in that folder, of a file that need not exist. Never fails.
    [[nodiscard]] static std::wstring GetFileTemporaneo();
    // The temporary folder, else the program's; ends in "\". Never fails.
    [[nodiscard]] static std::wstring GetDirectoryTemp();

    // The text before its first character 0.
    [[nodiscard]] static std::wstring_view StripTerminator(std::wstring_view testo) noexcept;

    // The code of "," or "."; 0 where the user's separator is another one or cannot be read.
    [[nodiscard]] static std::uint8_t GetSeparatoreDecimale();
    [[nodiscard]] static std::uint8_t GetSeparatoreMigliaia();

    // Shows the exception being handled. Call it inside a catch.
    void PrintErrore() const;
    // The same with the number and, unless empty, the place in the text: "Errore 13 in X: ...",
    // titled "Errore 13".
    void PrintErroreEx(std::wstring_view dove = {}) const;

    // Whether this user may make files in a folder: tries it with "120asd12.tmp", which goes away
    // again; a file of that name that is there is opened and stays as it is. A refusal is told
    // with the title "Errore # " and the error's number.
    [[nodiscard]] bool WriteAccess(const std::wstring& cartella) const;

    // Starts a program registered under "App Paths" by its name; ".exe" may be left out. When it is
    // not registered or does not start, the name and ": Applicazione non trovata." are told.
    // NOLINTNEXTLINE(modernize-use-nodiscard): the user was told already
    bool StartApplicazione(HWND__* hWnd, const std::wstring& programma,
                           const std::wstring& parametri = {}) const;

private:
    // What a message box says of an error.
    static std::wstring descrizioneDi(const Errore& errore);

    Messaggi& messaggi_;
};
