#pragma once

#include "res/risorse.h"
#include "support/windows/file_win.h"
#include "tests/aiuti/attesa_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/processo_win.h"
#include "tests/aiuti/schermo_win.h"
#include "ui/main/comandi.h"

#include <windows.h>

#include <commctrl.h>

#include <array>
#include <string>
#include <utility>

#include <gtest/gtest.h>

// One run of the program. Its windows belong to another process: what is typed or clicked has been
// taken when what should come of it is seen.
class Programma {
public:
    static constexpr const wchar_t* documentoNuovo = L"Ostrelle  [Nuovo Documento]";

    // Started with nothing, and its window is there.
    Programma() : Programma(L"") { attendiPrincipale(documentoNuovo); }
    // Started with these arguments, in that folder; what it shows first is the caller's to wait
    // for.
    explicit Programma(const std::wstring& argomenti, const wchar_t* inCartella = nullptr)
        : processo_(avviaProcesso(qui() + argomenti, inCartella)) {}
    // Started by a whole command line.
    [[nodiscard]] static Programma daComando(const std::wstring& comando) {
        return Programma(avviaProcesso(comando));
    }
    Programma(const Programma&) = delete;
    Programma& operator=(const Programma&) = delete;
    ~Programma() {
        if (WaitForSingleObject(processo_.maniglia.get(), 0) == WAIT_TIMEOUT) {
            TerminateProcess(processo_.maniglia.get(), 1); // a test that failed half way
        }
    }

    void attendiPrincipale(const std::wstring& titolo) {
        principale = attendiFinestra(L"OstrelleFrmMain", titolo);
    }
    // A visible top-level window of the program, in front and with the keyboard.
    [[nodiscard]] HWND attendiFinestra(const std::wstring& classe, const std::wstring& titolo) {
        HWND trovata = nullptr;
        EXPECT_TRUE(attendiChe([&] {
            trovata = nullptr;
            while ((trovata = FindWindowExW(nullptr, trovata, classe.c_str(),
                                            titolo.empty() ? nullptr : titolo.c_str())) !=
                   nullptr) {
                DWORD chi = 0;
                GetWindowThreadProcessId(trovata, &chi);
                if (chi == processo_.id && IsWindowVisible(trovata) != FALSE &&
                    IsWindowEnabled(trovata) != FALSE) {
                    return true;
                }
            }
            return false;
        })) << "never shown: "
            << inUtf8(titolo);
        attendiTastiera(trovata);
        return trovata;
    }
    // The keyboard is the window's, or that of something in it.
    void attendiTastiera(HWND finestra) {
        // Asked for rarely: each request waits in the program's queue, and one that is answered
        // late takes the keyboard from what has come up since, or ends a drag.
        constexpr ULONGLONG intervallo = 2000; // milliseconds
        ULONGLONG prossima = GetTickCount64() + intervallo;
        EXPECT_TRUE(attendiChe([&] {
            const HWND fuoco = fuocoCorrente();
            const bool davanti = GetForegroundWindow() == finestra;
            if (davanti && (fuoco == finestra || IsChild(finestra, fuoco) != FALSE)) {
                return true;
            }
            if (!davanti && GetTickCount64() >= prossima) {
                SetForegroundWindow(finestra);
                prossima = GetTickCount64() + intervallo;
            }
            return false;
        })) << "the window does not get the keyboard";
    }
    [[nodiscard]] HWND fuocoCorrente() const {
        GUITHREADINFO stato{};
        stato.cbSize = sizeof(stato);
        GetGUIThreadInfo(GetWindowThreadProcessId(principale, nullptr), &stato);
        return stato.hwndFocus;
    }
    static void attendiChiusa(HWND finestra) {
        EXPECT_TRUE(attendiChe([&] { return IsWindow(finestra) == FALSE; }));
    }
    // Writes into a field, over what is there.
    void scriviIn(HWND campo, const std::wstring& testo) {
        clic(campo);
        EXPECT_TRUE(attendiChe([&] {
            const HWND fuoco = fuocoCorrente();
            return fuoco == campo || IsChild(campo, fuoco) != FALSE;
        }));
        scrivi(testo);
        EXPECT_TRUE(attendiChe([&] { return testoNel(campo) == testo; }))
            << inUtf8(testoNel(campo)) << " instead of " << inUtf8(testo);
    }
    // Writes the path into the file dialog that comes up and confirms it.
    void scegliFile(const std::wstring& percorso) {
        const HWND dialogo = attendiFinestra(L"#32770", L"");
        const HWND nome = fuocoCorrente();
        scrivi(percorso);
        EXPECT_TRUE(attendiChe([&] { return testoNel(nome) == percorso; }));
        premi(VK_RETURN);
        attendiChiusa(dialogo);
    }
    void rispondi(const std::wstring& titolo, int risposta) {
        const HWND box = attendiFinestra(L"#32770", titolo);
        clic(GetDlgItem(box, risposta));
        attendiChiusa(box);
        attendiTastiera(principale);
    }
    void attendiTitolo(const std::wstring& titolo) const {
        EXPECT_TRUE(attendiChe([&] { return testoNel(principale) == titolo; }))
            << inUtf8(testoNel(principale));
    }

    // A text that belongs to another process.
    [[nodiscard]] static std::wstring testoNel(HWND finestra) {
        std::array<wchar_t, 1024> testo{};
        SendMessageW(finestra, WM_GETTEXT, testo.size(), reinterpret_cast<LPARAM>(testo.data()));
        return testo.data();
    }
    // A control of the channel's frame or a button of the strip.
    [[nodiscard]] HWND campo(int id) const {
        HWND campo = nullptr;
        for (HWND figlio = GetWindow(principale, GW_CHILD); figlio != nullptr && campo == nullptr;
             figlio = GetWindow(figlio, GW_HWNDNEXT)) {
            campo = GetDlgItem(figlio, id);
        }
        EXPECT_NE(campo, nullptr) << id;
        return campo;
    }
    [[nodiscard]] HWND pulsante(Comando comando) const { return campo(comando); }
    [[nodiscard]] HWND lista() const {
        return FindWindowExW(GetDlgItem(principale, IDC_GRIGLIA), nullptr, WC_LISTVIEWW, nullptr);
    }
    [[nodiscard]] int rigaScelta() const {
        return static_cast<int>(SendMessageW(lista(), LVM_GETNEXTITEM, static_cast<WPARAM>(-1),
                                             MAKELPARAM(LVNI_SELECTED, 0)));
    }
    void attendiScelta(int riga) const {
        EXPECT_TRUE(attendiChe([&] { return rigaScelta() == riga; })) << rigaScelta();
    }
    // The middle of a row of the list. The list writes into memory of its own process.
    [[nodiscard]] POINT punto(int riga) const {
        RECT r{};
        r.left = LVIR_BOUNDS;
        void* const la = VirtualAllocEx(processo_.maniglia.get(), nullptr, sizeof(r), MEM_COMMIT,
                                        PAGE_READWRITE);
        EXPECT_TRUE(WriteProcessMemory(processo_.maniglia.get(), la, &r, sizeof(r), nullptr));
        EXPECT_TRUE(SendMessageW(lista(), LVM_GETITEMRECT, static_cast<WPARAM>(riga),
                                 reinterpret_cast<LPARAM>(la)));
        EXPECT_TRUE(ReadProcessMemory(processo_.maniglia.get(), la, &r, sizeof(r), nullptr));
        VirtualFreeEx(processo_.maniglia.get(), la, 0, MEM_RELEASE);
        return {60, (r.top + r.bottom) / 2};
    }

    void aggiungi(const std::wstring& nome) {
        clic(pulsante(cmdAggiungi));
        const HWND editor = attendiFinestra(L"#32770", L"");
        scriviIn(GetDlgItem(editor, IDC_EDITTITOLO), nome);
        scriviIn(GetDlgItem(editor, IDC_EDITLINK), L"https://e.example/" + nome);
        scriviIn(GetDlgItem(editor, IDC_EDITDESCRIZIONE), L"Perché " + nome + L" & più");
        clic(GetDlgItem(editor, IDC_CMDSALVA));
        attendiChiusa(editor);
        attendiTastiera(principale);
    }

    // Closes it as the user does; its exit code.
    [[nodiscard]] DWORD chiudi() {
        attendiTastiera(principale);
        premi(VK_F4, {VK_MENU});
        return codiceFinale(processo_);
    }

    HWND principale = nullptr;

private:
    explicit Programma(Processo processo) : processo_(std::move(processo)) {}

    [[nodiscard]] static std::wstring qui() {
        const std::wstring cartella = cartellaProgramma();
        return L'"' + cartella.substr(0, cartella.rfind(L'\\')) + L"\\Ostrelle.exe\" ";
    }

    Processo processo_;
};
