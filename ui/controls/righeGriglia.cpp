#include "ui/controls/righeGriglia.h"

#include "document/ricerca.h"
#include "support/errori/errore.h"
#include "support/tempo/dataora.h"
#include "support/testi/testo.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::wstring_view quattroSpazi = L"    ";
// Twips kept for the vertical scroll bar.
constexpr double posto = 300;

// A tab is shown as four blanks; the stored text keeps it.
std::wstring senzaTabulazioni(std::wstring_view testo) {
    return sostituisci(rifila(testo), L"\t", quattroSpazi);
}

} // namespace

void RigheGriglia::intesta(std::vector<std::wstring> titoli, int colonne) {
    titoli_ = std::move(titoli);
    colonne_ = std::max(colonne, 1);
    elementi_ = 0;
    righe_ = 1;
}

void RigheGriglia::elenca(const ClsUTC& utc, FormatoLocale formato) {
    utc_ = utc;
    formato_ = std::move(formato);
    elementi_ = tabella_.conteggio();
    righe_ = 1 + elementi_;
}

void RigheGriglia::completa() noexcept {
    righe_ = std::max(righe_, minime);
}

int RigheGriglia::elemento(int riga) const noexcept {
    return riga >= 1 && riga <= ultima() ? riga - 1 : -1;
}

int RigheGriglia::ultima() const noexcept {
    return std::min<int>(elementi_, tabella_.conteggio());
}

std::wstring RigheGriglia::cella(int riga, int colonna) const {
    if (riga < 0 || riga >= righe_ || colonna < 0 || colonna >= colonne_) {
        return {};
    }
    if (riga == 0) {
        const auto c = static_cast<std::size_t>(colonna);
        return c < titoli_.size() && colonna < colonne_ - 1 ? titoli_[c] : std::wstring();
    }
    const int indice = elemento(riga);
    if (colonna == colonne_ - 1) {
        return std::to_wstring(indice);
    }
    if (indice < 0) {
        return L" ";
    }
    switch (colonna) {
    case 0:
        return dataOra(indice);
    case 1:
        return intero(riga, 1) + L"\r\n" + intero(riga, 2);
    default:
        return {};
    }
}

std::wstring RigheGriglia::intero(int riga, std::size_t quale) const {
    const int indice = elemento(riga);
    if (indice < 0) {
        return {};
    }
    return quale == 0
               ? dataOra(indice)
               : senzaTabulazioni(campo(
                     quale == 1 ? CampoElemento::Titolo : CampoElemento::Descrizione, indice));
}

int RigheGriglia::cheIniziaCon(std::wstring_view lettere, int daRiga) const {
    return iniziaCon(tabella_, lettere, std::max(daRiga - 1, 0)) + 1;
}

RigheGriglia::Righe RigheGriglia::contenuto(int riga, std::size_t massimo) const {
    const int indice = elemento(riga);
    if (indice < 0) {
        return {};
    }
    return {inUnaRiga(campo(CampoElemento::Titolo, indice), massimo),
            inUnaRiga(campo(CampoElemento::Descrizione, indice), massimo)};
}

std::wstring RigheGriglia::dataOra(int elemento) const {
    const std::wstring_view testo = campo(CampoElemento::Data, elemento);
    if (utc_) {
        try {
            return formattaDataOra(utc_->ToDate(testo), formato_);
        } catch (const Errore&) {
            return std::wstring(testo);
        }
    }
    return std::wstring(testo);
}

std::wstring_view RigheGriglia::campo(CampoElemento campo, int elemento) const {
    return tabella_(campo, elemento);
}

std::wstring inUnaRiga(std::wstring_view testo, std::size_t massimo) {
    testo = rifila(testo);
    std::wstring riga;
    riga.reserve(std::min(testo.size(), massimo) + quattroSpazi.size());
    for (std::size_t i = 0; i < testo.size(); ++i) {
        if (riga.size() >= massimo) {
            riga += L'\u2026';
            break;
        }
        const wchar_t c = testo[i];
        if (c == L'\t') {
            riga += quattroSpazi;
        } else if (c == L'\r' || c == L'\n') {
            riga += L' ';
            i += c == L'\r' && i + 1 < testo.size() && testo[i + 1] == L'\n' ? 1 : 0;
        } else {
            riga += c;
        }
    }
    return riga;
}

std::vector<double> larghezzeColonne(double larghezzaGriglia, int colonne,
                                     std::optional<double> prima) {
    const int divise = colonne - (prima ? 2 : 1);
    if (divise <= 0) {
        solleva(errori::divisionePerZero);
    }
    const double larghezza =
        std::max(0.0, (larghezzaGriglia - prima.value_or(0.0) - posto) / divise);
    std::vector<double> larghezze(static_cast<std::size_t>(colonne), larghezza);
    if (prima) {
        larghezze.front() = *prima;
    }
    return larghezze;
}
