#include "support/utilita/guida_win.h"

#include "support/utilita/koUtilita.h"
#include "support/windows/file_win.h"
#include "support/windows/guardia_win.h"

#include <algorithm>

std::wstring fileGuida() {
    std::wstring cartella = cartellaProgramma();
    std::wstring nome = nomeProgramma();
    nome.resize(std::min(nome.rfind(L'.'), nome.size()));
    const std::wstring base = koUtilita::AggiungiSepDir(cartella) + nome;
    return fileEsiste(base + L".hlp") ? base + L".hlp" : base + L".htm";
}

void apriGuida(Messaggi& messaggi, HWND proprietaria) {
    const koUtilita utilita(messaggi);
    protetto([&] { utilita.EseguiEx(proprietaria, fileGuida()); }, [&] { utilita.PrintErrore(); });
}
