// Rebuilding the catalogue when MAME or the support files changed.
#include "frmMain.h"
#include "frmSplash.h"

namespace coinlight {

bool frmMain::RebuildCatalogue(bool newMame) {
    if (newMame) {
        Splash().show();
        m_openOptionsOnActivate = true;
        Splash().SetMessageOptions(QStringLiteral("Different version of MAME detected!"));
    }
    return !m_context.flags.fatalErrorFlag;
}

bool frmMain::MergeCategories() {
    return !m_context.flags.fatalErrorFlag;
}

bool frmMain::PurgeAllFavorites() {
    return !m_context.flags.fatalErrorFlag;
}

} // namespace coinlight
