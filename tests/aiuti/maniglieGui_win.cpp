#include "tests/aiuti/maniglieGui_win.h"

#include "ui/controls/croce_win.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <vector>

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

// An entry of the table of all handles of the system.
struct VoceNucleo {
    ULONG processo;
    UCHAR tipo;
    UCHAR opzioni;
    USHORT valore;
    void* oggetto;
    ULONG accesso;
};
struct TabellaNucleo {
    ULONG quante;
    VoceNucleo voci[1];
};
constexpr ULONG tutteLeManiglie = 16; // SystemHandleInformation

DWORD contaNucleo() {
    using Chiede = LONG(WINAPI*)(ULONG, void*, ULONG, ULONG*);
    const auto chiede = reinterpret_cast<Chiede>(reinterpret_cast<void (*)()>(
        GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtQuerySystemInformation")));
    std::vector<std::byte> spazio(1U << 20U);
    while (chiede(tutteLeManiglie, spazio.data(), static_cast<ULONG>(spazio.size()), nullptr) < 0) {
        if (spazio.size() > 1U << 26U) {
            return 0;
        }
        spazio.resize(spazio.size() * 2);
    }
    const auto* const tabella = reinterpret_cast<const TabellaNucleo*>(spazio.data());
    const DWORD noi = GetCurrentProcessId();
    return static_cast<DWORD>(
        std::ranges::count_if(std::span(&tabella->voci[0], tabella->quante),
                              [noi](const VoceNucleo& voce) { return voce.processo == noi; }));
}

} // namespace

ManiglieGui ManiglieGui::adesso() {
    ManiglieGui m{GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS),
                  GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS), 0};
    if (m.gdi == 0) {
        m.gdi = contaGdi();
    }
    if (m.user == 0) {
        m.user = contaFinestre();
    }
    if (GetProcessHandleCount(GetCurrentProcess(), &m.nucleo) == FALSE || m.nucleo == 0) {
        m.nucleo = contaNucleo();
    }
    return m;
}

DWORD persiPerFigura() {
    const HWND pulsante = CreateWindowExW(0, L"BUTTON", L"", WS_POPUP | BS_ICON, 0, 0, 9, 9,
                                          nullptr, nullptr, nullptr, nullptr);
    const ManigliaIcona figura = creaCroce(pulsante, 9, 1.0);
    const auto metti = [&] {
        SendMessageW(pulsante, BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(figura.get()));
        return ManiglieGui::adesso().gdi;
    };
    const DWORD prima = metti();
    const DWORD persi = metti() - prima;
    DestroyWindow(pulsante);
    return persi;
}
