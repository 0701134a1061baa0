#include "InfoSearch.h"

#include "CheatSearch.h"
#include "DollarRecordSearch.h"
#include "HistorySearch.h"
#include "InfoSources.h"
#include "core/TextCase.h"

namespace coinlight {

InfoPanel RunInfoSearch(const InfoSearchRequest& request) {
    InfoPanel panel;
    panel.text = ToLowerAscii(request.source) + "\n\n\n";
    const auto file = SourceFile(request.source, request.mameFolder, request.supportFolder);
    std::optional<InfoError> error;
    switch (SourceKindOf(request.source)) {
    case InfoSourceKind::Cheats:
        error =
            SearchCheats(file, request.tempFolder, request.selection, panel.text, request.limits);
        break;
    case InfoSourceKind::History:
        error = SearchHistory(file, request.selection, panel.text);
        break;
    case InfoSourceKind::DollarRecords:
        error = SearchDollarRecords(file, request.selection, panel.text);
        break;
    case InfoSourceKind::HeaderOnly:
        break;
    }
    if (error) {
        return {ErrorPanelText(*error), false};
    }
    return panel;
}

} // namespace coinlight
