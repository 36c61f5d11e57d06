#include "app/FirstStart.h"

#include <QDir>
#include <QFile>

#include "decorations/DecorationMessages.h"
#include "decorations/modIcons.h"
#include "help/modHelp.h"
#include "shell/Files.h"
#include "shell/SafeSave.h"
#include "shell/Services.h"
#include "shell/TextFile.h"

static void InitResources() {
    Q_INIT_RESOURCE(orvanta);
}

namespace {

QByteArray DefaultFile(const QString& name) {
    QFile source(QStringLiteral(":/defaults/") + name);
    if (!source.open(QIODevice::ReadOnly))
        Raise(err::FileNotFound);
    return source.readAll();
}

// The starter icons go in with their captions when the folder has no icon list yet; a picture
// whose name is taken, in any letter case, is left as it is.
void InstallStarterIcons(Services& services, QStringList& installed) {
    if (FileExists(services.AppFolder, kIconTagsFile))
        return;
    const QString images = MakeImagesFolder(services);
    const QStringList pictures = QDir(QStringLiteral(":/defaults/") + kImagesFolder).entryList();
    for (const QString& picture : pictures) {
        const QString name = kImagesFolder + QLatin1Char('\\') + picture;
        if (FileExists(services.AppFolder, name))
            continue;
        safesave::Replace(QDir(images).filePath(picture),
                          DefaultFile(kImagesFolder + QLatin1Char('/') + picture));
        installed.append(name);
    }
    textfile::WriteAll(services.PathOf(kIconTagsFile),
                       textfile::Decode(DefaultFile(kIconTagsFile)));
    installed.append(kIconTagsFile);
}

}  // namespace

QStringList InstallDefaultFiles(Services& services) {
    InitResources();
    QStringList installed;
    services.Trap("InstallDefaultFiles", [&] {
        for (const QString& name : {kHelpFileName}) {
            if (FileExists(services.AppFolder, name))
                continue;
            textfile::WriteAll(services.PathOf(name), textfile::Decode(DefaultFile(name)));
            installed.append(name);
        }
        InstallStarterIcons(services, installed);
    });
    return installed;
}
