// The launcher "Create Shortcut for this Program" writes into the user's applications menu.
#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include "TestEnv.h"
#include "shell/gui/DesktopPlatform.h"

class DesktopShortcutTest : public QObject {
    Q_OBJECT

    QString folder() const {
        return QStandardPaths::writableLocation(QStandardPaths::ApplicationsLocation);
    }

private slots:
    void cleanup() { QDir(folder()).removeRecursively(); }

    void launcherStartsTheProgramOnItsDataFolder() {
        DesktopPlatform platform;
        platform.CreateShortcut("Shortcut to Orvanta", "/opt/my apps/orvanta",
                                {"--data-dir", "/home/ann/Orvanta 100% \"work\"/"});
        QFile entry(folder() + "/Shortcut to Orvanta.desktop");
        QVERIFY(entry.open(QIODevice::ReadOnly));
        QCOMPARE(entry.readAll(),
                 QByteArray("[Desktop Entry]\nType=Application\nName=Shortcut to Orvanta\n"
                            "Exec=\"/opt/my apps/orvanta\" \"--data-dir\" "
                            "\"/home/ann/Orvanta 100%% \\\"work\\\"/\"\n"
                            "Terminal=false\nCategories=Office;Calendar;\n"));
    }

    void anUnwritableMenuFolderIsAnError() {
        QDir().mkpath(QFileInfo(folder()).absolutePath());
        QFile blocker(folder());
        QVERIFY(blocker.open(QIODevice::WriteOnly));  // a file where the folder should be
        blocker.close();
        DesktopPlatform platform;
        try {
            platform.CreateShortcut("Shortcut to Orvanta", "/opt/orvanta", {});
            QFAIL("no error raised");
        } catch (const VbError& error) {
            QCOMPARE(error.number(), int(err::PathNotFound));
        }
        QFile::remove(folder());
    }
};

ORVANTA_TEST_MAIN(DesktopShortcutTest)
#include "tst_desktop_shortcut.moc"
