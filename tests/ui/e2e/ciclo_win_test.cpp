// The shipped executable from outside, with keys and mouse: the whole cycle of keeping a feed.

#include "res/risorse.h"
#include "support/testi/testo.h"
#include "support/windows/file_win.h"
#include "support/windows/maniglie_win.h"
#include "tests/aiuti/attesa_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/chiaveSalvata_win.h"
#include "tests/aiuti/datiLocali_win.h"
#include "tests/aiuti/feedDiProva_win.h"
#include "tests/aiuti/schermo_win.h"
#include "tests/aiuti/testi.h"
#include "ui/main/comandi.h"

#include <windows.h>

#include <commctrl.h>

#include <array>
#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace {

// One run of the program. Its windows belong to another process: what is typed or clicked has been
// taken when what should come of it is seen.
class Programma {
public:
    Programma() {
        const std::wstring cartella = cartellaProgramma();
        std::wstring comando =
            L'"' + cartella.substr(0, cartella.rfind(L'\\')) + L"\\Ostrelle.exe\"";
        STARTUPINFOW come{};
        come.cb = sizeof(come);
        PROCESS_INFORMATION chi{};
        EXPECT_TRUE(CreateProcessW(nullptr, comando.data(), nullptr, nullptr, FALSE, 0, nullptr,
                                   nullptr, &come, &chi));
        processo_ = ManigliaFile(chi.hProcess);
        const ManigliaFile filo(chi.hThread);
        id_ = chi.dwProcessId;
        principale = attendiFinestra(L"OstrelleFrmMain", L"Ostrelle  [Nuovo Documento]");
    }
    Programma(const Programma&) = delete;
    Programma& operator=(const Programma&) = delete;
    ~Programma() {
        if (WaitForSingleObject(processo_.get(), 0) == WAIT_TIMEOUT) {
            TerminateProcess(processo_.get(), 1); // a test that failed half way
        }
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
                if (chi == id_ && IsWindowVisible(trovata) != FALSE &&
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
        void* const la =
            VirtualAllocEx(processo_.get(), nullptr, sizeof(r), MEM_COMMIT, PAGE_READWRITE);
        EXPECT_TRUE(WriteProcessMemory(processo_.get(), la, &r, sizeof(r), nullptr));
        EXPECT_TRUE(SendMessageW(lista(), LVM_GETITEMRECT, static_cast<WPARAM>(riga),
                                 reinterpret_cast<LPARAM>(la)));
        EXPECT_TRUE(ReadProcessMemory(processo_.get(), la, &r, sizeof(r), nullptr));
        VirtualFreeEx(processo_.get(), la, 0, MEM_RELEASE);
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
        EXPECT_EQ(WaitForSingleObject(processo_.get(), 30000), WAIT_OBJECT_0);
        DWORD codice = 99;
        GetExitCodeProcess(processo_.get(), &codice);
        return codice;
    }

    HWND principale = nullptr;

private:
    ManigliaFile processo_;
    DWORD id_ = 0;
};

// The first of the recent files as the registry holds it, below the program's settings.
std::wstring primoRecente(const ChiaveSalvata& impostazioni) {
    std::array<wchar_t, 1024> valore{};
    DWORD byte = sizeof(valore);
    const LSTATUS esito = RegGetValueW(HKEY_CURRENT_USER, (impostazioni.nome() + L"\\url").c_str(),
                                       L"murl1", RRF_RT_REG_SZ, nullptr, valore.data(), &byte);
    return esito == ERROR_SUCCESS ? valore.data() : L"(no value)";
}

constexpr std::array<std::pair<int, const wchar_t*>, 9> canale{{
    {IDC_TXTTITOLO, L"Notizie dal circolo"},
    {IDC_TXTLINKHOME, L"https://circolo.example/"},
    {IDC_TXTDESCRIZIONE, L"Serate & lezioni, perché no"},
    {IDC_CBOLINGUA, L"it"},
    {IDC_TXTCOPYRIGHT, L"Il circolo"},
    {IDC_TXTWEBMASTER, L"posta@circolo.example"},
    {IDC_TXTLOGO, L"Il logo"},
    {IDC_TXTURL, L"https://circolo.example/logo.gif"},
    {IDC_TXTLINKIMG, L"https://circolo.example/chi"},
}};

} // namespace

TEST(Ciclo, NuovoCanaleElementiSalvaChiudiRiapriEConfronta) {
    const CartellaProva cartella;
    const DatiLocaliProva dati(cartella.file(L"dati"));
    const ChiaveSalvata impostazioni(HKEY_CURRENT_USER,
                                     L"Software\\VB and VBA Program Settings\\Ostrelle");
    const std::wstring feed = cartella.file(L"Il mio feed.xml");
    {
        Programma programma;
        programma.scriviIn(programma.campo(IDC_TXTTITOLO), L"da buttare");
        premi('N', {VK_CONTROL});
        programma.rispondi(testi::salvataggio, IDNO);
        EXPECT_TRUE(attendiChe(
            [&] { return Programma::testoNel(programma.campo(IDC_TXTTITOLO)).empty(); }));
        for (const auto& [id, testo] : canale) {
            programma.scriviIn(programma.campo(id), testo);
        }
        int riga = 0;
        for (const wchar_t* const nome : {L"uno", L"due", L"tre", L"quattro"}) {
            programma.aggiungi(nome);
            programma.attendiScelta(riga++);
        }
        // The first goes below the third: due, tre, uno, quattro.
        trascina(programma.lista(), programma.punto(0), programma.punto(2));
        programma.attendiScelta(2);
        // The second, "tre", gets another title.
        doppioClic(programma.lista(), programma.punto(1));
        {
            const HWND editor = programma.attendiFinestra(L"#32770", L"");
            const HWND titolo = GetDlgItem(editor, IDC_EDITTITOLO);
            EXPECT_EQ(Programma::testoNel(titolo), L"tre");
            clic(titolo);
            premi(VK_END);
            scrivi(L" bis");
            EXPECT_TRUE(attendiChe([&] { return Programma::testoNel(titolo) == L"tre bis"; }));
            clic(GetDlgItem(editor, IDC_CMDSALVA));
            Programma::attendiChiusa(editor);
            programma.attendiTastiera(programma.principale);
        }
        // The last goes, once the question is answered.
        clic(programma.lista(), programma.punto(3));
        programma.attendiScelta(3);
        for (const int risposta : {IDNO, IDYES}) {
            clic(programma.pulsante(cmdCancella));
            programma.rispondi(testi::attenzione, risposta);
        }
        programma.attendiScelta(2);

        premi('S', {VK_CONTROL});
        programma.scegliFile(feed);
        programma.attendiTitolo(L"Ostrelle  [" + feed + L"]");
        EXPECT_EQ(programma.chiudi(), 0U);
    }
    EXPECT_EQ(primoRecente(impostazioni), minuscolo(feed));
    FeedDiProva documento;
    documento.leggi(feed);
    EXPECT_EQ(documento.title, canale[0].second);
    EXPECT_EQ(documento.description, canale[2].second);
    ASSERT_EQ(documento.items.conteggio(), 3);
    const std::array titoli{L"due", L"tre bis", L"uno"};
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(documento.items(CampoElemento::Titolo, i), titoli[static_cast<std::size_t>(i)]);
    }
    EXPECT_EQ(documento.items(CampoElemento::Descrizione, 2), L"Perché uno & più");
    const std::string scritto = leggiTutto(feed);
    {
        Programma programma;
        premi('O', {VK_CONTROL});
        programma.scegliFile(feed);
        programma.attendiTitolo(L"Ostrelle  [" + feed + L"]");
        programma.attendiTastiera(programma.principale);
        for (const auto& [id, testo] : canale) {
            EXPECT_EQ(Programma::testoNel(programma.campo(id)), testo);
        }
        // Saved again untouched it is the same file.
        ASSERT_TRUE(DeleteFileW(feed.c_str()));
        premi('S', {VK_CONTROL});
        EXPECT_TRUE(attendiChe([&] { return fileEsiste(feed); }));
        EXPECT_EQ(programma.chiudi(), 0U);
        EXPECT_EQ(leggiTutto(feed), scritto);
    }
}
