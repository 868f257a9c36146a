#include "tests/aiuti/feedDiProva_win.h"
#include "tests/aiuti/frmMain_win.h"
#include "tests/aiuti/spia_win.h"

#include <vector>

namespace {

class CampiDelDocumento : public ProvaFrmMain {
protected:
    // The image of a feed that is saved with these fields in the window.
    clsImgRss salvata(const std::wstring& logo, const std::wstring& url, const std::wstring& link) {
        metti(L"uno");
        campi.testo(IDC_TXTLOGO, logo);
        campi.testo(IDC_TXTURL, url);
        campi.testo(IDC_TXTLINKIMG, link);
        campi.dimensioni(12, 34);
        const std::wstring percorso = cartella.file(L"immagine.xml");
        dialoghi.attendiSalva(richiestaSalva, percorso);
        EXPECT_TRUE(finestra.Salva(true));
        FeedDiProva d;
        d.leggi(percorso);
        return d.image;
    }
};

} // namespace

TEST_F(CampiDelDocumento, OgniCampoDellImmagineSiScriveDaSolo) {
    clsImgRss image = salvata(L"", L"", L" l ");
    EXPECT_EQ(image.sTitle() + L'|' + image.sUrl() + L'|' + image.sLink(), L"||l");
    EXPECT_EQ(image.nWidth(), 0);
    image = salvata(L"", L" u ", L" ");
    EXPECT_EQ(image.sTitle() + L'|' + image.sUrl() + L'|' + image.sLink(), L"|u|");
    EXPECT_EQ(image.nWidth(), 0);
    image = salvata(L" t ", L"", L"");
    EXPECT_EQ(image.sTitle() + L'|' + image.sUrl() + L'|' + image.sLink(), L"t||");
    EXPECT_EQ(image.nWidth(), 12);
    EXPECT_EQ(image.nHeight(), 34);
}

TEST_F(CampiDelDocumento, ApertoUnFeedSiRiempionoNelLoroOrdine) {
    const std::wstring percorso = cartella.scrivi(
        L"a.xml",
        rssCon("<webMaster>w</webMaster><lastBuildDate>Sat, 05 Mar 2005 21:22:23 +0100"
               "</lastBuildDate><copyright>c</copyright><language>it</language>"
               "<description>d</description><link>l</link><title>t</title><image><link>k</link>"
               "<url>u</url><title>i</title><height>2</height><width>1</width></image><item/>"));
    std::vector<int> ordine;
    {
        const Spia spia([&](const CWPSTRUCT& m) {
            const int id = GetDlgCtrlID(m.hwnd);
            const bool testo =
                m.message == WM_SETTEXT && *reinterpret_cast<const wchar_t*>(m.lParam) != L'\0';
            if (m.hwnd == campo(id) && (testo || m.message == DTM_SETSYSTEMTIME)) {
                // The emptied window gets the date of now: what counts is the last.
                std::erase(ordine, id);
                ordine.push_back(id);
            }
        });
        EXPECT_TRUE(finestra.Apri(percorso));
    }
    std::erase_if(ordine, [](int id) { return id == IDC_TXTLARGHEZZA || id == IDC_TXTALTEZZA; });
    EXPECT_EQ(ordine, (std::vector{IDC_TXTTITOLO, IDC_TXTLINKHOME, IDC_TXTDESCRIZIONE,
                                   IDC_CBOLINGUA, IDC_TXTCOPYRIGHT, IDC_TXTDATA, IDC_TXTORARIO,
                                   IDC_TXTWEBMASTER, IDC_TXTLOGO, IDC_TXTURL, IDC_TXTLINKIMG}));
}
