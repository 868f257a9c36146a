#include "tests/aiuti/editor_prova_win.h"

#include "support/tempo/dataora_win.h"
#include "tests/aiuti/schermo_win.h"

#include <commctrl.h>

#include <utility>

ProvaEditor::ProvaEditor()
    : proprietaria(CreateWindowExW(0, L"STATIC", L"proprietaria", WS_OVERLAPPEDWINDOW, 100, 100,
                                   900, 700, nullptr, nullptr, GetModuleHandleW(nullptr),
                                   nullptr)) {
    portaAvanti(proprietaria);
}

void ProvaEditor::usa(const std::function<void()>& mostra, std::function<void()> azioni) {
    const QuandoAppare guardia(L"#32770", L"Edit", [&](HWND dialogo) {
        finestra = dialogo;
        const ConFiltro tasti(
            [dialogo](MSG& msg) { return IsDialogMessageW(dialogo, &msg) != FALSE; });
        azioni();
        if (aperta()) {
            ADD_FAILURE() << "the editor was left open";
            SendMessageW(dialogo, WM_COMMAND, IDCANCEL, 0);
        }
    });
    mostra();
    finestra = nullptr;
}

void ProvaEditor::usa(std::function<void()> azioni) {
    usa([this] { editor.mostra(proprietaria); }, std::move(azioni));
}

std::wstring ProvaEditor::testo(int id) const {
    return testoDi(controllo(id));
}

void ProvaEditor::imposta(int id, const std::wstring& testo) const {
    SetWindowTextW(controllo(id), testo.c_str());
}

DataOra ProvaEditor::selettore(int id) const {
    SYSTEMTIME tempo{};
    EXPECT_EQ(DateTime_GetSystemtime(controllo(id), &tempo), static_cast<DWORD>(GDT_VALID));
    return daSystemTime(tempo);
}

void ProvaEditor::selettore(int id, DataOra valore) const {
    const SYSTEMTIME tempo = aSystemTime(valore);
    DateTime_SetSystemtime(controllo(id), GDT_VALID, &tempo);
    EXPECT_EQ(selettore(id), valore);
}
