#include "ui/dialogs/infoSistema_win.h"

#include "support/errori/trappola.h"
#include "support/testi/ansi_win.h"
#include "support/windows/file_win.h"
#include "support/windows/maniglie_win.h"

#include <array>
#include <cstdint>
#include <optional>
#include <ranges>
#include <string_view>

namespace {

// The bytes from the last to the first, in hexadecimal without leading zeros, as one number; none
// when it has more than 64 bits, which only a number value of a wrong size can have.
std::optional<std::uint64_t> numero(std::string_view byte) noexcept {
    std::uint64_t risultato = 0;
    for (const char b : std::views::reverse(byte)) {
        const auto cifre = static_cast<unsigned char>(b);
        const int bit = cifre < 0x10 ? 4 : 8;
        if (risultato >> (64 - bit) != 0) {
            return std::nullopt;
        }
        risultato = risultato << bit | cifre;
    }
    return risultato;
}

// A text with its %NAMES% replaced by their values; empty when that fails.
std::wstring espandi(const std::wstring& testo) {
    std::wstring espanso(ExpandEnvironmentStringsW(testo.c_str(), nullptr, 0), L'\0');
    const DWORD scritti = ExpandEnvironmentStringsW(testo.c_str(), espanso.data(),
                                                    static_cast<DWORD>(espanso.size()));
    // The NUL at the end counts.
    espanso.resize(scritti == 0 || scritti > espanso.size() ? 0 : scritti - 1);
    return espanso;
}

std::wstring testoDi(DWORD tipo, std::string_view byte) {
    switch (tipo) {
    case REG_SZ:
        return daAnsi(byte);
    case REG_EXPAND_SZ:
        return espandi(daAnsi(byte));
    default:
        return {};
    }
}

std::optional<std::wstring> trovaProgramma() {
    std::wstring valore;
    if (GetKeyValue(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", L"PATH",
                    valore)) {
        return valore;
    }
    if (GetKeyValue(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Microsoft\\Shared Tools Location", L"MSINFO",
                    valore)) {
        valore += L"\\MSINFO32.EXE";
        if (fileEsiste(valore)) {
            return valore;
        }
    }
    return std::nullopt;
}

bool avvia(const std::wstring& programma) {
    // In quotes, or a folder with a blank in its name could start a program of a shorter name.
    std::wstring comando = programma.starts_with(L'"') ? programma : L'"' + programma + L'"';
    STARTUPINFOW avvio{};
    avvio.cb = sizeof(avvio);
    avvio.dwFlags = STARTF_USESHOWWINDOW;
    avvio.wShowWindow = SW_SHOWNORMAL;
    PROCESS_INFORMATION processo{};
    if (CreateProcessW(nullptr, comando.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                       &avvio, &processo) == FALSE) {
        return false;
    }
    const ManigliaOggetto filo(processo.hThread);
    const ManigliaOggetto vivo(processo.hProcess);
    return true;
}

} // namespace

bool GetKeyValue(HKEY radice, const std::wstring& percorso, const std::wstring& nome,
                 std::wstring& valore) {
    HKEY maniglia = nullptr;
    if (RegOpenKeyExA(radice, inAnsi(percorso).c_str(), 0, KEY_READ, &maniglia) != ERROR_SUCCESS) {
        return false;
    }
    const ChiaveRegistro chiave(maniglia);
    std::array<char, 1024> buffer{};
    DWORD tipo = REG_NONE;
    auto lunghezza = static_cast<DWORD>(buffer.size());
    if (RegQueryValueExA(chiave.get(), inAnsi(nome).c_str(), nullptr, &tipo,
                         reinterpret_cast<BYTE*>(buffer.data()), &lunghezza) != ERROR_SUCCESS) {
        return false;
    }
    const bool vuoto = lunghezza == 0;
    std::string_view letto(buffer.data(), lunghezza);
    if (letto.ends_with('\0')) {
        letto.remove_suffix(1);
    }
    if (tipo == REG_DWORD && !vuoto) {
        const auto risultato = numero(letto);
        if (!risultato) {
            return false;
        }
        valore = std::to_wstring(*risultato);
    } else {
        valore = testoDi(tipo, letto);
    }
    return true;
}

void StartSysInfo(Messaggi& messaggi) {
    bool avviata = false;
    ignorando([&] {
        const auto programma = trovaProgramma();
        avviata = programma && !programma->empty() && avvia(*programma);
    });
    if (!avviata) {
        messaggi.avvisa(L"Le informazioni sul sistema non sono attualmente disponibili.",
                        titoli::errore, Icona::Critica);
    }
}
