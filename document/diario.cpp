#include "document/diario.h"

#include "document/byteDiario.h"
#include "document/documento.h"
#include "support/errori/errore.h"

#include <algorithm>
#include <array>
#include <cwchar>
#include <limits>

namespace {

// What every diary begins with; the digit is the format's.
constexpr std::string_view marca = "OSTRELLE DIARIO ";
constexpr char formatoNostro = '1';

// Items go into records of about this many characters: the base of a large document is never in
// memory a second time.
constexpr std::size_t caratteriPerRecord = 1U << 15U;

constexpr int massimoElementi = std::numeric_limits<std::int16_t>::max();
constexpr int massimoCampi = 1000;

void scriviTesti(ContenutoRecord& contenuto, std::span<const std::wstring> testi) {
    contenuto.numero(testi.size());
    for (const std::wstring& testo : testi) {
        contenuto.testo(testo);
    }
}

std::optional<TestiCampi> leggiTesti(LettoreRecord& lettore) {
    const auto quanti = lettore.piccolo(massimoCampi);
    TestiCampi testi;
    for (int i = 0; quanti && i < *quanti; ++i) {
        auto testo = lettore.testo();
        if (!testo) {
            return std::nullopt;
        }
        testi.push_back(std::move(*testo));
    }
    return quanti ? std::optional(std::move(testi)) : std::nullopt;
}

std::optional<DataOra> dataDi(std::int64_t secondi) {
    try {
        return DataOra().piuSecondi(secondi);
    } catch (const Errore&) {
        return std::nullopt;
    }
}

std::optional<DataOra> leggiData(LettoreRecord& lettore) {
    const auto secondi = lettore.conSegno();
    return secondi ? dataDi(*secondi) : std::nullopt;
}

// Puts the work together from its records; each says whether it reads and fits what stands there.
class Ricostruzione {
public:
    bool accetta(const RecordLetto& letto) {
        LettoreRecord lettore(letto.contenuto);
        return aggiungi(letto.tipo, lettore) && lettore.finito();
    }
    [[nodiscard]] std::optional<LavoroNonSalvato> esito() && {
        return completa_ ? std::optional(std::move(lavoro_)) : std::nullopt;
    }

private:
    bool aggiungi(TipoRecord tipo, LettoreRecord& lettore) {
        if (!completa_) {
            switch (tipo) {
            case TipoRecord::Inizio:
                return !iniziata_ && inizio(lettore);
            case TipoRecord::Elementi:
                return iniziata_ && elementi(lettore);
            case TipoRecord::BaseCompleta:
                return iniziata_ && baseCompleta(lettore);
            default:
                return false;
            }
        }
        switch (tipo) {
        case TipoRecord::Modifica:
            return modifica(lettore);
        case TipoRecord::TestoCanale:
            lavoro_.canaleModificato = true;
            return testo(lettore, lavoro_.canale);
        case TipoRecord::BozzaAperta:
            return bozza(lettore);
        case TipoRecord::TestoBozza:
            return lavoro_.bozza && testo(lettore, lavoro_.bozza->testi);
        case TipoRecord::BozzaChiusa:
            lavoro_.bozza.reset();
            return true;
        default:
            return false;
        }
    }

    bool inizio(LettoreRecord& lettore) {
        const auto ora = leggiData(lettore);
        auto percorso = lettore.testo();
        const auto ultimaData = leggiData(lettore);
        const auto modifiche = lettore.piccolo(std::numeric_limits<int>::max());
        const auto canaleModificato = lettore.piccolo(1);
        auto canale = leggiTesti(lettore);
        if (!ora || !percorso || !ultimaData || !modifiche || !canaleModificato || !canale) {
            return false;
        }
        lavoro_.ora = *ora;
        lavoro_.percorso = std::move(*percorso);
        lavoro_.ultimaData = *ultimaData;
        lavoro_.modifiche = *modifiche;
        lavoro_.canaleModificato = *canaleModificato == 1;
        lavoro_.canale = std::move(*canale);
        iniziata_ = true;
        return true;
    }

    bool elementi(LettoreRecord& lettore) {
        while (!lettore.finito()) {
            ElementoCondiviso elemento = lettore.elemento();
            if (!elemento || base_.size() == massimoElementi) {
                return false;
            }
            base_.push_back(std::move(elemento));
        }
        return true;
    }

    bool baseCompleta(LettoreRecord& lettore) {
        const auto quanti = lettore.piccolo(massimoElementi);
        if (!quanti || static_cast<std::size_t>(*quanti) != base_.size()) {
            return false;
        }
        lavoro_.elementi.riempi(std::move(base_));
        completa_ = true;
        return true;
    }

    bool modifica(LettoreRecord& lettore) {
        const auto tipo = lettore.piccolo(static_cast<int>(Modifica::Tipo::Spostamento));
        const auto indice = lettore.piccolo(massimoElementi);
        const auto indiceDopo = lettore.piccolo(massimoElementi);
        const auto ultimaData = leggiData(lettore);
        if (!tipo || !indice || !indiceDopo || !ultimaData) {
            return false;
        }
        Modifica m{.tipo = static_cast<Modifica::Tipo>(*tipo),
                   .indice = *indice,
                   .indiceDopo = *indiceDopo,
                   .prima = nullptr,
                   .dopo = nullptr};
        if (m.tipo == Modifica::Tipo::Aggiunta || m.tipo == Modifica::Tipo::Cambio) {
            m.dopo = lettore.elemento();
            if (!m.dopo) {
                return false;
            }
        }
        try {
            esegui(m, lavoro_.elementi);
        } catch (const Errore&) {
            return false;
        }
        lavoro_.ultimaData = *ultimaData;
        ++lavoro_.modifiche;
        lavoro_.bozza.reset();
        return true;
    }

    static bool testo(LettoreRecord& lettore, TestiCampi& testi) {
        const auto quale = lettore.numero();
        const auto prima = lettore.numero();
        const auto dopo = lettore.numero();
        const auto mezzo = lettore.testo();
        if (!quale || !prima || !dopo || !mezzo || *quale >= testi.size()) {
            return false;
        }
        std::wstring& testo = testi[static_cast<std::size_t>(*quale)];
        if (*prima > testo.size() || *dopo > testo.size() - *prima) {
            return false;
        }
        testo.replace(static_cast<std::size_t>(*prima),
                      testo.size() - static_cast<std::size_t>(*prima + *dopo), *mezzo);
        return true;
    }

    bool bozza(LettoreRecord& lettore) {
        const auto dopo = lettore.piccolo(massimoElementi);
        auto testi = leggiTesti(lettore);
        if (!dopo || !testi || *dopo > lavoro_.elementi.conteggio()) {
            return false;
        }
        lavoro_.bozza = Bozza{.indice = *dopo - 1, .testi = std::move(*testi)};
        return true;
    }

    LavoroNonSalvato lavoro_;
    std::vector<ElementoCondiviso> base_;
    bool iniziata_ = false;
    bool completa_ = false;
};

} // namespace

std::wstring comeTesto(DataOra data) {
    return std::to_wstring(data.secondi());
}

std::optional<DataOra> dataDaTesto(const std::wstring& testo) {
    wchar_t* fine = nullptr;
    const long long secondi = std::wcstoll(testo.c_str(), &fine, 10);
    return testo.empty() || *fine != L'\0' ? std::nullopt : dataDi(secondi);
}

void ScrittoreDiario::scrivi(TipoRecord tipo, const ContenutoRecord& contenuto) {
    destinazione_(record(tipo, contenuto, catena_));
}

void ScrittoreDiario::inizia(const LavoroNonSalvato& lavoro) {
    catena_ = 0;
    canale_ = lavoro.canale;
    bozza_.reset();
    destinazione_(std::string(marca) + formatoNostro);

    ContenutoRecord inizio;
    inizio.conSegno(lavoro.ora.secondi());
    inizio.testo(lavoro.percorso);
    inizio.conSegno(lavoro.ultimaData.secondi());
    inizio.numero(static_cast<std::uint64_t>(lavoro.modifiche));
    inizio.numero(lavoro.canaleModificato ? 1 : 0);
    scriviTesti(inizio, lavoro.canale);
    scrivi(TipoRecord::Inizio, inizio);

    const int quanti = lavoro.elementi.conteggio();
    ContenutoRecord elementi;
    for (int i = 0; i < quanti; ++i) {
        elementi.elemento(*lavoro.elementi.elemento(i));
        if (elementi.byte().size() / 2 >= caratteriPerRecord) {
            scrivi(TipoRecord::Elementi, elementi);
            elementi = {};
        }
    }
    if (!elementi.byte().empty()) {
        scrivi(TipoRecord::Elementi, elementi);
    }
    ContenutoRecord completa;
    completa.numero(static_cast<std::uint64_t>(quanti));
    scrivi(TipoRecord::BaseCompleta, completa);
    if (lavoro.bozza) {
        bozza(*lavoro.bozza);
    }
}

void ScrittoreDiario::modifica(const Modifica& modifica, DataOra ultimaData) {
    ContenutoRecord contenuto;
    contenuto.numero(static_cast<std::uint64_t>(modifica.tipo));
    contenuto.numero(static_cast<std::uint64_t>(modifica.indice));
    contenuto.numero(static_cast<std::uint64_t>(modifica.indiceDopo));
    contenuto.conSegno(ultimaData.secondi());
    if (modifica.tipo == Modifica::Tipo::Aggiunta || modifica.tipo == Modifica::Tipo::Cambio) {
        contenuto.elemento(*modifica.dopo);
    }
    bozza_.reset();
    scrivi(TipoRecord::Modifica, contenuto);
}

void ScrittoreDiario::canale(std::span<const std::wstring> testi) {
    cambiati(TipoRecord::TestoCanale, canale_, testi);
}

void ScrittoreDiario::bozza(const Bozza& bozza) {
    if (bozza_ && bozza_->indice == bozza.indice) {
        cambiati(TipoRecord::TestoBozza, bozza_->testi, bozza.testi);
        return;
    }
    bozza_ = bozza;
    ContenutoRecord contenuto;
    // One more: 0 is a new item.
    const int dopo = bozza.indice + 1;
    contenuto.numero(static_cast<std::uint64_t>(dopo));
    scriviTesti(contenuto, bozza.testi);
    scrivi(TipoRecord::BozzaAperta, contenuto);
}

void ScrittoreDiario::bozzaChiusa() {
    if (bozza_) {
        bozza_.reset();
        scrivi(TipoRecord::BozzaChiusa, {});
    }
}

void ScrittoreDiario::cambiati(TipoRecord tipo, TestiCampi& noti,
                               std::span<const std::wstring> testi) {
    for (std::size_t i = 0; i < noti.size(); ++i) {
        std::wstring& noto = noti[i];
        const std::wstring& testo = testi[i];
        if (noto == testo) {
            continue;
        }
        const std::size_t corto = std::min(noto.size(), testo.size());
        const auto inizio = static_cast<std::size_t>(
            std::mismatch(noto.begin(), noto.begin() + static_cast<std::ptrdiff_t>(corto),
                          testo.begin())
                .first -
            noto.begin());
        std::size_t fine = 0;
        while (fine < corto - inizio &&
               noto[noto.size() - 1 - fine] == testo[testo.size() - 1 - fine]) {
            ++fine;
        }
        ContenutoRecord contenuto;
        contenuto.numero(i);
        contenuto.numero(inizio);
        contenuto.numero(fine);
        contenuto.testo(std::wstring_view(testo).substr(inizio, testo.size() - inizio - fine));
        noto = testo;
        scrivi(tipo, contenuto);
    }
}

LetturaDiario leggiDiario(std::span<const std::byte> byte) {
    LetturaDiario lettura;
    const std::string_view testo(reinterpret_cast<const char*>(byte.data()), byte.size());
    if (!testo.starts_with(marca) || testo.size() == marca.size()) {
        return lettura;
    }
    const char formato = testo[marca.size()];
    lettura.formatoSuccessivo = formato > formatoNostro;
    if (formato != formatoNostro) {
        return lettura;
    }
    byte = byte.subspan(marca.size() + 1);
    Ricostruzione ricostruzione;
    std::uint64_t catena = 0;
    lettura.intero = true;
    while (lettura.intero && !byte.empty()) {
        const auto letto = leggiRecord(byte, catena);
        lettura.intero = letto && ricostruzione.accetta(*letto);
    }
    lettura.lavoro = std::move(ricostruzione).esito();
    return lettura;
}

std::wstring descriviLavoro(const LetturaDiario& lettura, const FormatoLocale& formato) {
    if (!lettura.lavoro) {
        return {};
    }
    const LavoroNonSalvato& lavoro = *lettura.lavoro;
    const std::wstring_view percorso =
        lavoro.percorso.empty() ? Documento::nuovoDocumento : std::wstring_view(lavoro.percorso);
    std::wstring ora = formattaDataOra(lavoro.ora, formato);
    // Without the seconds.
    ora.resize(ora.size() - 2 - formato.ora.size());
    std::wstring testo(L"Lavoro non salvato su «");
    testo.append(percorso.substr(percorso.find_last_of(L"\\/") + 1)).append(L"», ").append(ora);
    const wchar_t* separatore = L": ";
    const auto parte = [&](const std::wstring& che) {
        testo.append(separatore).append(che);
        separatore = L", ";
    };
    if (lavoro.modifiche == 1) {
        parte(L"1 elemento cambiato");
    } else if (lavoro.modifiche > 1) {
        parte(std::to_wstring(lavoro.modifiche) + L" elementi cambiati");
    }
    if (lavoro.canaleModificato) {
        parte(L"dati del canale cambiati");
    }
    if (lavoro.bozza) {
        parte(L"un elemento in scrittura");
    }
    testo += L'.';
    if (!lettura.intero) {
        testo += L" L'ultima parte non si legge.";
    }
    return testo;
}
