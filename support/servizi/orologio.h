#pragma once

#include "support/tempo/dataora.h"

// The clock as a service, so that tests can say what time it is.
class Orologio {
public:
    Orologio() = default;
    Orologio(const Orologio&) = delete;
    Orologio& operator=(const Orologio&) = delete;
    virtual ~Orologio() = default;

    [[nodiscard]] virtual Istante adesso() const = 0;
};

class OrologioSistema final : public Orologio {
public:
    [[nodiscard]] Istante adesso() const override { return istanteAttuale(); }
};
