#include "app/FirstStart.h"

#include <QFile>

#include "help/modHelp.h"
#include "shell/Files.h"
#include "shell/Services.h"
#include "shell/TextFile.h"

static void InitResources() {
    Q_INIT_RESOURCE(orvanta);
}

QStringList InstallDefaultFiles(Services& services) {
    InitResources();
    QStringList installed;
    services.Trap("InstallDefaultFiles", [&] {
        for (const QString& name : {kHelpFileName}) {
            if (FileExists(services.AppFolder, name))
                continue;
            QFile source(QStringLiteral(":/defaults/") + name);
            if (!source.open(QIODevice::ReadOnly))
                Raise(err::FileNotFound);
            textfile::WriteAll(services.PathOf(name), textfile::Decode(source.readAll()));
            installed.append(name);
        }
    });
    return installed;
}
