#include "support/testi/entita.h"

#include <string>

#include <gtest/gtest.h>

namespace {

// A document with that DOCTYPE, empty for none, around a content.
bool note(std::wstring_view doctype, std::wstring_view contenuto) {
    std::wstring documento(L"<?xml version=\"1.0\"?>\n<!-- &a; <!DOCTYPE x> -->\n");
    documento.append(doctype).append(L"\n<rss a='x'>").append(contenuto).append(L"</rss>");
    return entitaNote(documento);
}

} // namespace

TEST(Entita, QuelleDellXmlEINumeriSiConosconoSempre) {
    EXPECT_TRUE(note(L"", L""));
    EXPECT_TRUE(note(L"", L"a &amp; b &lt; c &gt; d &quot; e &apos; f &#232; g &#xE8; h"));
    EXPECT_TRUE(note(L"<!DOCTYPE rss SYSTEM 'x.dtd'>", L"&amp;&#8364;"));
    EXPECT_FALSE(note(L"<!DOCTYPE rss SYSTEM 'x.dtd'>", L"&eacute;"));
    EXPECT_FALSE(note(L"<!DOCTYPE rss SYSTEM 'x.dtd'>", L"&amp;&#8364;&AMP;"));
    EXPECT_TRUE(entitaNote(L""));
}

TEST(Entita, SoloQuelleDelSottoinsiemeInternoHannoUnSostituto) {
    const std::wstring dtd = LR"(<!DOCTYPE rss PUBLIC "-//x//y" "http://x/?a&b;c>" [
        <!ENTITY e "mondo"><!ENTITY vuota ''><!ENTITY	tab	"x"	>
        <!ENTITY fuori SYSTEM "altro.txt"><!ENTITY pubblica PUBLIC 'x' "altro.txt">
        <!ENTITY % p "parametro"><!ENTITY immagine SYSTEM "a.gif" NDATA gif>
        <!ELEMENT rss ANY><!ATTLIST rss a CDATA "]>&ignota;"> ]>)";
    EXPECT_TRUE(note(dtd, L"a &e; b &vuota; &tab;"));
    for (const auto* const nome : {L"fuori", L"pubblica", L"p", L"%", L"immagine", L"E", L"e ", L"",
                                   L"mondo", L"ENTITY", L"ignota"}) {
        EXPECT_FALSE(note(dtd, L"&e;&" + std::wstring(nome) + L";")) << nome;
    }
}

TEST(Entita, LaPrimaDichiarazioneVale) {
    EXPECT_FALSE(note(L"<!DOCTYPE r [<!ENTITY e SYSTEM 'x'><!ENTITY e 'y'>]>", L"&e;"));
    EXPECT_TRUE(note(L"<!DOCTYPE r [<!ENTITY e 'y'><!ENTITY e SYSTEM 'x'>]>", L"&e;"));
}

TEST(Entita, CommentiIstruzioniECDataNonDichiaranoENonRiferiscono) {
    const std::wstring dtd = L"<!DOCTYPE r [<!--'<!ENTITY finta 'x'>--><?p \" <!ENTITY finta2 'x'>"
                             L" ?><!ENTITY vera \"<!ENTITY finta3 'x'>\">]>";
    EXPECT_TRUE(note(dtd, L"&vera;"));
    EXPECT_FALSE(note(dtd, L"&finta;"));
    EXPECT_FALSE(note(dtd, L"&finta2;"));
    EXPECT_FALSE(note(dtd, L"&finta3;"));
    EXPECT_TRUE(note(dtd, L"<!-- &x; --><?p &x; ?><![CDATA[ &x; ]]><b c='&vera;'>&vera;</b>"));
    EXPECT_FALSE(note(dtd, L"<![CDATA[ ]]>&x;"));
    EXPECT_FALSE(note(dtd, L"<b c='&x;'/>"));
    // Outside the DOCTYPE nothing is declared.
    EXPECT_FALSE(note(L"", L"<![CDATA[<!ENTITY x 'y'>]]>&x;"));
}

TEST(Entita, ValeAncheCioACuiUnSostitutoSiRiferisce) {
    const std::wstring dtd = LR"(<!DOCTYPE r [<!ENTITY fuori SYSTEM "x"><!ENTITY a "1 &b; 2">
        <!ENTITY b "&c;&c;"><!ENTITY c "&amp;&#38;lt;"><!ENTITY d "&a;&fuori;"><!ENTITY e "&d;">
        <!ENTITY f "<![CDATA[&fuori;]]>"><!ENTITY g "&#38;fuori;"><!ENTITY h "&#x26;a;&#x26;fuori;">
        <!ENTITY i "&#38;#38;fuori;"><!ENTITY su "&giu;"><!ENTITY giu "&su;">]>)";
    EXPECT_TRUE(note(dtd, L"&a;&b;&c;&f;&i;"));
    for (const auto* const nome : {L"d", L"e", L"g", L"h"}) {
        EXPECT_FALSE(note(dtd, L"&" + std::wstring(nome) + L";")) << nome;
    }
    // What no parser lets through comes to an end here too.
    EXPECT_TRUE(note(dtd, L"&su;"));
    // In the content an ampersand by number begins nothing.
    EXPECT_TRUE(note(dtd, L"&#38;fuori;"));
}

TEST(Entita, UnDocumentoTroncoFinisce) {
    const std::wstring intero = L"<!--a--><!DOCTYPE r [<!--b--><!ENTITY e \"&a;<![CDATA[x]]>\">"
                                L"<?p q?>]><r>&e;<![CDATA[&x;]]></r>";
    for (std::size_t n = 0; n < intero.size(); ++n) {
        static_cast<void>(entitaNote(std::wstring_view(intero).substr(0, n)));
    }
    EXPECT_FALSE(entitaNote(intero));
}
