#pragma once

#include "document/documento.h"
#include "tests/aiuti/tabella_prova.h"
#include "ui/controls/griglia_win.h"

#include <windows.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

// A grid's owner for tests: writes down what it is told and moves items in the table.
class OsservatoreProva final : public OsservatoreGriglia {
public:
    explicit OsservatoreProva(Documento& documento) : documento_(documento) {}

    void lega(Griglia& griglia) { griglia_ = &griglia; }

    void grigliaDoppioClic(int riga) override;
    void grigliaSposta(int da, int a) override;
    void grigliaMenu(POINT punto, int riga) override {
        menu.push_back(punto);
        righeMenu.push_back(riga);
    }
    void onEccezione() noexcept override { ++eccezioni; }

    // Those that begin with "sposta"; with "doppio".
    [[nodiscard]] std::vector<std::wstring> mosse() const { return scelti(L"sposta"); }
    [[nodiscard]] std::vector<std::wstring> doppi() const { return scelti(L"doppio"); }

    std::vector<std::wstring> eventi;
    // The context menus asked for, and the rows that they speak of.
    std::vector<POINT> menu;
    std::vector<int> righeMenu;
    int eccezioni = 0;
    // Moving an item raises an error.
    bool fallisce = false;

private:
    [[nodiscard]] std::vector<std::wstring> scelti(std::wstring_view inizio) const;

    Documento& documento_;
    Griglia* griglia_ = nullptr;
};

// What a list view shows in a cell; row 1 is its first.
[[nodiscard]] std::wstring testoCella(HWND lista, int riga, int colonna);

// Whether any part of a row is in sight below the header.
[[nodiscard]] bool rigaVisibile(HWND lista, int riga);

// A window on the screen with a filled grid, and a user's hands. Points are the screen's, in
// pixels.
class GrigliaProva final : private Finestra {
public:
    // With that many items, "titolo 0" and so on.
    explicit GrigliaProva(int elementi);
    ~GrigliaProva() override;
    GrigliaProva(const GrigliaProva&) = delete;
    GrigliaProva& operator=(const GrigliaProva&) = delete;

    Documento documento;
    const TabellaElementi& tabella = documento.elementi();
    OsservatoreProva osservatore{documento};
    Griglia griglia{tabella, osservatore};

    void aggiungi(const std::wstring& titolo, const std::wstring& descrizione);
    [[nodiscard]] HWND lista() const noexcept { return griglia.lista(); }
    [[nodiscard]] HWND cornice() const noexcept { return hwnd(); }

    // What is shown.
    [[nodiscard]] std::wstring testo(int riga, int colonna) const {
        return testoCella(lista(), riga, colonna);
    }
    [[nodiscard]] std::wstring titolo(int colonna) const;
    [[nodiscard]] std::vector<int> selezionate() const;
    [[nodiscard]] std::vector<std::wstring> titoli() const;

    // Where things are: the middle of a row in sight (and so much lower), of the header.
    [[nodiscard]] POINT punto(int riga, int sotto = 0) const;
    [[nodiscard]] POINT puntoTestata() const;
    [[nodiscard]] int sinistra() const;

    void allarga(int larghezza);
    // Makes the list's inside so high.
    void alta(int altezza);
    void nascondiBarra();
    void quandoPerdeIlFuoco(std::function<void()> azione) { alPerdere_ = std::move(azione); }

    // Real input, through the system's queue.
    void vai(POINT punto);
    void pulsante(DWORD quale);
    void rotella(int scatti);
    void clic(POINT punto);
    void doppioClic(POINT punto);
    // Clicks beside the grid, so that the next press is not the second of a pair.
    void nuovoClic();
    void trascina(POINT da, POINT a, std::optional<POINT> poi = std::nullopt);
    void premiTasto(WORD tasto, WORD con = 0);

private:
    LRESULT messaggio(UINT codice, WPARAM w, LPARAM l) override;
    void onEccezione() noexcept override { ++osservatore.eccezioni; }

    std::function<void()> alPerdere_;
};
