#pragma once

#include "support/servizi/messaggi.h"

// Windows' own message boxes, owned by the active window of the thread.
class MessaggiWindows final : public Messaggi {
public:
    Risposta mostra(const std::wstring& testo, const std::wstring& titolo, Icona icona,
                    Pulsanti pulsanti) override;
};
