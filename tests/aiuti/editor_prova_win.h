#pragma once

#include "res/risorse.h"
#include "tests/aiuti/messaggi_finti.h"
#include "tests/aiuti/orologio_fermo.h"
#include "ui/dialogs/FrmEditFeed_win.h"

#include <windows.h>

#include <functional>
#include <string>

#include <gtest/gtest.h>

// The item editor shown modally over a window, and a user before it.
class ProvaEditor : public testing::Test {
protected:
    ProvaEditor();
    void TearDown() override { DestroyWindow(proprietaria); }

    // Runs `mostra`, which shows the editor, and lets the user act in it. The user has to close it.
    void usa(const std::function<void()>& mostra, std::function<void()> azioni);
    // The same for the editor of the test.
    void usa(std::function<void()> azioni);

    [[nodiscard]] HWND controllo(int id) const { return GetDlgItem(finestra, id); }
    [[nodiscard]] std::wstring testo(int id) const;
    void imposta(int id, const std::wstring& testo) const;
    // Whole pickers: date and time of each.
    [[nodiscard]] DataOra selettore(int id) const;
    void selettore(int id, DataOra valore) const;
    [[nodiscard]] bool aperta() const { return IsWindowVisible(finestra) != FALSE; }

    const DataOra adesso = DataOra::daParti(2005, 12, 1, 9, 8, 7);
    const DataOra ultima = DataOra::daParti(2005, 11, 15, 10, 0, 0);
    HWND proprietaria;
    // The dialog, while one is shown.
    HWND finestra = nullptr;
    MessaggiFinti messaggi;
    OrologioFermo orologio{adesso};
    FrmEditFeed editor{messaggi, orologio, ultima};
};
