#pragma once

#include "support/servizi/messaggi.h"

#include <deque>
#include <functional>
#include <string>

#include <gtest/gtest.h>

// Message boxes for tests: each one shown must be the next one expected, and each one expected must
// have been shown when the fake goes.
class MessaggiFinti final : public Messaggi {
public:
    MessaggiFinti() = default;
    MessaggiFinti(const MessaggiFinti&) = delete;
    MessaggiFinti& operator=(const MessaggiFinti&) = delete;
    ~MessaggiFinti() override {
        for (const auto& a : attesi_) {
            ADD_FAILURE() << "message never shown: " << testing::PrintToString(a.testo);
        }
    }

    // `intanto` happens while the box is up.
    void attendi(std::wstring testo, std::wstring titolo, Icona icona,
                 Pulsanti pulsanti = Pulsanti::Ok, Risposta risposta = Risposta::Ok,
                 std::function<void()> intanto = {}) {
        attesi_.push_back({std::move(testo),
                           {},
                           std::move(titolo),
                           icona,
                           pulsanti,
                           risposta,
                           std::move(intanto)});
    }

    // The same for a text that is known only when the box is up.
    void attendiCome(std::function<std::wstring()> testo, std::wstring titolo, Icona icona) {
        attesi_.push_back({L"titled " + titolo,
                           std::move(testo),
                           std::move(titolo),
                           icona,
                           Pulsanti::Ok,
                           Risposta::Ok,
                           {}});
    }

    Risposta mostra(const std::wstring& testo, const std::wstring& titolo, Icona icona,
                    Pulsanti pulsanti) override {
        if (attesi_.empty()) {
            ADD_FAILURE() << "unexpected message: " << testing::PrintToString(testo) << " titled "
                          << testing::PrintToString(titolo);
            return pulsanti == Pulsanti::Ok ? Risposta::Ok : Risposta::No;
        }
        const Atteso a = attesi_.front();
        attesi_.pop_front();
        EXPECT_EQ(testo, a.testoAllora ? a.testoAllora() : a.testo);
        EXPECT_EQ(titolo, a.titolo);
        EXPECT_EQ(icona, a.icona);
        EXPECT_EQ(pulsanti, a.pulsanti);
        if (a.intanto) {
            a.intanto();
        }
        return a.risposta;
    }

private:
    struct Atteso {
        std::wstring testo;
        std::function<std::wstring()> testoAllora;
        std::wstring titolo;
        Icona icona;
        Pulsanti pulsanti;
        Risposta risposta;
        std::function<void()> intanto;
    };
    std::deque<Atteso> attesi_;
};
