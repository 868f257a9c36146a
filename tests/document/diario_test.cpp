#include "document/diario.h"

#include "document/byteDiario.h"
#include "document/documento.h"
#include "tests/aiuti/giri.h"
#include "tests/aiuti/tabella_prova.h"

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

// Everything that a diary tells, as one text to compare.
std::wstring racconto(const LavoroNonSalvato& lavoro) {
    std::wstring tutto = std::to_wstring(lavoro.ora.secondi()) + L'|' + lavoro.percorso + L'|' +
                         std::to_wstring(lavoro.ultimaData.secondi()) + L'|' +
                         std::to_wstring(lavoro.modifiche) + L'|' +
                         std::to_wstring(lavoro.canaleModificato ? 1 : 0);
    for (const std::wstring& testo : lavoro.canale) {
        tutto += L"|c:" + testo;
    }
    for (int i = 0; i < lavoro.elementi.conteggio(); ++i) {
        for (const std::wstring_view testo : lavoro.elementi.elemento(i)->testi()) {
            tutto.append(L"|e:").append(testo);
        }
    }
    if (lavoro.bozza) {
        tutto += L"|bozza " + std::to_wstring(lavoro.bozza->indice);
        for (const std::wstring& testo : lavoro.bozza->testi) {
            tutto += L"|b:" + testo;
        }
    }
    return tutto;
}

std::span<const std::byte> byteDi(const std::string& testo) {
    return std::as_bytes(std::span(testo));
}

// A diary of random work, and how the work stood at each of its lengths in bytes.
class DiarioACaso {
public:
    explicit DiarioACaso(std::uint32_t seme) : caso_(seme) {
        documento_.percorso(meno(2) == 0 ? L"" : L"C:\\feed\\notizie.xml");
        for (int i = meno(4); i > 0; --i) {
            applica(documento_.aggiunta(elemento()));
        }
        lavoro_.ora = DataOra::daParti(2026, 11, 21, 13, 5, 7);
        lavoro_.percorso = documento_.percorso();
        lavoro_.canale = TestiCampi(3, L"prima");
        lavoro_.modifiche = 1;
        riprendi();
        scrittore_.inizia(lavoro_);
        segna();
        for (int i = 0; i < 30; ++i) {
            passo();
            segna();
        }
    }

    struct Tappa {
        std::size_t byte;
        std::wstring stato;
    };
    [[nodiscard]] const std::string& byte() const noexcept { return byte_; }
    [[nodiscard]] const std::vector<Tappa>& tappe() const noexcept { return tappe_; }

private:
    int meno(int quanti) { return static_cast<int>(caso_() % static_cast<std::uint32_t>(quanti)); }
    std::wstring testo() {
        std::wstring t(static_cast<std::size_t>(meno(6)), L'\0');
        for (wchar_t& c : t) {
            c = static_cast<wchar_t>(meno(3) == 0 ? meno(0x10000) : L'a' + meno(3));
        }
        return t;
    }
    ElementoCondiviso elemento() {
        TestiElemento testi;
        std::array<std::wstring, numeroCampi> tenuti;
        for (std::size_t i = 0; i < testi.size(); ++i) {
            tenuti[i] = testo();
            testi[i] = tenuti[i];
        }
        return creaElemento(testi);
    }
    void applica(const Modifica& modifica) { documento_.applica(modifica); }
    void riprendi() {
        lavoro_.elementi = documento_.elementi();
        lavoro_.ultimaData = documento_.ultimaData();
    }
    void segna() { tappe_.push_back({byte_.size(), racconto(lavoro_)}); }

    void cambiaElementi() {
        const int quanti = documento_.elementi().conteggio();
        Modifica modifica = documento_.aggiunta(meno(quanti + 1), elemento());
        if (quanti > 0) {
            switch (meno(4)) {
            case 0:
                modifica = documento_.cambio(meno(quanti), elemento());
                break;
            case 1:
                modifica = documento_.rimozione(meno(quanti));
                break;
            case 2:
                modifica = documento_.spostamento(meno(quanti), meno(quanti));
                break;
            default:
                break;
            }
        }
        applica(modifica);
        documento_.ultimaData(DataOra().piuSecondi(meno(1000000) - 500000));
        scrittore_.modifica(modifica, documento_.ultimaData());
        riprendi();
        ++lavoro_.modifiche;
        lavoro_.bozza.reset();
    }
    void passo() {
        switch (meno(5)) {
        case 0:
            if (const auto quale = static_cast<std::size_t>(meno(3)); true) {
                const std::wstring prima = lavoro_.canale[quale];
                std::wstring& t = lavoro_.canale[quale];
                t.replace(static_cast<std::size_t>(meno(static_cast<int>(t.size()) + 1)),
                          static_cast<std::size_t>(meno(3)), testo());
                lavoro_.canaleModificato = lavoro_.canaleModificato || t != prima;
            }
            scrittore_.canale(lavoro_.canale);
            break;
        case 1:
            if (!lavoro_.bozza) {
                lavoro_.bozza = Bozza{.indice = meno(documento_.elementi().conteggio() + 1) - 1,
                                      .testi = TestiCampi(2, testo())};
            } else {
                lavoro_.bozza->testi[0] += testo();
                lavoro_.bozza->testi[1] = testo() + lavoro_.bozza->testi[1];
            }
            scrittore_.bozza(*lavoro_.bozza);
            break;
        case 2:
            scrittore_.bozzaChiusa();
            lavoro_.bozza.reset();
            break;
        default:
            cambiaElementi();
            break;
        }
    }

    std::mt19937 caso_;
    Documento documento_;
    LavoroNonSalvato lavoro_;
    std::string byte_;
    ScrittoreDiario scrittore_{[this](std::string_view byte) { byte_ += byte; }};
    std::vector<Tappa> tappe_;
};

LavoroNonSalvato unLavoro() {
    LavoroNonSalvato lavoro;
    lavoro.ora = DataOra::daParti(2026, 11, 21, 13, 5, 59);
    lavoro.percorso = L"C:\\feed\\notizie.xml";
    lavoro.canale = {L"Titolo"};
    return lavoro;
}

std::wstring descritto(const LavoroNonSalvato& lavoro) {
    return descriviLavoro({.lavoro = lavoro, .intero = true}, FormatoLocale{});
}

} // namespace

TEST(Diario, RaccontaIlLavoroComEraOgniVolta) {
    for (std::uint32_t seme = 1; seme <= 100; ++seme) {
        SCOPED_TRACE(seme);
        const DiarioACaso diario(seme);
        for (const auto& tappa : diario.tappe()) {
            const auto lettura = leggiDiario(byteDi(diario.byte()).first(tappa.byte));
            ASSERT_TRUE(lettura.lavoro);
            EXPECT_TRUE(lettura.intero);
            ASSERT_EQ(racconto(*lettura.lavoro), tappa.stato);
        }
    }
}

TEST(Diario, UnaCodaStrappataCadeEIlRestoVale) {
    for (std::uint32_t seme = 1; seme <= 20; ++seme) {
        SCOPED_TRACE(seme);
        const DiarioACaso diario(seme);
        std::size_t i = 0;
        const auto& tappe = diario.tappe();
        for (std::size_t byte = 0; byte <= diario.byte().size(); ++byte) {
            const auto lettura = leggiDiario(byteDi(diario.byte()).first(byte));
            if (byte < tappe.front().byte) {
                ASSERT_FALSE(lettura.lavoro) << byte;
                continue;
            }
            // A step may be several records: what it did is then there in part.
            while (i + 1 < tappe.size() && tappe[i + 1].byte <= byte) {
                ++i;
            }
            ASSERT_TRUE(lettura.lavoro) << byte;
            if (byte == tappe[i].byte) {
                ASSERT_EQ(racconto(*lettura.lavoro), tappe[i].stato) << byte;
                ASSERT_TRUE(lettura.intero);
            }
        }
    }
}

TEST(Diario, UnByteGuastoNonPassaPerBuono) {
    const auto quanti = static_cast<int>(daAmbiente("OSTRELLE_GIRI", 20000));
    std::mt19937 motore(20261121);
    const auto caso = [&] { return static_cast<std::uint32_t>(motore()); };
    for (int giro = 0; giro < quanti;) {
        const DiarioACaso diario(caso());
        for (int volta = 0; volta < 200 && giro < quanti; ++volta, ++giro) {
            std::string guasto = diario.byte();
            const std::uint32_t primo = caso() % static_cast<std::uint32_t>(guasto.size());
            // One byte, or a run of them.
            const std::uint32_t lungo = caso() % 3 == 0 ? 1 + caso() % 40 : 1;
            for (std::uint32_t i = primo; i < primo + lungo && i < guasto.size(); ++i) {
                guasto[i] = static_cast<char>(guasto[i] ^ static_cast<char>(1 + caso() % 255));
            }
            const auto lettura = leggiDiario(byteDi(guasto));
            ASSERT_FALSE(lettura.intero) << giro;
            if (!lettura.lavoro) {
                continue;
            }
            // What is left stood in the diary before the first byte that was hurt.
            const auto intatto = leggiDiario(byteDi(diario.byte()).first(primo));
            ASSERT_TRUE(intatto.lavoro) << giro;
            ASSERT_EQ(racconto(*lettura.lavoro), racconto(*intatto.lavoro)) << giro;
        }
    }
}

TEST(Diario, DiUnTestoSiScriveSoloCioCheCambia) {
    std::string byte;
    ScrittoreDiario scrittore([&](std::string_view nuovi) { byte += nuovi; });
    LavoroNonSalvato lavoro = unLavoro();
    lavoro.canale.front() = std::wstring(100'000, L'x');
    scrittore.inizia(lavoro);
    const std::size_t prima = byte.size();
    lavoro.canale.front().insert(50'000, L"nuovo");
    scrittore.canale(lavoro.canale);
    EXPECT_LT(byte.size() - prima, 50U);
    const std::size_t dopo = byte.size();
    scrittore.canale(lavoro.canale);
    EXPECT_EQ(byte.size(), dopo);
    const auto lettura = leggiDiario(byteDi(byte));
    ASSERT_TRUE(lettura.lavoro);
    EXPECT_EQ(lettura.lavoro->canale, lavoro.canale);
}

TEST(Diario, UnRecordCostaQuantoLaSuaModifica) {
    std::size_t lunghezza = 0;
    ScrittoreDiario scrittore([&](std::string_view nuovi) { lunghezza += nuovi.size(); });
    LavoroNonSalvato lavoro = unLavoro();
    dimensiona(lavoro.elementi, 32767);
    scrittore.inizia(lavoro);
    lunghezza = 0;
    Documento documento;
    documento.sostituisci(lavoro.elementi);
    scrittore.modifica(documento.spostamento(0, 32766), {});
    EXPECT_LT(lunghezza, 50U);
}

TEST(Diario, LElementoConfermatoNonEPiuInScrittura) {
    std::string byte;
    ScrittoreDiario scrittore([&](std::string_view nuovi) { byte += nuovi; });
    LavoroNonSalvato lavoro = unLavoro();
    scrittore.inizia(lavoro);
    scrittore.bozza({.indice = -1, .testi = {L"in corso"}});
    EXPECT_EQ(leggiDiario(byteDi(byte)).lavoro->bozza, (Bozza{-1, {L"in corso"}}));
    Documento documento;
    scrittore.modifica(documento.aggiunta(elementoVuoto()), {});
    EXPECT_FALSE(leggiDiario(byteDi(byte)).lavoro->bozza);
    const std::size_t prima = byte.size();
    scrittore.bozzaChiusa();
    EXPECT_EQ(byte.size(), prima);
}

TEST(Diario, UnFormatoSuccessivoSiRiconosce) {
    std::string byte;
    ScrittoreDiario scrittore([&](std::string_view nuovi) { byte += nuovi; });
    scrittore.inizia(unLavoro());
    ASSERT_EQ(byte.substr(0, 17), "OSTRELLE DIARIO 1");
    byte[16] = '2';
    const auto lettura = leggiDiario(byteDi(byte));
    EXPECT_TRUE(lettura.formatoSuccessivo);
    EXPECT_FALSE(lettura.lavoro);
    EXPECT_FALSE(leggiDiario(byteDi("tutt'altro")).formatoSuccessivo);
}

TEST(Diario, UnRecordMancanteRompeLaCatena) {
    std::vector<std::string> pezzi;
    ScrittoreDiario scrittore([&](std::string_view nuovi) { pezzi.emplace_back(nuovi); });
    LavoroNonSalvato lavoro = unLavoro();
    scrittore.inizia(lavoro);
    const std::size_t base = pezzi.size();
    for (const wchar_t* const testo : {L"a", L"b", L"c"}) {
        lavoro.canale.front() = testo;
        scrittore.canale(lavoro.canale);
    }
    ASSERT_EQ(pezzi.size(), base + 3);
    pezzi.erase(pezzi.begin() + static_cast<std::ptrdiff_t>(base) + 1);
    std::string byte;
    for (const std::string& pezzo : pezzi) {
        byte += pezzo;
    }
    const auto lettura = leggiDiario(byteDi(byte));
    EXPECT_FALSE(lettura.intero);
    EXPECT_EQ(lettura.lavoro->canale, TestiCampi{L"a"});
}

TEST(Diario, DescriveIlLavoroAllUtente) {
    LavoroNonSalvato lavoro = unLavoro();
    lavoro.modifiche = 3;
    EXPECT_EQ(descritto(lavoro),
              L"Lavoro non salvato su «notizie.xml», 21/11/2026 13:05: 3 elementi cambiati.");
    lavoro.modifiche = 1;
    lavoro.canaleModificato = true;
    lavoro.bozza = Bozza{};
    EXPECT_EQ(descritto(lavoro),
              L"Lavoro non salvato su «notizie.xml», 21/11/2026 13:05: 1 elemento cambiato, dati "
              L"del canale cambiati, un elemento in scrittura.");
    lavoro.modifiche = 0;
    lavoro.bozza.reset();
    lavoro.percorso.clear();
    EXPECT_EQ(descritto(lavoro), L"Lavoro non salvato su «Nuovo Documento», 21/11/2026 13:05: dati "
                                 L"del canale cambiati.");
    EXPECT_TRUE(
        descriviLavoro({.lavoro = lavoro, .intero = false}, {}).ends_with(L" non si legge."));
}
