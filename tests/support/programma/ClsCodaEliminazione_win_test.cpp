#include "support/programma/ClsCodaEliminazione.h"

#include "support/errori/errore.h"
#include "support/windows/file_win.h"
#include "support/windows/maniglie_win.h"
#include "tests/aiuti/cartella_win.h"

#include <windows.h>

#include <array>
#include <cstddef>
#include <cstring>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

// The names deleted from a folder, in the order in which they went.
class OsservaCancellati {
public:
    explicit OsservaCancellati(const std::wstring& cartella)
        : cartella_(CreateFileW(cartella.c_str(), FILE_LIST_DIRECTORY,
                                FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OVERLAPPED,
                                nullptr)) {
        chiedi();
    }

    [[nodiscard]] std::vector<std::wstring> nomi(std::size_t quanti) const {
        std::vector<std::wstring> trovati;
        while (trovati.size() < quanti) {
            if (WaitForSingleObject(evento_.get(), 10000) != WAIT_OBJECT_0) {
                ADD_FAILURE() << "no change seen";
                break;
            }
            leggi(trovati);
            chiedi();
        }
        CancelIo(cartella_.get());
        DWORD byte = 0;
        GetOverlappedResult(cartella_.get(), &richiesta_, &byte, TRUE);
        return trovati;
    }

private:
    void chiedi() const {
        richiesta_ = {};
        richiesta_.hEvent = evento_.get();
        EXPECT_TRUE(ReadDirectoryChangesW(
            cartella_.get(), dati_.data(), static_cast<DWORD>(dati_.size()), FALSE,
            FILE_NOTIFY_CHANGE_FILE_NAME, nullptr, &richiesta_, nullptr));
    }

    void leggi(std::vector<std::wstring>& trovati) const {
        constexpr std::size_t testa = offsetof(FILE_NOTIFY_INFORMATION, FileName);
        for (std::size_t dove = 0;;) {
            FILE_NOTIFY_INFORMATION voce{};
            std::memcpy(&voce, &dati_[dove], testa);
            std::wstring nome(voce.FileNameLength / sizeof(wchar_t), L'\0');
            std::memcpy(nome.data(), &dati_[dove + testa], voce.FileNameLength);
            if (voce.Action == FILE_ACTION_REMOVED) {
                trovati.push_back(nome);
            }
            if (voce.NextEntryOffset == 0) {
                return;
            }
            dove += voce.NextEntryOffset;
        }
    }

    ManigliaFile cartella_;
    ManigliaOggetto evento_{CreateEventW(nullptr, TRUE, FALSE, nullptr)};
    mutable OVERLAPPED richiesta_{};
    alignas(DWORD) mutable std::array<std::byte, 4096> dati_{};
};

} // namespace

TEST(CodaEliminazione, VuotaNonDaENonFaNulla) {
    ClsCodaEliminazione coda;
    EXPECT_FALSE(coda.filePresenti());
    EXPECT_EQ(coda.Pop(), L"");
    coda.CancellaFile();
    EXPECT_FALSE(coda.filePresenti());
}

TEST(CodaEliminazione, LUltimoRegistratoEIlPrimoAdUscire) {
    ClsCodaEliminazione coda;
    coda.Push(L"a");
    coda.Push(L"b");
    coda.Push(L"b");
    EXPECT_TRUE(coda.filePresenti());
    EXPECT_EQ(coda.Pop(), L"b");
    EXPECT_EQ(coda.Pop(), L"b");
    EXPECT_EQ(coda.Pop(), L"a");
    EXPECT_EQ(coda.Pop(), L"");
    EXPECT_FALSE(coda.filePresenti());
}

TEST(CodaEliminazione, PushNonCancellaIlDistruttoreSi) {
    const CartellaProva cartella;
    const std::wstring a = cartella.scrivi(L"a.tmp", "a");
    const std::wstring b = cartella.scrivi(L"perché.htm", "b");
    {
        ClsCodaEliminazione coda;
        coda.Push(a);
        coda.Push(b);
        EXPECT_TRUE(fileEsiste(a));
        EXPECT_TRUE(fileEsiste(b));
    }
    EXPECT_FALSE(fileEsiste(a));
    EXPECT_FALSE(fileEsiste(b));
}

TEST(CodaEliminazione, CancellaPrimaLUltimoRegistrato) {
    const CartellaProva cartella;
    const std::wstring a = cartella.scrivi(L"a.tmp", "a");
    const std::wstring b = cartella.scrivi(L"b.tmp", "b");
    const OsservaCancellati osserva(cartella.percorso());
    ClsCodaEliminazione coda;
    coda.Push(a);
    coda.Push(b);
    coda.CancellaFile();
    EXPECT_EQ(osserva.nomi(2), (std::vector<std::wstring>{L"b.tmp", L"a.tmp"}));
}

TEST(CodaEliminazione, IlFileApertoRestaENonSiRitenta) {
    const CartellaProva cartella;
    const std::wstring aperto = cartella.scrivi(L"aperto.htm", "pagina");
    const std::wstring altro = cartella.scrivi(L"altro.tmp", "");
    ClsCodaEliminazione coda;
    coda.Push(altro);
    coda.Push(aperto);
    {
        const ManigliaFile browser(CreateFileW(aperto.c_str(), GENERIC_READ, FILE_SHARE_READ,
                                               nullptr, OPEN_EXISTING, 0, nullptr));
        ASSERT_TRUE(browser);
        coda.CancellaFile();
    }
    EXPECT_TRUE(fileEsiste(aperto));
    EXPECT_FALSE(fileEsiste(altro));
    EXPECT_FALSE(coda.filePresenti());
    coda.CancellaFile();
    EXPECT_TRUE(fileEsiste(aperto));
}

TEST(CodaEliminazione, QuelloCheNonSiPuoCancellareEscesoloDallElenco) {
    const CartellaProva cartella;
    const std::wstring sola = cartella.scrivi(L"sola.tmp", "x");
    ASSERT_TRUE(SetFileAttributesW(sola.c_str(), FILE_ATTRIBUTE_READONLY));
    const std::wstring due = cartella.scrivi(L"due.tmp", "x");
    ClsCodaEliminazione coda;
    coda.Push(due);
    coda.Push(due);
    coda.Push(sola);
    coda.Push(cartella.file(L"manca.tmp"));
    coda.Push(cartella.percorso());
    coda.Push(L"");
    coda.CancellaFile();
    EXPECT_FALSE(coda.filePresenti());
    EXPECT_FALSE(fileEsiste(due));
    EXPECT_TRUE(fileEsiste(sola));
}

TEST(CodaEliminazione, IlNomePassaPerLaPaginaDiCodiceSenzaSomiglianze) {
    const CartellaProva cartella;
    // The code page has no "ā": neither that file nor its look-alike may go.
    const std::wstring vero = cartella.scrivi(L"\u0101.tmp", "x");
    const std::wstring simile = cartella.scrivi(L"a.tmp", "x");
    ClsCodaEliminazione coda;
    coda.Push(vero);
    coda.CancellaFile();
    EXPECT_TRUE(fileEsiste(vero));
    EXPECT_TRUE(fileEsiste(simile));
}

TEST(CodaEliminazione, OltreTrentaduemilaSettecentosessantasetteEOverflow) {
    ClsCodaEliminazione coda;
    for (int i = 1; i <= 32767; ++i) {
        coda.Push(L"");
    }
    try {
        coda.Push(L"z");
        FAIL();
    } catch (const Errore& errore) {
        EXPECT_EQ(errore.numero(), errori::overflow);
    }
    int presenti = 0;
    while (coda.filePresenti()) {
        EXPECT_EQ(coda.Pop(), L"");
        ++presenti;
    }
    EXPECT_EQ(presenti, 32767);
}
