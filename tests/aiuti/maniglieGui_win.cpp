#include "tests/aiuti/maniglieGui_win.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>

namespace {

// An entry of the table of GDI handles that the system maps into each process; a free one has the
// type 0.
struct VoceGdi {
    std::uint64_t oggetto;
    std::uint32_t proprietario;
    std::uint16_t unico;
    std::uint8_t tipo;
    std::uint8_t opzioni;
    std::uint64_t utente;
};

constexpr std::size_t vociGdi = 0x4000;
constexpr std::size_t postoTabellaGdi = 0xF8; // in the 64-bit process environment block

DWORD contaGdi() {
    using Blocco = const std::byte*(WINAPI*)();
    const auto blocco = reinterpret_cast<Blocco>(reinterpret_cast<void (*)()>(
        GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "RtlGetCurrentPeb")));
    const std::byte* const peb = blocco == nullptr ? nullptr : blocco();
    if (peb == nullptr) {
        return 0;
    }
    const VoceGdi* tabella = nullptr;
    // NOLINTNEXTLINE(bugprone-sizeof-expression): it is the pointer that is read
    std::memcpy(&tabella, peb + postoTabellaGdi, sizeof(tabella));
    if (tabella == nullptr) {
        return 0;
    }
    return static_cast<DWORD>(std::ranges::count_if(
        std::span(tabella, vociGdi), [](const VoceGdi& voce) { return voce.tipo != 0; }));
}

DWORD contaFinestre() {
    DWORD quante = 0;
    const auto conta = [](HWND, LPARAM totale) -> BOOL {
        ++*reinterpret_cast<DWORD*>(totale);
        return TRUE;
    };
    struct Passo {
        DWORD* quante;
        WNDENUMPROC conta;
    } passo{&quante, conta};
    // Top-level windows, then all that is in them.
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND finestra, LPARAM l) -> BOOL {
            const auto& p = *reinterpret_cast<Passo*>(l);
            ++*p.quante;
            EnumChildWindows(finestra, p.conta, reinterpret_cast<LPARAM>(p.quante));
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&passo));
    return quante;
}

} // namespace

ManiglieGui ManiglieGui::adesso() {
    ManiglieGui m{GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS),
                  GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS)};
    if (m.gdi == 0) {
        m.gdi = contaGdi();
    }
    if (m.user == 0) {
        m.user = contaFinestre();
    }
    return m;
}
