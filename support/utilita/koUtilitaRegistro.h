#pragma once

#include <cstdint>
#include <optional>
#include <string>

// What Windows is told when a program is removed.
struct InfoDisinstallazione {
    std::wstring DisplayName;
    std::wstring UninstallString;
};

// What a shortcut opens; what is empty is left to Windows.
struct Collegamento {
    std::wstring TargetPath;
    std::wstring WorkingDirectory;
    std::int32_t WindowStyle = 1; // 1 normal, 3 maximised, 7 minimised
    std::wstring IconLocation;    // "file,index"
};

// The registry and the components it names, part of koUtilita. The machine's part of the registry,
// where nearly all of it stands, is written by administrators only: others get error 75 and nothing
// changes. Names that hold "\", are empty or too long for a key raise error 5 when written and are
// not found when read.
class koUtilitaRegistro {
public:
    // The folder of a program registered under "App Paths", the user's before the machine's, ending
    // in "\": its "Path" value (the first folder of it), else that of its file. ".exe" may be left
    // out. Empty when it is not registered.
    [[nodiscard]] static std::wstring CartellaApplicazione(const std::wstring& programma);

    // Runs "DllRegisterServer" (".DLL", ".OCX") or the program with "/REGSERVER" (".EXE") until it
    // ends; the opposite ones. Raises error 5 for another extension, 53 for a missing file, 57 for
    // one that Windows cannot load (a component of another word size too) or an .EXE that ends with
    // a code other than 0, 438 for a library that cannot register itself, else the component's own.
    static void RegistraServer(const std::wstring& file);
    static void DeRegistraServer(const std::wstring& file);

    // Raises or lowers the count of programs that share a file, under the name as given, and gives
    // the new one. At 0 the count goes away, never the file; lowering what is not counted changes
    // nothing. Today's installers keep their own counts, Windows still keeps this list. Raises
    // error 5 for an empty name, 13 when what is stored is no count, 6 beyond 32 bits.
    static std::uint32_t SetFileShared(const std::wstring& file);
    static std::uint32_t DecFileShared(const std::wstring& file);

    // The file of a registered component, told by its class identifier ("{...}") or its
    // programmatic name, without quotation marks and parameters; empty when there is none. Where no
    // 64-bit component is registered, the 32-bit one, as its registration names it.
    [[nodiscard]] static std::wstring PathServerOcx(const std::wstring& componente);
    [[nodiscard]] static std::wstring PathServerExe(const std::wstring& componente);

    // Makes a shortcut with "WScript.Shell"; a name without ".lnk" gets it, one of that name is
    // replaced. Raises error 5 without a name or a target and for a text of 260 characters or more,
    // 76 when the folder is missing, 429 where that component is switched off.
    static void CreaCollegamento(const std::wstring& file, const Collegamento& dati);

    // What stands in the list of installed programs under a key: the machine's list, else that of
    // its 32-bit programs, else the user's own. Nothing when there is no such key; a value that is
    // missing is empty. Writing goes where the key is, else to the machine's list, and keeps the
    // key's other values.
    [[nodiscard]] static std::optional<InfoDisinstallazione>
    GetInfoDisinstallazione(const std::wstring& programma);
    static void SetInfoDisinstallazione(const std::wstring& programma,
                                        const InfoDisinstallazione& info);

    // Makes `programma` open the files of an extension (with or without its dot): for all users, or
    // for this user alone where Windows refuses to write the type or the extension for all, as it
    // does but to administrators. A program that the user chose in Windows' own dialog stays before
    // it. `tipo` is the name of the file type, `icona` a "file,index" or empty. Raises error 5 for
    // names that no key can have, a type that looks like an extension, no program or one with a
    // quotation mark.
    static void CreaAssociazione(const std::wstring& estensione, const std::wstring& tipo,
                                 const std::wstring& descrizione, const std::wstring& programma,
                                 const std::wstring& icona = {});
};
