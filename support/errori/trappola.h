#pragma once

#include <exception>
#include <utility>

// Who has handlers that Windows calls: what they raise goes no further than here.
class Trappola {
public:
    Trappola() noexcept = default;
    Trappola(const Trappola&) = delete;
    Trappola& operator=(const Trappola&) = delete;
    virtual ~Trappola() = default;

    // Called inside the catch of an exception that left a handler: see `erroreCorrente`.
    virtual void onEccezione() noexcept = 0;
};

// A boundary with Windows: gives what `azione` gives, or `altrimenti` after an exception, of which
// the trap was told.
template <class Esito, class Azione>
[[nodiscard]] Esito alConfine(Trappola& trappola, Esito altrimenti, Azione azione) noexcept {
    try {
        return azione();
    } catch (...) {
        trappola.onEccezione();
        return altrimenti;
    }
}

// Carries an exception past Windows to who called it.
class Rinvio final : public Trappola {
public:
    void onEccezione() noexcept override { eccezione_ = std::current_exception(); }

    explicit operator bool() const noexcept { return eccezione_ != nullptr; }
    // Raises what was caught, if anything was.
    void rilancia() {
        if (const auto eccezione = std::exchange(eccezione_, nullptr)) {
            std::rethrow_exception(eccezione);
        }
    }

private:
    std::exception_ptr eccezione_;
};

// Runs what may fail where nothing can be told of it; gives whether it came through.
template <class Azione>
// NOLINTNEXTLINE(modernize-use-nodiscard): mostly it makes no difference
bool ignorando(Azione azione) noexcept {
    try {
        azione();
        return true;
    } catch (...) {
        return false;
    }
}
