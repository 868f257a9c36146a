#include "document/scansioneXml.h"

#include "support/caratteri/codifica.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>

namespace {

constexpr auto npos = std::string_view::npos;

// The code units of a UTF-16 document; the last odd byte is left out.
template <bool altoPrima>
class Unita16 {
public:
    explicit Unita16(std::span<const std::byte> byte) noexcept
        : byte_(byte.data()), quante_(byte.size() / 2) {}

    [[nodiscard]] std::size_t quante() const noexcept { return quante_; }
    [[nodiscard]] std::uint32_t operator[](std::size_t i) const noexcept {
        return std::to_integer<std::uint32_t>(byte_[2 * i + (altoPrima ? 0 : 1)]) << 8U |
               std::to_integer<std::uint32_t>(byte_[2 * i + (altoPrima ? 1 : 0)]);
    }

private:
    const std::byte* byte_;
    std::size_t quante_;
};

constexpr std::size_t unitaPerBlocco = 32;

// Appends as many of the units from `i` on as are ASCII, in whole blocks, and tells how many: one
// by one they take longer than the walk over the text that they give.
template <class Unita>
std::size_t aggiungiAscii(std::string& testo, const Unita& unita, std::size_t i) {
    std::array<char, unitaPerBlocco> blocco{};
    const std::size_t da = i;
    for (; unita.quante() - i >= blocco.size(); i += blocco.size()) {
        std::uint32_t tutte = 0;
        for (std::size_t k = 0; k < blocco.size(); ++k) {
            tutte |= unita[i + k];
            blocco.data()[k] = static_cast<char>(unita[i + k]);
        }
        if (tutte >= 0x80) {
            break;
        }
        testo.append(blocco.data(), blocco.size());
    }
    return i - da;
}

template <bool altoPrima>
std::string inUtf8(std::span<const std::byte> documento) {
    const Unita16<altoPrima> unita(documento);
    std::string testo;
    testo.reserve(unita.quante());
    std::array<char, unitaPerBlocco> ascii{};
    for (std::size_t i = 0; i < unita.quante();) {
        i += aggiungiAscii(testo, unita, i);
        // Other characters are in the next block, or the document ends in it.
        for (const std::size_t fine = std::min(i + unitaPerBlocco, unita.quante()); i < fine;) {
            std::size_t quanti = 0;
            for (; i < fine && unita[i] < 0x80; ++i) {
                ascii.data()[quanti++] = static_cast<char>(unita[i]);
            }
            testo.append(ascii.data(), quanti);
            if (i < fine) {
                std::uint32_t punto = unita[i++];
                if (punto - 0xD800U < 0x400U && i < unita.quante() && unita[i] - 0xDC00U < 0x400U) {
                    punto = 0x10000U + ((punto - 0xD800U) << 10U) + (unita[i++] - 0xDC00U);
                }
                aggiungiUtf8(testo, punto);
            }
        }
    }
    return testo;
}

// One pass over a document whose markup is in ASCII.
class Scansione {
public:
    Scansione(std::string_view testo, LettoreMarcatori& lettore) noexcept
        : testo_(testo), lettore_(lettore) {}

    void percorri() {
        while (posto_ < testo_.size() && !lettore_.basta() && passo()) {
        }
    }

private:
    // False when the document ends in the middle of something.
    bool passo() {
        const std::size_t minore = std::min(testo_.find('<', posto_), testo_.size());
        if (minore > posto_) {
            lettore_.testo(testo_.substr(posto_, minore - posto_));
            posto_ = minore;
            return true;
        }
        const std::string_view resto = testo_.substr(posto_);
        if (resto.starts_with("<!--")) {
            return finoA("-->", 4, [&](std::string_view dentro) { lettore_.commento(dentro); });
        }
        if (resto.starts_with("<![CDATA[")) {
            return finoA("]]>", 9, [&](std::string_view /*dentro*/) { lettore_.cdata(); });
        }
        if (resto.starts_with("<?")) {
            return finoA("?>", 2, [&](std::string_view dentro) {
                if (!dentro.starts_with("xml") || dentro.size() == 3 || !spazioXml(dentro[3])) {
                    lettore_.istruzione();
                }
            });
        }
        const std::size_t fine = fineMarcatore(testo_, posto_);
        if (fine == npos) {
            return false;
        }
        const std::string_view marcatore = testo_.substr(posto_ + 1, fine - posto_ - 1);
        posto_ = fine + 1;
        if (marcatore.starts_with('!')) {
            dichiarazione(marcatore);
        } else if (marcatore.starts_with('/')) {
            lettore_.chiude();
        } else {
            elemento(marcatore);
        }
        return true;
    }

    template <class Azione>
    bool finoA(std::string_view fine, std::size_t inizio, Azione azione) {
        const std::size_t da = posto_ + inizio;
        const std::size_t dove = testo_.find(fine, da);
        if (dove == npos) {
            return false;
        }
        azione(testo_.substr(da, dove - da));
        posto_ = dove + fine.size();
        return true;
    }

    void dichiarazione(std::string_view marcatore) {
        if (!marcatore.starts_with("!DOCTYPE")) {
            return;
        }
        const std::size_t apre = marcatore.find('[');
        const std::size_t chiude = marcatore.rfind(']');
        lettore_.tipoDocumento(apre != npos && chiude != npos && chiude > apre
                                   ? marcatore.substr(apre + 1, chiude - apre - 1)
                                   : std::string_view());
    }

    void elemento(std::string_view marcatore) {
        const bool vuoto = marcatore.ends_with('/');
        if (vuoto) {
            marcatore.remove_suffix(1);
        }
        const auto finisce = [](char c) { return spazioXml(c); };
        const auto fineNome = std::ranges::find_if(marcatore, finisce);
        const std::string_view nome(marcatore.begin(), fineNome);
        leggiAttributi(marcatore.substr(nome.size()));
        lettore_.apre(nome, attributi_);
        if (vuoto) {
            lettore_.chiude();
        }
    }

    void leggiAttributi(std::string_view resto) {
        attributi_.clear();
        while (true) {
            const std::size_t uguale = resto.find('=');
            if (uguale == npos) {
                return;
            }
            std::string_view nome = resto.substr(0, uguale);
            while (!nome.empty() && spazioXml(nome.front())) {
                nome.remove_prefix(1);
            }
            while (!nome.empty() && spazioXml(nome.back())) {
                nome.remove_suffix(1);
            }
            const std::size_t apre = resto.find_first_of("\"'", uguale);
            const std::size_t chiude = apre == npos ? npos : resto.find(resto[apre], apre + 1);
            if (chiude == npos) {
                return;
            }
            attributi_.push_back({nome, resto.substr(apre + 1, chiude - apre - 1)});
            resto.remove_prefix(chiude + 1);
        }
    }

    std::string_view testo_;
    LettoreMarcatori& lettore_;
    std::vector<AttributoXml> attributi_;
    std::size_t posto_ = 0;
};

std::string_view comeTesto(std::span<const std::byte> byte) noexcept {
    return {reinterpret_cast<const char*>(byte.data()), byte.size()};
}

} // namespace

void scorriMarcatori(std::span<const std::byte> documento, LettoreMarcatori& lettore) {
    const std::string_view testo =
        comeTesto(documento.first(std::min<std::size_t>(documento.size(), 2)));
    const bool altoPrima =
        testo == std::string_view("\xFE\xFF") || testo == std::string_view("\0<", 2);
    if (altoPrima || testo == std::string_view("\xFF\xFE") || testo == std::string_view("<\0", 2)) {
        const std::string utf8 = altoPrima ? inUtf8<true>(documento) : inUtf8<false>(documento);
        Scansione(utf8, lettore).percorri();
    } else {
        Scansione(comeTesto(documento), lettore).percorri();
    }
}

std::size_t fineMarcatore(std::string_view testo, std::size_t da) noexcept {
    const bool dichiarazione = testo.substr(da, 2) == "<!";
    int parentesi = 0;
    for (std::size_t i = da + 1; i < testo.size(); ++i) {
        const char c = testo[i];
        if (c == '"' || c == '\'') {
            i = testo.find(c, i + 1);
            if (i == npos) {
                return npos;
            }
        } else if (dichiarazione && c == '<' && testo.substr(i, 4) == "<!--") {
            i = testo.find("-->", i + 4);
            if (i == npos) {
                return npos;
            }
            i += 2;
        } else if (dichiarazione && c == '[') {
            ++parentesi;
        } else if (dichiarazione && c == ']') {
            --parentesi;
        } else if (c == '>' && parentesi <= 0) {
            return i;
        }
    }
    return npos;
}
