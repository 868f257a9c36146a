// The help page that stands beside the program.

#include "support/errore.h"
#include "support/file_win.h"
#include "support/testo.h"
#include "tests/aiuti/cartella_win.h"
#include "ui/main/comandi.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace {

// The tests' executables stand in a folder of the program's.
std::wstring accanto(const std::wstring& nome) {
    return cartellaProgramma() + L"\\..\\" + nome;
}

const std::wstring& pagina() {
    static const std::wstring testo = daUtf8(leggiTutto(accanto(L"Ostrelle.htm")));
    return testo;
}

// The page as it is read: no tags, entities as characters.
std::wstring letta() {
    std::wstring testo;
    bool marca = false;
    for (const wchar_t c : pagina()) {
        if (c == L'<') {
            marca = true;
        } else if (c == L'>') {
            marca = false;
        } else if (!marca) {
            testo += c;
        }
    }
    testo = sostituisci(testo, L"&gt;", L">");
    testo = sostituisci(testo, L"&lt;", L"<");
    return sostituisci(testo, L"&amp;", L"&");
}

// What stands between each `prima` and the quotation mark after it.
std::vector<std::wstring> valori(std::wstring_view prima) {
    std::vector<std::wstring> trovati;
    const std::wstring_view testo = pagina();
    for (auto dove = testo.find(prima); dove != std::wstring_view::npos;
         dove = testo.find(prima, dove + 1)) {
        const auto inizio = dove + prima.size();
        trovati.emplace_back(testo.substr(inizio, testo.find(L'"', inizio) - inizio));
    }
    return trovati;
}

// The messages of the program's own; those of the run-time errors have numbers.
constexpr std::array messaggi{
    L"Per poter utilizzare il programma è necessario che sul sistema sia presente il Parser "
    L"Microsoft XML 3.0 o versione successiva (msxml3.dll). E' possibile scaricare liberamente "
    L"tale componente dal sito della Microsoft (",
    L"Il documento è stato modificato. Si desidera salvare le modifiche?",
    L"Si desidera cancellare realmente il contenuto selezionato?",
    L"Si desidera aprire il file salvato?",
    L"E' necessario selezionare un elemento dalla griglia.",
    L"E' obbligatorio indicare il Titolo. Impossibile salvare.",
    L"E' obbligatorio indicare il link. Impossibile salvare.",
    L"Valore data/orario non valido. E' stata impostato come data/orario quella di sistema.",
    L": impossibile trovare il file. (8292)",
    L": impossibile caricare il documento. (18343)",
    L": formato non valido. (18344)",
    L": formato non supportato. (18345)",
    L"Formato data/orario non valido (es. Sat, 11 Jun 2005 15:00:00 +0100). (4453)",
    L": nome mese non valido. (4454)",
    L"Per salvare il documento è necessario immettere almeno un contenuto. Salvataggio non "
    L"consentito. (12883)",
    L": carattere non ammesso in titolo dell'elemento 3 (U+000B). (5)",
    L": sequenza ]]> non ammessa in descrizione dell'elemento 3. (5)",
    L": file non trovato. (8876)",
    L"E' necessario valorizzare la proprietà objDlg. (8875)",
    L"E' necessario valorizzare la proprietà objImg. (8874)",
    L": file non trovato!",
    L": nessun programma associato a questo tipo di file!",
    L": accesso negato!",
    L"Impossibile leggere l'unità specificata.",
    L"Le informazioni sul sistema non sono attualmente disponibili.",
    L"nessuna voce in elenco",
};

// The run-time errors that a user's files, dates, disks and memory can lead to.
constexpr std::array erroriPossibili{5,  6,  7,  9,  13, 52,  53,  57,  61,
                                     68, 70, 71, 75, 76, 380, 429, 440, 481};

} // namespace

TEST(Guida, SpiegaOgniMessaggio) {
    const std::wstring testo = letta();
    for (const wchar_t* const messaggio : messaggi) {
        EXPECT_NE(testo.find(messaggio), std::wstring::npos) << inUtf8(messaggio);
    }
    for (const int numero : erroriPossibili) {
        const std::wstring atteso =
            std::wstring(testoErrore(numero)) + L" (" + std::to_wstring(numero) + L")";
        EXPECT_NE(testo.find(atteso), std::wstring::npos) << inUtf8(atteso);
    }
}

TEST(Guida, NominaOgniComando) {
    const std::wstring testo = letta();
    for (const MenuPrincipale& menu : menuPrincipali()) {
        for (const VoceMenu& voce : menu.voci) {
            const std::wstring nome =
                sostituisci(sostituisci(voce.didascalia, L"&", L""), L"...", L"");
            EXPECT_TRUE(voce.comando == nessunComando || testo.find(nome) != std::wstring::npos)
                << inUtf8(nome);
        }
    }
}

TEST(Guida, OgniRimandoEOgniFiguraCiSono) {
    const auto rimandi = valori(L"href=\"#");
    EXPECT_GT(rimandi.size(), 10U);
    for (const std::wstring& rimando : rimandi) {
        EXPECT_NE(pagina().find(L"id=\"" + rimando + L'"'), std::wstring::npos) << inUtf8(rimando);
    }
    const auto figure = valori(L"src=\"");
    EXPECT_GT(figure.size(), 3U);
    for (const std::wstring& figura : figure) {
        EXPECT_TRUE(fileEsiste(accanto(sostituisci(figura, L"/", L"\\")))) << inUtf8(figura);
    }
}
