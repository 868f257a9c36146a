#pragma once

#include <optional>
#include <string>
#include <string_view>

// What an XML file in ISO-8859-1 can hold.

// The first code point that no XML document can hold: control characters other than tab, LF and
// CR, lone surrogates, U+FFFE, U+FFFF.
[[nodiscard]] std::optional<char32_t> primoVietato(std::wstring_view testo) noexcept;

// How messages name a text: "titolo del canale"; for a text of an item, its field and the item's
// position from 1: "titolo", 3.
struct NomeTesto {
    std::wstring_view nome;
    int elemento = 0;
};

// Raises error 5 when the text cannot be held; `percorso` is the file to be written.
void verificaTesto(std::wstring_view testo, const NomeTesto& nome, std::wstring_view percorso);
// The same for the text of a CDATA section, which cannot hold its own end either.
void verificaCData(std::wstring_view testo, const NomeTesto& nome, std::wstring_view percorso);

// The text for a CDATA section, where the serialiser cannot write references: what ISO-8859-1
// lacks, and only that, as decimal HTML references. What it gives lies in `testo` where nothing is
// lacking, else in `appoggio`.
[[nodiscard]] std::wstring_view conRiferimenti(std::wstring_view testo, std::wstring& appoggio);

// The way back: each reference as conRiferimenti writes it (decimal, no leading zero, of a
// character that ISO-8859-1 lacks and XML can hold) as its character, all else as it stands. So a
// text of a file is, read and written again, the same to the byte; a reference that somebody typed
// is the character from then on.
[[nodiscard]] std::wstring_view conCaratteri(std::wstring_view testo, std::wstring& appoggio);
