#pragma once

// Sets a flag for its life.
class Alzata {
public:
    explicit Alzata(bool& segno) noexcept : segno_(segno) { segno = true; }
    Alzata(const Alzata&) = delete;
    Alzata& operator=(const Alzata&) = delete;
    ~Alzata() { segno_ = false; }

private:
    bool& segno_;
};
