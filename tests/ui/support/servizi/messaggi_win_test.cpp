// The boxes that Windows really shows: their pictures, buttons, default button and answers.

#include "support/servizi/messaggi_win.h"

#include "support/windows/maniglie_win.h"
#include "tests/aiuti/schermo_win.h"

#include <windows.h>

#include <array>
#include <functional>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

constexpr std::array tuttiIPulsanti{IDOK, IDCANCEL, IDABORT, IDRETRY, IDIGNORE, IDYES, IDNO};

// What an icon looks like, in a square of its usual size.
std::vector<COLORREF> aspetto(HICON icona) {
    const int lato = GetSystemMetrics(SM_CXICON);
    const HDC schermo = GetDC(nullptr);
    const HDC memoria = CreateCompatibleDC(schermo);
    const ManigliaBitmap bitmap(CreateCompatibleBitmap(schermo, lato, lato));
    const HGDIOBJ prima = SelectObject(memoria, bitmap.get());
    const RECT tutto{0, 0, lato, lato};
    FillRect(memoria, &tutto, GetSysColorBrush(COLOR_3DFACE));
    DrawIconEx(memoria, 0, 0, icona, lato, lato, 0, nullptr, DI_NORMAL);
    const int quanti = lato * lato;
    std::vector<COLORREF> punti(static_cast<std::size_t>(quanti));
    for (int i = 0; i < quanti; ++i) {
        punti[static_cast<std::size_t>(i)] = GetPixel(memoria, i % lato, i / lato);
    }
    SelectObject(memoria, prima);
    DeleteDC(memoria);
    ReleaseDC(nullptr, schermo);
    return punti;
}

// The picture that a box shows; none when it has none.
HICON iconaDi(HWND box) {
    HICON trovata = nullptr;
    EnumChildWindows(
        box,
        [](HWND figlio, LPARAM l) -> BOOL {
            if (const LRESULT icona = SendMessageW(figlio, STM_GETICON, 0, 0)) {
                *reinterpret_cast<HICON*>(l) = reinterpret_cast<HICON>(icona);
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&trovata));
    return trovata;
}

std::vector<int> pulsantiDi(HWND box) {
    std::vector<int> suoi;
    for (const int id : tuttiIPulsanti) {
        if (GetDlgItem(box, id) != nullptr) {
            suoi.push_back(id);
        }
    }
    return suoi;
}

// Shows a box that `guarda` sees and ends.
Risposta mostraE(Icona icona, Pulsanti pulsanti, std::function<void(HWND)> guarda) {
    const QuandoAppare box(L"#32770", L"Il titolo", std::move(guarda));
    return MessaggiWindows().mostra(L"Il testo", L"Il titolo", icona, pulsanti);
}

} // namespace

TEST(MessaggiVeri, OgniIconaEQuellaDelSistema) {
    const std::array<std::pair<Icona, const wchar_t*>, 3> attese{{
        {Icona::Critica, IDI_HAND},
        {Icona::Domanda, IDI_QUESTION},
        {Icona::Informazione, IDI_ASTERISK},
    }};
    for (const Pulsanti pulsanti : {Pulsanti::Ok, Pulsanti::SiNo, Pulsanti::SiNoAnnulla}) {
        for (const auto& [icona, attesa] : attese) {
            SCOPED_TRACE(static_cast<int>(icona));
            mostraE(icona, pulsanti, [&](HWND box) {
                const HICON mostrata = iconaDi(box);
                EXPECT_NE(mostrata, nullptr);
                for (const auto& [altra, nome] : attese) {
                    EXPECT_EQ(aspetto(mostrata) == aspetto(LoadIconW(nullptr, nome)),
                              altra == icona);
                }
                PostMessageW(box, WM_COMMAND, static_cast<WPARAM>(pulsantiDi(box).front()), 0);
            });
        }
    }
}

TEST(MessaggiVeri, IlPrimoPulsanteEIlPredefinitoEInvioLoPreme) {
    struct Caso {
        Pulsanti pulsanti;
        std::vector<int> id;
        int primo;
        Risposta risposta;
    };
    for (const Caso& caso :
         {Caso{Pulsanti::Ok, {IDOK}, IDOK, Risposta::Ok},
          Caso{Pulsanti::SiNo, {IDYES, IDNO}, IDYES, Risposta::Si},
          Caso{Pulsanti::SiNoAnnulla, {IDCANCEL, IDYES, IDNO}, IDYES, Risposta::Si}}) {
        SCOPED_TRACE(static_cast<int>(caso.pulsanti));
        const Risposta risposta = mostraE(Icona::Domanda, caso.pulsanti, [&](HWND box) {
            EXPECT_EQ(pulsantiDi(box), caso.id);
            EXPECT_EQ(GetDlgCtrlID(GetFocus()), caso.primo);
            for (const int id : caso.id) {
                const auto stile = GetWindowLongPtrW(GetDlgItem(box, id), GWL_STYLE);
                EXPECT_EQ((stile & BS_TYPEMASK) == BS_DEFPUSHBUTTON, id == caso.primo) << id;
            }
            PostMessageW(GetFocus(), WM_KEYDOWN, VK_RETURN, 0);
        });
        EXPECT_EQ(risposta, caso.risposta);
    }
}

TEST(MessaggiVeri, OgniPulsanteDaLaSuaRisposta) {
    const auto premendo = [](Pulsanti pulsanti, int id) {
        return mostraE(Icona::Domanda, pulsanti, [id](HWND box) {
            EXPECT_EQ(testoDi(box), L"Il titolo");
            PostMessageW(GetDlgItem(box, id), BM_CLICK, 0, 0);
        });
    };
    EXPECT_EQ(premendo(Pulsanti::Ok, IDOK), Risposta::Ok);
    EXPECT_EQ(premendo(Pulsanti::SiNo, IDYES), Risposta::Si);
    EXPECT_EQ(premendo(Pulsanti::SiNo, IDNO), Risposta::No);
    EXPECT_EQ(premendo(Pulsanti::SiNoAnnulla, IDYES), Risposta::Si);
    EXPECT_EQ(premendo(Pulsanti::SiNoAnnulla, IDNO), Risposta::No);
    EXPECT_EQ(premendo(Pulsanti::SiNoAnnulla, IDCANCEL), Risposta::Annulla);
}
