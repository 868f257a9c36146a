#include "tests/aiuti/ostrelleGuidata_win.h"

#include "res/risorse.h"
#include "support/windows/file_win.h"
#include "tests/aiuti/cartella_win.h"

#include <commctrl.h>
#include <commdlg.h>
#include <dlgs.h>

#include <algorithm>
#include <array>
#include <stdexcept>

namespace {

constexpr DWORD scadenza = 120000; // milliseconds
constexpr int celleInsieme = 500;
using Testo = std::array<wchar_t, 1024>;

std::wstring classeDi(HWND finestra) {
    std::array<wchar_t, 64> nome{};
    GetClassNameW(finestra, nome.data(), static_cast<int>(nome.size()));
    return nome.data();
}

struct Cercata {
    DWORD processo;
    const wchar_t* classe;
    HWND trovata;
};

// The window of a process in front of its others, if it awaits its user.
HWND finestraDi(DWORD processo, const wchar_t* classe) {
    Cercata cercata{processo, classe, nullptr};
    EnumWindows(
        [](HWND finestra, LPARAM l) noexcept -> BOOL {
            auto& questa = *reinterpret_cast<Cercata*>(l);
            DWORD chi = 0;
            GetWindowThreadProcessId(finestra, &chi);
            if (chi != questa.processo || IsWindowVisible(finestra) == FALSE ||
                IsWindowEnabled(finestra) == FALSE || classeDi(finestra) != questa.classe) {
                return TRUE;
            }
            questa.trovata = finestra;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&cercata));
    return cercata.trovata;
}

} // namespace

OstrelleGuidata::OstrelleGuidata(const std::function<void(HANDLE)>& avviata) {
    const std::wstring cartella = cartellaProgramma();
    std::wstring comando = L'"' + cartella.substr(0, cartella.rfind(L'\\')) + L"\\Ostrelle.exe\"";
    STARTUPINFOW come{};
    come.cb = sizeof come;
    PROCESS_INFORMATION chi{};
    if (!CreateProcessW(nullptr, comando.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &come, &chi)) {
        throw std::runtime_error("the program does not start");
    }
    processo_ = ManigliaOggetto(chi.hProcess);
    const ManigliaOggetto filo(chi.hThread);
    id_ = chi.dwProcessId;
    avviata(chi.hProcess);
    attendi("main window", [this] {
        principale_ = finestraDi(id_, L"OstrelleFrmMain");
        return principale_ != nullptr;
    });
    memoria_ = VirtualAllocEx(processo(), nullptr, celleInsieme * (sizeof(Testo) + sizeof(LVITEMW)),
                              MEM_COMMIT, PAGE_READWRITE);
    calma();
}

OstrelleGuidata::~OstrelleGuidata() {
    TerminateProcess(processo(), 1);
    WaitForSingleObject(processo(), scadenza);
}

void OstrelleGuidata::attendiFine() const {
    if (WaitForSingleObject(processo(), scadenza) != WAIT_OBJECT_0) {
        throw std::runtime_error("the program does not end");
    }
}

void OstrelleGuidata::attendi(const char* che, const std::function<bool()>& condizione) const {
    const ULONGLONG fine = GetTickCount64() + scadenza;
    while (!condizione()) {
        if (WaitForSingleObject(processo(), 1) == WAIT_OBJECT_0) {
            throw Terminata();
        }
        if (GetTickCount64() > fine) {
            throw std::runtime_error(std::string("waited in vain: ") + che);
        }
    }
}

LRESULT OstrelleGuidata::chiedi(HWND finestra, UINT messaggio, WPARAM w, LPARAM l) const {
    DWORD_PTR esito = 0;
    if (SendMessageTimeoutW(finestra, messaggio, w, l, SMTO_NORMAL, scadenza, &esito) == 0) {
        // The windows go before the process does.
        if (WaitForSingleObject(processo(), 5000) == WAIT_OBJECT_0) {
            throw Terminata();
        }
        throw std::runtime_error("no answer to message " + std::to_string(messaggio));
    }
    return static_cast<LRESULT>(esito);
}

void OstrelleGuidata::calma() {
    // A number that the list only keeps: posted, it comes after all else that was. The next one and
    // the last question each find the queue empty behind them, or are what filled it: on a busy
    // machine the answer to one is known, and the next one there, before the program looks.
    for (int volta = 0; volta < 6; ++volta) {
        ++giro_;
        PostMessageW(lista(), LVM_SETHOVERTIME, 0, giro_);
        attendi("answer", [this] { return chiedi(lista(), LVM_GETHOVERTIME) == giro_; });
    }
    if (chiedi(lista(), LVM_GETHOVERTIME) != giro_) {
        throw Terminata();
    }
}

HWND OstrelleGuidata::lista() const {
    return FindWindowExW(GetDlgItem(principale_, IDC_GRIGLIA), nullptr, WC_LISTVIEWW, nullptr);
}

void OstrelleGuidata::comando(int numero) {
    PostMessageW(principale_, WM_COMMAND, static_cast<WPARAM>(numero), 0);
}

HWND OstrelleGuidata::dialogo() const {
    return finestraDi(id_, L"#32770");
}

HWND OstrelleGuidata::attendiDialogo() const {
    HWND trovato = nullptr;
    attendi("dialog", [&] { return (trovato = dialogo()) != nullptr; });
    return trovato;
}

void OstrelleGuidata::rispondi(HWND dialogo, int pulsante) {
    PostMessageW(dialogo, WM_COMMAND, static_cast<WPARAM>(pulsante),
                 reinterpret_cast<LPARAM>(GetDlgItem(dialogo, pulsante)));
    attendi("end of the dialog", [&] { return IsWindow(dialogo) == FALSE; });
    calma();
}

void OstrelleGuidata::scegliFile(HWND dialogo, const std::wstring& percorso) {
    // The box for the name, or the field of the combo box that it is.
    HWND nome = nullptr;
    attendi("box for the file's name", [&] {
        EnumChildWindows(
            dialogo,
            [](HWND controllo, LPARAM l) noexcept -> BOOL {
                const int id = GetDlgCtrlID(controllo);
                if (id == edt1 || id == cmb13) {
                    *reinterpret_cast<HWND*>(l) = controllo;
                }
                return TRUE;
            },
            reinterpret_cast<LPARAM>(&nome));
        return nome != nullptr;
    });
    static_cast<void>(chiedi(nome, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(percorso.c_str())));
    rispondi(dialogo, IDOK);
}

HWND OstrelleGuidata::campo(int id) const {
    HWND campo = nullptr;
    for (HWND figlio = GetWindow(principale_, GW_CHILD); figlio != nullptr && campo == nullptr;
         figlio = GetWindow(figlio, GW_HWNDNEXT)) {
        campo = GetDlgItem(figlio, id);
    }
    const HWND dentro = FindWindowExW(campo, nullptr, WC_EDITW, nullptr);
    return dentro != nullptr ? dentro : campo;
}

std::wstring OstrelleGuidata::testo(HWND controllo) const {
    std::wstring letto(static_cast<std::size_t>(chiedi(controllo, WM_GETTEXTLENGTH)) + 1, L'\0');
    const LRESULT quanti = chiedi(controllo, WM_GETTEXT, static_cast<WPARAM>(letto.size()),
                                  reinterpret_cast<LPARAM>(letto.data()));
    letto.resize(static_cast<std::size_t>(quanti));
    return letto;
}

void OstrelleGuidata::incolla(HWND controllo, std::size_t dove, std::size_t quanti,
                              const std::wstring& nuovo) {
    static_cast<void>(chiedi(controllo, EM_SETSEL, dove, static_cast<LPARAM>(dove + quanti)));
    static_cast<void>(
        chiedi(controllo, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(nuovo.c_str())));
}

void OstrelleGuidata::digita(HWND controllo, std::wstring_view caratteri) {
    static_cast<void>(chiedi(controllo, EM_SETSEL, 0x7FFFFFFF, 0x7FFFFFFF));
    for (const wchar_t carattere : caratteri) {
        PostMessageW(controllo, WM_CHAR, carattere, 1);
    }
}

HWND OstrelleGuidata::pulsanteAvviso(std::wstring_view didascalia) const {
    const HWND striscia = FindWindowExW(principale_, nullptr, L"OstrelleAvvisi", nullptr);
    if (striscia == nullptr || IsWindowVisible(striscia) == FALSE) {
        return nullptr;
    }
    for (HWND c = GetWindow(striscia, GW_CHILD); c != nullptr; c = GetWindow(c, GW_HWNDNEXT)) {
        if (IsWindowVisible(c) != FALSE && testo(c) == didascalia) {
            return c;
        }
    }
    return nullptr;
}

void OstrelleGuidata::seleziona(int riga) {
    LVITEMW voce{};
    voce.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    voce.state = voce.stateMask;
    WriteProcessMemory(processo(), memoria_, &voce, sizeof voce, nullptr);
    static_cast<void>(chiedi(lista(), LVM_SETITEMSTATE, static_cast<WPARAM>(riga),
                             reinterpret_cast<LPARAM>(memoria_)));
}

std::vector<std::wstring> OstrelleGuidata::righe() const {
    const auto quante = static_cast<int>(chiedi(lista(), LVM_GETITEMCOUNT));
    std::vector<std::wstring> righe;
    // A short list is filled up with rows of no item.
    for (int prima = 0; prima < quante; prima += celleInsieme) {
        const int queste = std::min(celleInsieme, quante - prima);
        const auto indici = celle(prima, quante < celleInsieme ? queste : 0, 2);
        for (std::wstring& cella : celle(prima, queste, 1)) {
            if (!indici.empty() && indici[righe.size()] == L"-1") {
                return righe;
            }
            righe.push_back(std::move(cella));
        }
    }
    return righe;
}

// Another process's memory is slow to reach: once for many cells.
std::vector<std::wstring> OstrelleGuidata::celle(int prima, int quante, int colonna) const {
    if (quante == 0) {
        return {};
    }
    const auto n = static_cast<std::size_t>(quante);
    auto* const testi = static_cast<Testo*>(memoria_);
    auto* const voci = reinterpret_cast<LVITEMW*>(testi + celleInsieme);
    std::vector<LVITEMW> chieste(n);
    for (std::size_t i = 0; i < n; ++i) {
        chieste[i].iSubItem = colonna;
        chieste[i].pszText = testi[i].data();
        chieste[i].cchTextMax = static_cast<int>(testi[i].size());
    }
    WriteProcessMemory(processo(), voci, chieste.data(), n * sizeof(LVITEMW), nullptr);
    std::vector<LRESULT> lunghezze;
    for (std::size_t i = 0; i < n; ++i) {
        lunghezze.push_back(chiedi(lista(), LVM_GETITEMTEXTW, static_cast<WPARAM>(prima) + i,
                                   reinterpret_cast<LPARAM>(voci + i)));
    }
    std::vector<Testo> letti(n);
    ReadProcessMemory(processo(), testi, letti.data(), n * sizeof(Testo), nullptr);
    std::vector<std::wstring> trovate;
    for (std::size_t i = 0; i < n; ++i) {
        trovate.emplace_back(letti[i].data(), static_cast<std::size_t>(lunghezze[i]));
    }
    return trovate;
}
