#pragma once

#include "support/errori/errore.h"
#include "support/servizi/dialoghiFile.h"

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include <gtest/gtest.h>

// File dialogs for tests: each one shown must be the next one expected, and each one expected must
// have been shown when the fake goes.
class DialoghiFinti final : public DialoghiFile {
public:
    DialoghiFinti() = default;
    DialoghiFinti(const DialoghiFinti&) = delete;
    DialoghiFinti& operator=(const DialoghiFinti&) = delete;
    ~DialoghiFinti() override {
        for (const auto& a : attesi_) {
            ADD_FAILURE() << "file dialog never shown: "
                          << testing::PrintToString(a.richiesta.filtro);
        }
    }

    // The next dialog is one to open (or save) with this request; the user picks `percorso`, or
    // cancels without one. `intanto` happens while the dialog is up.
    void attendiApri(RichiestaFile richiesta, std::optional<std::wstring> percorso,
                     std::function<void()> intanto = {}) {
        attesi_.push_back({true, std::move(richiesta), std::move(percorso), std::move(intanto)});
    }
    void attendiSalva(RichiestaFile richiesta, std::optional<std::wstring> percorso,
                      std::function<void()> intanto = {}) {
        attesi_.push_back({false, std::move(richiesta), std::move(percorso), std::move(intanto)});
    }

    std::wstring apri(const RichiestaFile& richiesta) override { return mostra(true, richiesta); }
    std::wstring salva(const RichiestaFile& richiesta) override { return mostra(false, richiesta); }

private:
    struct Atteso {
        bool apertura;
        RichiestaFile richiesta;
        std::optional<std::wstring> percorso;
        std::function<void()> intanto;
    };

    std::wstring mostra(bool apertura, const RichiestaFile& richiesta) {
        if (attesi_.empty()) {
            ADD_FAILURE() << "unexpected file dialog: " << testing::PrintToString(richiesta.filtro);
            solleva(errori::dialogoAnnullato);
        }
        const Atteso a = attesi_.front();
        attesi_.pop_front();
        EXPECT_EQ(apertura, a.apertura);
        EXPECT_EQ(richiesta.filtro, a.richiesta.filtro);
        EXPECT_TRUE(richiesta.opzioni == a.richiesta.opzioni);
        EXPECT_EQ(richiesta.estensione, a.richiesta.estensione);
        if (a.intanto) {
            a.intanto();
        }
        if (!a.percorso) {
            solleva(errori::dialogoAnnullato);
        }
        return *a.percorso;
    }

    std::deque<Atteso> attesi_;
};
