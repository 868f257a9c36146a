#include "ui/main/recentiSistema_win.h"

#include <windows.h>

#include <shlobj.h>

#include <utility>

void RecentiSistema::codaVuota() noexcept {
    for (const std::wstring& percorso : std::exchange(inAttesa_, {})) {
        // The lists hold no longer paths.
        if (percorso.size() < MAX_PATH) {
            SHAddToRecentDocs(SHARD_PATHW, percorso.c_str());
        }
    }
}
