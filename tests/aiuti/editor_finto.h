#pragma once

#include "document/clsItemRss.h"
#include "ui/dialogs/editorElementi.h"

#include <deque>
#include <functional>
#include <optional>
#include <utility>

#include <gtest/gtest.h>

// The item editor for tests: it may be opened as often as it is expected, and must have been when
// the fake goes.
class EditorFinto final : public EditorElementi {
public:
    // What the user does: changes the item and gives the date chosen, or nothing to cancel. Sees
    // the item and the date proposed as the command handed them over.
    using Azione = std::function<std::optional<DataOra>(clsItemRss& elemento, DataOra ultimaData)>;

    EditorFinto() = default;
    EditorFinto(const EditorFinto&) = delete;
    EditorFinto& operator=(const EditorFinto&) = delete;
    ~EditorFinto() override {
        if (!attese_.empty()) {
            ADD_FAILURE() << "item editor never opened: " << attese_.size() << " times";
        }
    }

    void attendi(Azione azione) { attese_.push_back(std::move(azione)); }
    void attendiAnnulla() {
        attendi([](clsItemRss&, DataOra) { return std::nullopt; });
    }

    [[nodiscard]] std::optional<DataOra> modifica(clsItemRss& elemento, DataOra ultimaData,
                                                  const TestiCampi* bozza) override {
        bozza_ = bozza == nullptr ? std::nullopt : std::optional(*bozza);
        if (attese_.empty()) {
            ADD_FAILURE() << "unexpected item editor";
            return std::nullopt;
        }
        const Azione azione = std::move(attese_.front());
        attese_.pop_front();
        return azione(elemento, ultimaData);
    }

    [[nodiscard]] std::optional<TestiCampi> testi() override { return inScrittura; }

    // What the editor that is open shows, as a test says.
    std::optional<TestiCampi> inScrittura;
    // The draft that the editor was last opened with.
    [[nodiscard]] const std::optional<TestiCampi>& bozza() const noexcept { return bozza_; }

private:
    std::optional<TestiCampi> bozza_;
    std::deque<Azione> attese_;
};
