#include "document/caratteriXml.h"

#include "support/caratteri/codifica.h"
#include "support/errori/errore.h"
#include "tests/fuzz/ingresso.h"

namespace {

// The text as the CDATA section gets it.
std::wstring riferito(std::wstring_view testo) {
    std::wstring appoggio;
    return std::wstring(conRiferimenti(testo, appoggio));
}

// The text as it is read from a CDATA section.
std::wstring letto(std::wstring_view testo) {
    std::wstring appoggio;
    return std::wstring(conCaratteri(testo, appoggio));
}

std::int32_t errore(void (*verifica)(std::wstring_view, const NomeTesto&, std::wstring_view),
                    std::wstring_view testo) {
    try {
        verifica(testo, {L"titolo", 1}, L"a.xml");
    } catch (const Errore& e) {
        esigi(e.descrizione().starts_with(L"A.XML: "));
        return e.numero();
    }
    return 0;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
    const std::wstring testo = testoDa(dati, quanti);
    // Pairs as one character, as they come back from a reference on this system.
    std::wstring interi;
    for (std::size_t i = 0; i < testo.size();) {
        interi += static_cast<wchar_t>(leggiCarattere(testo, i));
    }
    const auto vietato = primoVietato(testo);
    esigi(vietato == primoVietato(interi));
    esigi((errore(verificaTesto, testo) == errori::chiamataNonValida) == vietato.has_value());
    const bool fine = testo.find(L"]]>") != std::wstring::npos;
    esigi((errore(verificaCData, testo) == errori::chiamataNonValida) ==
          (vietato.has_value() || fine));

    const std::size_t byte = comeUtf8(testo).size();
    esigi(almenoByte(testo, byte) && !almenoByte(testo, byte + 1));
    esigi(byte == 0 || almenoByte(testo, byte - 1));

    const std::wstring scritto = riferito(testo);
    esigi(almenoByte(scritto, comeUtf8(scritto).size()));
    esigi(!almenoByte(scritto, comeUtf8(scritto).size() + 1));
    for (const wchar_t c : scritto) {
        esigi(static_cast<std::uint32_t>(c) <= 0xFF);
    }
    esigi(riferito(scritto) == scritto);
    esigi((scritto.find(L"]]>") != std::wstring::npos) == fine);
    // Read and written again, the bytes of a file are the same.
    esigi(riferito(letto(scritto)) == scritto);
    if (!vietato && testo.find(L"&#") == std::wstring::npos) {
        esigi(letto(scritto) == interi);
    }
    return 0;
}
