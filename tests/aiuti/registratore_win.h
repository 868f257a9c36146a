#pragma once

#include "support/windows/maniglie_win.h"
#include "tests/aiuti/ambiente_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/chiaveSalvata_win.h"

#include <list>
#include <string>

// Where the recorder program writes.
inline constexpr const wchar_t* variabileRegistrazione = L"OSTRELLE_REGISTRAZIONE";

// Makes the recorder program the one that Windows starts for file types and addresses, for the life
// of the object, and tells what it was started with. What was registered comes back at the end.
// One at a time in the whole prefix: a second one waits. A program that the test starts inherits
// the recording.
class Registratore {
public:
    struct Lancio {
        std::wstring programma; // as the command line names it, without its quotes
        std::wstring obiettivo; // exactly what stood for %1; empty where there was no argument
        std::wstring cartella;  // the working folder
        int stato;              // the show state
    };

    Registratore();
    Registratore(const Registratore&) = delete;
    Registratore& operator=(const Registratore&) = delete;
    ~Registratore();

    // Puts the recorder itself where a program is looked for.
    static void copiaIn(const std::wstring& percorso);

    // A file extension, with its dot; a protocol, without ":".
    void tipo(const std::wstring& estensione);
    void protocollo(const std::wstring& nome);
    // A file extension with a command of the test's own.
    void tipo(const std::wstring& estensione, const std::wstring& comando);

    // A file extension that no program opens.
    void nessunProgramma(const std::wstring& estensione);

    // Makes a verb that is not "open" the default one of such a type, run by the recorder.
    void verboPredefinito(const std::wstring& estensione, const std::wstring& verbo);

    // The next start that was not given yet; fails the test when none comes in 30 seconds.
    [[nodiscard]] Lancio attendi();

private:
    static void lascia(HANDLE mutex) noexcept {
        ReleaseMutex(mutex);
        CloseHandle(mutex);
    }

    // Takes a class away until the end.
    void sgombra(const std::wstring& classe);
    [[nodiscard]] std::string righe() const;

    Maniglia<HANDLE, lascia> turno_;
    CartellaProva cartella_;
    VariabileAmbiente registrazione_;
    std::list<ChiaveSalvata> classi_;
    std::size_t letti_ = 0;
};
