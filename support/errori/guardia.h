#pragma once

#include <utility>

// Sets a flag for its life; then the flag is what it was. They nest.
class Alzata {
public:
    explicit Alzata(bool& segno) noexcept : segno_(segno), prima_(std::exchange(segno, true)) {}
    Alzata(const Alzata&) = delete;
    Alzata& operator=(const Alzata&) = delete;
    ~Alzata() { segno_ = prima_; }

private:
    bool& segno_;
    bool prima_;
};
