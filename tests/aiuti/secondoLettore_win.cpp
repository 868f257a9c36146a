#include "tests/aiuti/secondoLettore_win.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdint>
#include <cstdlib>
#include <stdexcept>
#include <utility>

namespace {

class Lettore {
public:
    explicit Lettore(std::string_view byte) : resto_(byte) {}

    DocumentoLetto documento() {
        DocumentoLetto letto;
        pretendi("<?xml");
        letto.dichiarazione = attributi();
        pretendi("?>");
        spazi();
        while (mangia("<!--")) {
            letto.commenti.push_back(testo(fino("-->"), false));
            spazi();
        }
        pretendi("<");
        letto.radice = elemento();
        spazi();
        if (!resto_.empty()) {
            rifiuta("something after the document");
        }
        return letto;
    }

private:
    [[noreturn]] void rifiuta(const std::string& perche) const {
        throw std::runtime_error(perche + " before \"" + std::string(resto_.substr(0, 40)) + '"');
    }
    bool mangia(std::string_view inizio) {
        if (!resto_.starts_with(inizio)) {
            return false;
        }
        resto_.remove_prefix(inizio.size());
        return true;
    }
    void pretendi(std::string_view inizio) {
        if (!mangia(inizio)) {
            rifiuta(std::string(inizio) + " is missing");
        }
    }
    // What stands before the first `fine`, which goes with it.
    std::string_view fino(std::string_view fine) {
        const auto dove = resto_.find(fine);
        if (dove == std::string_view::npos) {
            rifiuta("no end " + std::string(fine));
        }
        const std::string_view prima = resto_.substr(0, dove);
        resto_.remove_prefix(dove + fine.size());
        return prima;
    }
    bool spazi() {
        const auto quanti = std::min(resto_.find_first_not_of(" \t\r\n"), resto_.size());
        resto_.remove_prefix(quanti);
        return quanti > 0;
    }
    std::string nome() {
        std::size_t lungo = 0;
        while (lungo < resto_.size() &&
               std::isalnum(static_cast<unsigned char>(resto_[lungo])) != 0) {
            ++lungo;
        }
        if (lungo == 0) {
            rifiuta("a name is missing");
        }
        std::string letto(resto_.substr(0, lungo));
        resto_.remove_prefix(lungo);
        return letto;
    }
    AttributiLetti attributi() {
        AttributiLetti letti;
        while (spazi() && !resto_.empty() && resto_.front() != '?') {
            const std::string quale = nome();
            pretendi("=");
            const char* const virgolette = mangia("'") ? "'" : (pretendi("\""), "\"");
            if (!letti.emplace(quale, testo(fino(virgolette), true)).second) {
                rifiuta("an attribute twice");
            }
        }
        return letti;
    }
    NodoLetto elemento() {
        NodoLetto letto;
        letto.nome = nome();
        letto.attributi = attributi();
        if (mangia("/>")) {
            return letto;
        }
        pretendi(">");
        for (;;) {
            const std::string_view prima = fino("<");
            if (prima.find("]]>") != std::string_view::npos) {
                rifiuta("the end of no section");
            }
            letto.testo += testo(prima, true);
            if (mangia("![CDATA[")) {
                letto.testo += testo(fino("]]>"), false);
            } else if (mangia("/")) {
                pretendi(letto.nome);
                pretendi(">");
                return letto;
            } else {
                letto.figli.push_back(elemento());
            }
        }
    }

    // Characters as XML hands them on: line breaks as LF, but for those that references make.
    std::wstring testo(std::string_view byte, bool riferimenti) const {
        std::wstring letto;
        for (std::size_t i = 0; i < byte.size(); ++i) {
            const auto c = static_cast<unsigned char>(byte[i]);
            if (c == '\r') {
                if (i + 1 == byte.size() || byte[i + 1] != '\n') {
                    letto += L'\n';
                }
            } else if (c < 0x20 && c != '\t' && c != '\n') {
                rifiuta("a control character");
            } else if (c == '&' && riferimenti) {
                const auto fine = byte.find(';', i);
                if (fine == std::string_view::npos) {
                    rifiuta("a lone &");
                }
                aggiungiRiferimento(letto, std::string(byte.substr(i + 1, fine - i - 1)));
                i = fine;
            } else {
                letto += static_cast<wchar_t>(c);
            }
        }
        return letto;
    }
    void aggiungiRiferimento(std::wstring& letto, const std::string& nome) const {
        static constexpr std::array<std::pair<std::string_view, wchar_t>, 5> noti{
            {{"lt", L'<'}, {"gt", L'>'}, {"amp", L'&'}, {"quot", L'"'}, {"apos", L'\''}}};
        for (const auto& [quale, carattere] : noti) {
            if (nome == quale) {
                letto += carattere;
                return;
            }
        }
        const bool esadecimale = nome.starts_with("#x");
        const std::string cifre = nome.starts_with('#') ? nome.substr(esadecimale ? 2 : 1) : "";
        char* fine = nullptr;
        const auto codice =
            static_cast<std::uint32_t>(std::strtoul(cifre.c_str(), &fine, esadecimale ? 16 : 10));
        if (cifre.empty() || std::isxdigit(static_cast<unsigned char>(cifre.front())) == 0 ||
            *fine != '\0' || codice == 0 || codice > 0x10FFFF) {
            rifiuta("an unknown reference " + nome);
        }
        if (codice < 0x10000) {
            letto += static_cast<wchar_t>(codice);
        } else {
            letto += static_cast<wchar_t>(0xD800 + ((codice - 0x10000) >> 10U));
            letto += static_cast<wchar_t>(0xDC00 + ((codice - 0x10000) & 0x3FFU));
        }
    }

    std::string_view resto_;
};

} // namespace

DocumentoLetto leggiDaSolo(std::string_view byte) {
    return Lettore(byte).documento();
}
