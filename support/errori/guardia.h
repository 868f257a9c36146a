#pragma once

#include <utility>

// Gives a variable another value for its life; then it is what it was. They nest.
template <class Valore>
class Prestito {
public:
    Prestito(Valore& variabile, Valore valore)
        : variabile_(variabile), prima_(std::exchange(variabile, std::move(valore))) {}
    Prestito(const Prestito&) = delete;
    Prestito& operator=(const Prestito&) = delete;
    ~Prestito() { variabile_ = std::move(prima_); }

private:
    Valore& variabile_;
    Valore prima_;
};

// Sets a flag for its life.
class Alzata : private Prestito<bool> {
public:
    explicit Alzata(bool& segno) noexcept : Prestito(segno, true) {}
};
