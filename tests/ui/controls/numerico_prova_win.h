#pragma once

#include "ui/controls/KOInputNumerico_win.h"

#include "support/windows/com_win.h"
#include "support/windows/errori_win.h"
#include "tests/aiuti/campi_prova_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/schermo_win.h"

#include <commctrl.h>

#include <map>
#include <memory>
#include <vector>

#include <gtest/gtest.h>

// A dialog that holds a numeric control between two boxes, and what its tests ask of it.
namespace numerico {

inline constexpr WORD idPrima = 101;
inline constexpr WORD idNumero = 102;
inline constexpr WORD idDopo = 103;

// A dialog template in memory: an edit box, a label with a numeric control, an edit box.
class Modello {
public:
    Modello() {
        aggiungi32(WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_SETFONT);
        aggiungi32(WS_EX_CONTROLPARENT);
        aggiungi({4, 10, 10, 200, 80, 0, 0});
        testo(L"Prova numerico");
        aggiungi({8});
        testo(L"Tahoma");
        elemento(WS_TABSTOP | WS_BORDER, 5, idPrima, L"EDIT", L"");
        elemento(0, 25, 0xFFFF, L"STATIC", L"Larghezza:");
        elemento(WS_TABSTOP, 35, idNumero, L"KOInputNumerico", L"");
        elemento(WS_TABSTOP | WS_BORDER, 55, idDopo, L"EDIT", L"");
    }
    [[nodiscard]] LPCDLGTEMPLATEW dati() const {
        return reinterpret_cast<LPCDLGTEMPLATEW>(parole_.data());
    }

private:
    void aggiungi(std::initializer_list<WORD> parole) {
        parole_.insert(parole_.end(), parole.begin(), parole.end());
    }
    void aggiungi32(DWORD valore) { aggiungi({LOWORD(valore), HIWORD(valore)}); }
    void testo(std::wstring_view t) {
        for (const wchar_t c : t) {
            aggiungi({static_cast<WORD>(c)});
        }
        aggiungi({0});
    }
    void elemento(DWORD stile, WORD alto, WORD id, std::wstring_view classe, std::wstring_view t) {
        if (parole_.size() % 2 != 0) {
            aggiungi({0});
        }
        aggiungi32(WS_CHILD | WS_VISIBLE | stile);
        aggiungi32(0);
        aggiungi({5, alto, 100, 12, id});
        testo(classe);
        testo(t);
        aggiungi({0});
    }
    std::vector<WORD> parole_;
};

inline INT_PTR CALLBACK proceduraDialogo(HWND dialogo, UINT codice, WPARAM w, LPARAM) noexcept {
    if (codice == WM_COMMAND && (LOWORD(w) == IDOK || LOWORD(w) == IDCANCEL)) {
        SetPropW(dialogo, L"comando", reinterpret_cast<HANDLE>(static_cast<INT_PTR>(LOWORD(w))));
        return TRUE;
    }
    return FALSE;
}

class Registro final : public EventiNumerico {
public:
    void MassimoSuperato(KOInputNumerico& c, double v) override {
        eventi.push_back(L"massimo " + std::to_wstring(static_cast<int>(v)) + L" letto " +
                         std::to_wstring(static_cast<int>(c.Valore())));
        if (durante) {
            durante();
        }
    }
    void MinimoSuperato(KOInputNumerico& c, double v) override {
        eventi.push_back(L"minimo " + std::to_wstring(static_cast<int>(v)) + L" letto " +
                         std::to_wstring(static_cast<int>(c.Valore())));
    }
    void CambioValore(KOInputNumerico&, double v) override { cambi.push_back(v); }
    void ProprietaCambiata(KOInputNumerico&, std::wstring_view nome) override {
        proprieta.emplace_back(nome);
    }
    void onEccezione() noexcept override { errori.push_back(erroreCorrente().numero()); }

    void azzera() {
        eventi.clear();
        cambi.clear();
        proprieta.clear();
    }

    std::vector<std::wstring> eventi;
    std::vector<double> cambi;
    std::vector<std::wstring> proprieta;
    std::vector<std::int32_t> errori;
    std::function<void()> durante;
};

class Borsa final : public BorsaProprieta {
public:
    std::map<std::wstring, ValoreProprieta, std::less<>> valori;

protected:
    [[nodiscard]] std::optional<ValoreProprieta> prendi(std::wstring_view chiave) const override {
        const auto voce = valori.find(chiave);
        return voce == valori.end() ? std::nullopt : std::optional(voce->second);
    }
    void metti(std::wstring_view chiave, const ValoreProprieta& valore) override {
        valori.insert_or_assign(std::wstring(chiave), valore);
    }
};

template <class Azione>
[[nodiscard]] std::int32_t numeroDi(Azione azione) {
    try {
        azione();
        return 0;
    } catch (const Errore& errore) {
        return errore.numero();
    }
}

class NumericoVero : public testing::Test {
protected:
    void SetUp() override {
        KOInputNumerico::registraClasse();
        const Modello modello;
        dialogo = CreateDialogIndirectParamW(GetModuleHandleW(nullptr), modello.dati(), nullptr,
                                             &proceduraDialogo, 0);
        ASSERT_NE(dialogo, nullptr) << GetLastError();
        numero = Finestra::da<KOInputNumerico>(GetDlgItem(dialogo, idNumero));
        ASSERT_NE(numero, nullptr);
        casella = txtnumeroDi(*numero);
        portaAvanti(dialogo);
        numero->osserva(&registro);
        SetFocus(GetDlgItem(dialogo, idPrima));
        pompa();
    }
    void TearDown() override {
        if (Finestra::da<KOInputNumerico>(GetDlgItem(dialogo, idNumero)) != nullptr) {
            numero->osserva(nullptr);
        }
        DestroyWindow(dialogo);
        pompa();
    }

    void entra() const {
        SetFocus(casella);
        pompa();
    }
    void esci() const {
        SetFocus(GetDlgItem(dialogo, idDopo));
        pompa();
    }
    [[nodiscard]] std::wstring testo() const { return testoDi(casella); }
    // With the user's own decimal separator.
    [[nodiscard]] static std::wstring locale(std::wstring t) {
        for (auto& c : t) {
            c = c == L',' ? formatoUtente().decimale : c;
        }
        return t;
    }
    [[nodiscard]] std::pair<DWORD, DWORD> selezione() const { return selezioneDi(casella); }
    void clicPulsante(Verso verso) const {
        RECT r{};
        GetClientRect(UPNumDi(*numero), &r);
        clic(UPNumDi(*numero), {r.right / 2, verso == Verso::Su ? r.bottom / 4 : r.bottom * 3 / 4});
    }
    // What the window asks the container to paint itself with.
    [[nodiscard]] HBRUSH pennello(UINT codice) const {
        const HDC dc = GetDC(casella);
        const auto fatto = SendMessageW(numero->hwnd(), codice, reinterpret_cast<WPARAM>(dc),
                                        reinterpret_cast<LPARAM>(casella));
        testoDipinto = GetTextColor(dc);
        ReleaseDC(casella, dc);
        return reinterpret_cast<HBRUSH>(fatto);
    }

    Registro registro;
    HWND dialogo = nullptr;
    KOInputNumerico* numero = nullptr;
    HWND casella = nullptr;
    mutable COLORREF testoDipinto = 0;
    ConFiltro filtro{[this](MSG& m) { return IsDialogMessageW(dialogo, &m) != FALSE; }};
};

} // namespace numerico
