#pragma once

#include <windows.h>

#include <functional>

// While it lives, looks at every message sent to a window of this thread, before the window does.
// One at a time.
class Spia {
public:
    explicit Spia(std::function<void(const CWPSTRUCT&)> guarda);
    Spia(const Spia&) = delete;
    Spia& operator=(const Spia&) = delete;
    ~Spia();

private:
    HHOOK gancio_;
};
