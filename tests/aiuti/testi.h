#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

// What the program says, as a person reads it, written out here: a text that changes in the program
// fails a test.
namespace testi {

struct TestoErrore {
    std::int32_t numero;
    std::wstring_view testo;
};

inline constexpr std::array erroriSistema{
    TestoErrore{3, L"Return senza GoSub"},
    TestoErrore{5, L"Chiamata di routine o argomento non valido"},
    TestoErrore{6, L"Overflow"},
    TestoErrore{7, L"Memoria esaurita"},
    TestoErrore{9, L"Indice non incluso nell'intervallo"},
    TestoErrore{11, L"Divisione per zero"},
    TestoErrore{13, L"Tipo non corrispondente"},
    TestoErrore{52, L"Nome o numero di file non valido"},
    TestoErrore{53, L"Impossibile trovare il file"},
    TestoErrore{55, L"File già aperto"},
    TestoErrore{57, L"Errore di I/O della periferica"},
    TestoErrore{58, L"File già esistente"},
    TestoErrore{61, L"Disco pieno"},
    TestoErrore{62, L"Input oltre la fine del file"},
    TestoErrore{67, L"Troppi file"},
    TestoErrore{68, L"Periferica non disponibile"},
    TestoErrore{70, L"Autorizzazione negata"},
    TestoErrore{71, L"Disco non pronto"},
    TestoErrore{75, L"Errore di accesso al percorso/file"},
    TestoErrore{76, L"Impossibile trovare il percorso"},
    TestoErrore{91, L"Variabile oggetto o variabile del blocco With non impostata"},
    TestoErrore{380, L"Valore di proprietà non valido"},
    TestoErrore{424, L"Necessario oggetto"},
    TestoErrore{429, L"Il componente ActiveX non può creare l'oggetto"},
    TestoErrore{438, L"Proprietà o metodo non supportati dall'oggetto"},
    TestoErrore{440, L"Errore di automazione"},
    TestoErrore{481, L"Immagine non valida"},
};

// Before ": " stands a path or a name.
inline constexpr std::array erroriPropri{
    TestoErrore{4453, L"Formato data/orario non valido (es. Sat, 11 Jun 2005 15:00:00 +0100)."},
    TestoErrore{4454, L": nome mese non valido."},
    TestoErrore{8292, L": impossibile trovare il file."},
    TestoErrore{8874, L"E' necessario valorizzare la proprietà objImg."},
    TestoErrore{8875, L"E' necessario valorizzare la proprietà objDlg."},
    TestoErrore{8876, L": file non trovato."},
    TestoErrore{12883, L"Per salvare il documento è necessario immettere almeno un contenuto. "
                       L"Salvataggio non consentito."},
    TestoErrore{18343, L": impossibile caricare il documento."},
    TestoErrore{18344, L": formato non valido."},
    TestoErrore{18345, L": formato non supportato."},
};

// The text of an error, of either table.
[[nodiscard]] inline std::wstring diErrore(std::int32_t numero) {
    for (const auto& voce : erroriSistema) {
        if (voce.numero == numero) {
            return std::wstring(voce.testo);
        }
    }
    for (const auto& voce : erroriPropri) {
        if (voce.numero == numero) {
            return std::wstring(voce.testo);
        }
    }
    ADD_FAILURE() << "error " << numero << " has no text";
    return {};
}

// Titles of boxes.
inline constexpr const wchar_t* attenzione = L"Attenzione";
inline constexpr const wchar_t* errore = L"Errore";
inline constexpr const wchar_t* salvataggio = L"Salvataggio";
inline constexpr const wchar_t* salvaPagina = L"Salva come pagina Web...";
// Of the window, and of what PrintErrore shows.
[[nodiscard]] inline std::wstring erroreNumero(std::int32_t numero) {
    return L"Errore n° " + std::to_wstring(numero);
}
[[nodiscard]] inline std::wstring erroreDetto(std::int32_t numero) {
    return (numero < 0 ? L"Errore " : L"Errore  ") + std::to_wstring(numero);
}

inline constexpr const wchar_t* domandaSalvataggio =
    L"Il documento è stato modificato. Si desidera salvare le modifiche?";
inline constexpr const wchar_t* domandaCancella =
    L"Si desidera cancellare realmente il contenuto selezionato?";
inline constexpr const wchar_t* domandaApri = L"Si desidera aprire il file salvato?";
inline constexpr const wchar_t* nessunaSelezione =
    L"E' necessario selezionare un elemento dalla griglia.";
inline constexpr const wchar_t* titoloMancante =
    L"E' obbligatorio indicare il Titolo. Impossibile salvare.";
inline constexpr const wchar_t* linkMancante =
    L"E' obbligatorio indicare il link. Impossibile salvare.";
inline constexpr const wchar_t* dataReimpostata =
    L"Valore data/orario non valido. E' stata impostato come data/orario quella di sistema.";
inline constexpr const wchar_t* senzaInfoSistema =
    L"Le informazioni sul sistema non sono attualmente disponibili.";
inline constexpr const wchar_t* unitaIllegibile = L"Impossibile leggere l'unità specificata.";

// What follows the name of what could not be opened or started.
inline constexpr const wchar_t* fileNonTrovato = L": file non trovato!";
inline constexpr const wchar_t* nessunProgramma =
    L": nessun programma associato a questo tipo di file!";
inline constexpr const wchar_t* accessoNegato = L": accesso negato!";
inline constexpr const wchar_t* applicazioneNonTrovata = L": Applicazione non trovata.";

} // namespace testi
