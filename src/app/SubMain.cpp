#include "SubMain.h"

#include <QApplication>

#include "SingleInstance.h"
#include "core/AppFolders.h"
#include "ui/QtPrompter.h"
#include "ui/frmMain.h"

namespace coinlight {

int SubMain(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Coinlight"));
    QApplication::setOrganizationName(QStringLiteral("Coinlight"));

    AppContext context;
    context.startTimer = SecondsSinceMidnight();
    const EnvironmentLookup environment = ProcessEnvironment();
    context.appFolder = ExecutableFolder();
    context.facts.ideMode = IsIdeMode(environment);
    context.facts.portable = IsPortable(context.appFolder);
    context.data.root = ResolveDataFolder(context.appFolder, context.facts.ideMode, environment);

    // The markers are read by the main window's load, after this test: `!allowmany.txt`
    // cannot let a second instance through, and is not meant to.
    SingleInstance instance(context.data.root);
    if (!context.markers.allowMany && instance.ActivatePreviousInstance()) {
        return 0;
    }
    instance.Listen();

    QtPrompter prompter;
    frmMain form(context, prompter);
    prompter.SetParent(&form);
    QObject::connect(&instance, &SingleInstance::RaiseRequested, &form,
                     &frmMain::RaiseFromAnotherStart);

    if (!form.FormLoad()) {
        return context.flags.fatalErrorFlag ? 1 : 0;
    }
    form.show();
    context.readyTimer = SecondsSinceMidnight();
    QApplication::processEvents();

    if (context.preferences.miscellaneous.autoRun) {
        form.AutoRunAtStart();
    }
    form.UnloadCover();
    if (!context.markers.skipNews) {
        form.NewsAtStart();
        if (form.isHidden()) {
            return 0; // closed while the news was on its way: there is no window to wait on
        }
    }
    QApplication::restoreOverrideCursor();
    form.StartScrolling();
    return QApplication::exec();
}

} // namespace coinlight
