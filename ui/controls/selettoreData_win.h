#pragma once

#include "support/tempo/dataora.h"

#include <windows.h>

// A date or time picker of a dialog as a property: reading, assigning, and telling real changes
// from the control's repeated notifications.
class SelettoreData {
public:
    enum class Parte { Data, Ora };

    SelettoreData() = default;
    // Takes the control over and sets its format; a picker of hours shows the 24-hour clock.
    SelettoreData(HWND controllo, Parte parte);

    [[nodiscard]] DataOra valore() const;

    // Raises 380 when the picker cannot hold the date; it keeps the one it had. Gives whether the
    // value changed.
    bool valore(DataOra data);

    // Takes in the digits typed so far, which the control holds back until its field is left. The
    // focus and the field stay; nothing without the focus.
    void conferma() const noexcept;

    // For DTN_DATETIMECHANGE: whether the value differs from the last one seen.
    [[nodiscard]] bool cambiato();

private:
    HWND controllo_ = nullptr;
    DataOra ultimo_;
};

// The date of one picker with the time of day of another.
[[nodiscard]] DataOra combina(const SelettoreData& data, const SelettoreData& orario);
