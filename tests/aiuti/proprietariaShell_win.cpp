#include "tests/aiuti/proprietariaShell_win.h"

#include <shellapi.h>

#include <cstddef>
#include <string_view>
#include <type_traits>

#include <gtest/gtest.h>

namespace {

std::vector<HWND> finestre;
std::add_pointer_t<decltype(ShellExecuteA)> vera = nullptr;

HINSTANCE WINAPI guarda(HWND proprietaria, LPCSTR verbo, LPCSTR file, LPCSTR parametri,
                        LPCSTR cartella, INT come) {
    finestre.push_back(proprietaria);
    return vera(proprietaria, verbo, file, parametri, cartella, come);
}

// The place of a function among those that this program takes from libraries; null when it takes
// none of that name.
ULONG_PTR* importata(std::string_view nome) noexcept {
    auto* const base = reinterpret_cast<std::byte*>(GetModuleHandleW(nullptr));
    const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* const nt = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const DWORD elenco =
        nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    for (const auto* libreria = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + elenco);
         libreria->FirstThunk != 0; ++libreria) {
        const auto* nomi =
            reinterpret_cast<const IMAGE_THUNK_DATA*>(base + libreria->OriginalFirstThunk);
        auto* posti = reinterpret_cast<IMAGE_THUNK_DATA*>(base + libreria->FirstThunk);
        for (; nomi->u1.AddressOfData != 0; ++nomi, ++posti) {
            if (IMAGE_SNAP_BY_ORDINAL(nomi->u1.Ordinal)) {
                continue;
            }
            const auto* const voce =
                reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + nomi->u1.AddressOfData);
            if (nome == reinterpret_cast<const char*>(voce->Name)) {
                return reinterpret_cast<ULONG_PTR*>(&posti->u1.Function);
            }
        }
    }
    return nullptr;
}

void scrivi(ULONG_PTR* posto, ULONG_PTR indirizzo) {
    DWORD prima = 0;
    ASSERT_TRUE(VirtualProtect(posto, sizeof(*posto), PAGE_READWRITE, &prima));
    *posto = indirizzo;
    VirtualProtect(posto, sizeof(*posto), prima, &prima);
}

} // namespace

ProprietariaShell::ProprietariaShell() : posto_(importata("ShellExecuteA")) {
    finestre.clear();
    EXPECT_NE(posto_, nullptr);
    if (posto_ != nullptr) {
        vera_ = *posto_;
        vera = reinterpret_cast<decltype(vera)>(vera_);
        scrivi(posto_, reinterpret_cast<ULONG_PTR>(&guarda));
    }
}

ProprietariaShell::~ProprietariaShell() {
    if (posto_ != nullptr) {
        scrivi(posto_, vera_);
    }
}

const std::vector<HWND>& ProprietariaShell::viste() noexcept {
    return finestre;
}
