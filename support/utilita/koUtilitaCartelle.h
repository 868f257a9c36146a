#pragma once

#include <string>

struct HWND__; // NOLINT(bugprone-reserved-identifier): Windows' own name for what HWND points to

// Folders and special folders, part of koUtilita. Names go to Windows in Unicode, so that a folder
// in another alphabet is reached too. A folder that is given back ends in "\".
class koUtilitaCartelle {
public:
    // Makes every missing folder along a path; "/" serves as "\". What it made goes away again when
    // a later step fails. Raises error 5 for an empty path, else the run-time error of the failure.
    static void CreaPercorsoDirectory(const std::wstring& percorso);

    // The folder the user picked in the shell's browser (file-system folders only); empty when
    // cancelled. `hWnd` owns the dialog. Raises when COM cannot start in this thread.
    [[nodiscard]] static std::wstring Sfoglia_Cartella(HWND__* hWnd, const std::wstring& titolo);

    // The machine's Windows folder, also in a terminal session, and its system folder; the folder
    // of the running program. Empty when Windows does not tell.
    [[nodiscard]] static std::wstring CartellaWindows();
    [[nodiscard]] static std::wstring GetWindowsSysDir();
    [[nodiscard]] static std::wstring CurDirApp();

    // The network name ("\\server\share\...") of a folder on a mapped drive; a network name comes
    // back as it is; empty for a local folder or a drive that is not connected.
    [[nodiscard]] static std::wstring DirectoryRete(const std::wstring& percorso);

    // The special folders: from the value of the "Shell Folders" key that the name stands for, of
    // the user's registry or, for those of all users, the machine's. Today's Windows keeps that key
    // for old programs only and lacks some values: what it lacks is asked of the shell. Empty when
    // there is no such folder; that the folder exists is not checked.
    [[nodiscard]] static std::wstring CartellaDocumenti();
    [[nodiscard]] static std::wstring CartellaDati();
    [[nodiscard]] static std::wstring CartellaDatiCondivisi();
    [[nodiscard]] static std::wstring CartellaDesktop();
    [[nodiscard]] static std::wstring CartellaDesktopTuttiUtenti();
    [[nodiscard]] static std::wstring CartellaEsecuzioneAutomatica();
    [[nodiscard]] static std::wstring CartellaEsecuzioneAutomaticaTuttiUtenti();
    [[nodiscard]] static std::wstring CartellaPreferitiTuttiUtenti();
    [[nodiscard]] static std::wstring CartellaMenuAvvio();
    [[nodiscard]] static std::wstring CartellaMenuAvvioTuttiUtenti();
    [[nodiscard]] static std::wstring CartellaSendTo();
    [[nodiscard]] static std::wstring CartellaRecenti();
    [[nodiscard]] static std::wstring CartellaMenuProgrammi();
    [[nodiscard]] static std::wstring CartellaMenuProgrammiTuttiUtenti();
    [[nodiscard]] static std::wstring CartellaDocumentiCondivisi();
    [[nodiscard]] static std::wstring CartellaRisorseRete();
    [[nodiscard]] static std::wstring CartellaImmagini();
    [[nodiscard]] static std::wstring CartellaImmaginiTuttiUtenti();
    [[nodiscard]] static std::wstring CartellaCronologia();
    [[nodiscard]] static std::wstring CartellaFonts();
    [[nodiscard]] static std::wstring CartellaPreferiti();
    [[nodiscard]] static std::wstring CartellaCookies();
    [[nodiscard]] static std::wstring CartellaInternetTemp();

    // The folder of the files that programs share; empty when the registry does not name it.
    [[nodiscard]] static std::wstring CartellaCondivisi();
};
