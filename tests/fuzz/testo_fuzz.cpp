#include "support/caratteri/codifica.h"
#include "support/testi/testo.h"

#include "tests/fuzz/ingresso.h"

namespace {

void rifilature(const std::wstring& testo) {
    const auto r = rifila(testo);
    esigi(r.empty() || (r.front() != L' ' && r.back() != L' '));
    esigi(rifila(r) == r);
    esigi(testo.find(r) != std::wstring::npos);
    esigi(rifila(L"  " + testo + L" ") == r);
    esigi(testo.starts_with(rifilaDestra(testo)));
}

void aCapo(const std::wstring& testo) {
    const std::wstring n = aCapoCrLf(testo);
    esigi(aCapoCrLf(n) == n);
    for (std::size_t i = 0; i < n.size(); ++i) {
        esigi(n[i] != L'\n' || (i > 0 && n[i - 1] == L'\r'));
    }
    // Only CRs before line feeds were added.
    esigi(sostituisci(n, L"\r\n", L"\n") == sostituisci(testo, L"\r\n", L"\n"));
}

void pezzi(const std::wstring& testo) {
    for (const wchar_t separatore : {L' ', L';', L'\0'}) {
        std::wstring insieme;
        for (const auto pezzo : dividi(testo, separatore)) {
            esigi(pezzo.find(separatore) == std::wstring_view::npos);
            insieme += pezzo;
            insieme += separatore;
        }
        insieme.pop_back();
        esigi(insieme == testo);
    }
}

void codici(const std::wstring& testo) {
    std::wstring rifatto;
    for (std::size_t i = 0; i < testo.size();) {
        const auto prima = i;
        const char32_t c = leggiCarattere(testo, i);
        esigi(i > prima && i <= prima + 2 && i <= testo.size());
        if (i == prima + 2) {
            // A pair: split again, since this system's characters hold it whole.
            esigi(c >= 0x10000 && c <= 0x10FFFF);
            rifatto += static_cast<wchar_t>(0xD800 + ((c - 0x10000) >> 10));
            rifatto += static_cast<wchar_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
        } else {
            rifatto += static_cast<wchar_t>(c);
        }
    }
    esigi(rifatto == testo);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
    const std::wstring testo = testoDa(dati, quanti);
    rifilature(testo);
    aCapo(testo);
    pezzi(testo);
    codici(testo);
    return 0;
}
