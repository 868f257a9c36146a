#pragma once

// Around a modal loop: the keys that are down when it begins, or when it ends, have had their
// effect before. Their repeats reach no window of the thread from there on, until each is let go.
class SenzaRipetizioni {
public:
    SenzaRipetizioni() noexcept;
    SenzaRipetizioni(const SenzaRipetizioni&) = delete;
    SenzaRipetizioni& operator=(const SenzaRipetizioni&) = delete;
    ~SenzaRipetizioni();
};
