// The commands that write: none writes while the window holds the data folder, whatever path
// names the folder, and an import never writes a file it could not read whole, nor says "done".
#include <QDirIterator>
#include <QProcess>

#include "TestEnv.h"
#include "TestPaths.h"
#include "cli/CliMessages.h"
#include "cli/Commands.h"

namespace {

// An appointment and a journal on Mar 7, 2026, and an all-day event on Jul 4.
const QByteArray kCalendar =
    "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//t//t//EN\r\nBEGIN:VEVENT\r\nUID:a@t\r\n"
    "DTSTAMP:20260101T000000Z\r\nDTSTART:20260307T090000\r\nSUMMARY:Dentist\r\nEND:VEVENT\r\n"
    "BEGIN:VJOURNAL\r\nUID:j@t\r\nDTSTAMP:20260101T000000Z\r\nDTSTART;VALUE=DATE:20260307\r\n"
    "DESCRIPTION:Forms\r\nEND:VJOURNAL\r\nBEGIN:VEVENT\r\nUID:h@t\r\nDTSTAMP:20260101T000000Z\r\n"
    "DTSTART;VALUE=DATE:20260704\r\nSUMMARY:Fourth\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n";

QMap<QString, QByteArray> FilesIn(const QString& folder) {
    QMap<QString, QByteArray> files;
    for (QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
         it.hasNext();) {
        QFile file(it.next());
        files[file.fileName()] = file.open(QIODevice::ReadOnly) ? file.readAll() : "?";
    }
    return files;
}

}  // namespace

class WritingCommandsTest : public QObject {
    Q_OBJECT

    QTemporaryDir root_;
    QProcess window_;
    bool bindMounts_ = false;
    QString path(const QString& name) const { return root_.filePath(name); }

    // The status and standard error of the program run on the folder that path names ("bind":
    // a bind mount of "data").
    std::pair<int, QByteArray> Orvanta(const QString& folder, const QStringList& command) const {
        QStringList arguments = QStringList{"--data-dir", path(folder)} + command;
        if (folder == "bind")
            arguments =
                QStringList{"-m",         "sh",
                            "-c",         "mount --bind \"$1\" \"$2\" && shift 2 && exec \"$@\"",
                            "sh",         path("data"),
                            path("bind"), ORVANTA_BINARY} +
                arguments;
        QProcess process;
        process.start(folder == "bind" ? "unshare" : ORVANTA_BINARY, arguments);
        process.waitForFinished(20000);
        return {process.exitCode(), process.readAllStandardError()};
    }

private slots:
    void initTestCase() {
        QVERIFY(QDir(root_.path()).mkpath("data") && QDir(root_.path()).mkpath("bind"));
        QVERIFY(QFile::link(path("data"), path("link")));
        QFile calendar(path("add.ics"));
        QVERIFY(calendar.open(QIODevice::WriteOnly) && calendar.write(kCalendar));
        calendar.close();
        bindMounts_ = QProcess::execute("unshare",
                                        {"-m", "mount", "--bind", path("data"), path("bind")}) == 0;
        window_.start(ORVANTA_BINARY, {"--data-dir", path("data")});
        // The window installs its starter files, the icon list last, once it holds the folder.
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(path("data/Icon Tags.dat")), 20000);
    }
    void cleanupTestCase() {
        window_.kill();
        window_.waitForFinished();
    }

    void writingCommandsWaitWhileTheWindowIsOpen_data() {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QStringList>("command");
        QTest::addColumn<int>("status");
        const QStringList import = {"ics", "import", path("add.ics"), "--years", "2026"};
        QTest::newRow("import, symbolic link") << "link" << import + QStringList{"--yes"} << 2;
        QTest::newRow("import, bind mount") << "bind" << import + QStringList{"--yes"} << 2;
        QTest::newRow("export, symbolic link")
            << "link" << QStringList{"export", "planner", "2026-03-07", path("out")} << 2;
        QTest::newRow("ics export, bind mount")
            << "bind" << QStringList{"ics", "export", path("out")} << 2;
        QTest::newRow("import preview reads") << "link" << import << 0;
        QTest::newRow("day reads") << "bind" << QStringList{"day", "2026-03-07"} << 0;
    }
    void writingCommandsWaitWhileTheWindowIsOpen() {
        QFETCH(QString, folder);
        QFETCH(QStringList, command);
        QFETCH(int, status);
        if (folder == "bind" && !bindMounts_)
            QSKIP("this machine allows no bind mount (unshare -m, mount --bind)");
        QFile::remove(path("out"));
        const auto before = FilesIn(path("data"));
        const auto [exitStatus, err] = Orvanta(folder, command);
        QCOMPARE(exitStatus, status);
        QCOMPARE(err, status == 2 ? cli::kFolderInUseMessage.toUtf8() + "\n" : QByteArray());
        QCOMPARE(FilesIn(path("data")), before);
        QVERIFY(!QFile::exists(path("out")));
    }

    // The kernel gives the lock up with the process, however it ends.
    void aCommandWritesOnceTheWindowIsGone() {
        window_.kill();
        QVERIFY(window_.waitForFinished());
        QCOMPARE(Orvanta("link", {"ics", "import", path("add.ics"), "--years=2026", "--yes"}),
                 std::pair(0, QByteArray()));
        QVERIFY(QFile::exists(path("data/2026/Planner.dat")));
    }

    void importNeverWritesAFileItCouldNotReadWhole_data() {
        QTest::addColumn<QString>("damaged");
        QTest::addColumn<QString>("allDay");
        QTest::addColumn<QString>("lastLine");
        const QString inPart = "Imported in part; see the messages above.";
        const QString nothing = "Nothing was written: Marker Colors.dat could not be read whole.";
        QTest::newRow("planner file") << "2026/Planner.dat"
                                      << "--holidays" << inPart;
        QTest::newRow("notes file") << "2026/Notes.dat"
                                    << "--holidays" << inPart;
        QTest::newRow("marks file") << "2026Marks.dat"
                                    << "--marks" << inPart;
        QTest::newRow("marker colours, marks") << "Marker Colors.dat"
                                               << "--marks" << nothing;
        QTest::newRow("marker colours") << "Marker Colors.dat"
                                        << "--holidays" << nothing;
    }
    void importNeverWritesAFileItCouldNotReadWhole() {
        QFETCH(QString, damaged);
        QFETCH(QString, allDay);
        QFETCH(QString, lastLine);
        TestEnv env;
        env.write(damaged, "garbage\r\n");
        const bool inPart = lastLine.startsWith("Imported");
        QStringList command = {"ics", "import", path("add.ics"), "--years", "2026", allDay};
        for (const bool yes : {false, true}) {
            QString out, err;
            QTextStream outStream(&out), errStream(&err);
            QCOMPARE(cli::RunCommand(yes ? command << "--yes" : command, env.folder(), outStream,
                                     errStream),
                     1);
            QCOMPARE(out.section('\n', -2, -2),
                     yes ? lastLine : "Nothing was written; run again with --yes to import.");
            if (inPart)
                QVERIFY(err.contains(QString(damaged).replace('/', '\\') + " could not be read"));
            QCOMPARE(env.read(damaged), "garbage\r\n");
            // The other two files are written, unless the import depends on the damaged one.
            QCOMPARE(FilesIn(env.folder()).size(), yes && inPart ? 3 : 1);
        }
    }
};

ORVANTA_TEST_MAIN(WritingCommandsTest)
#include "tst_writing_commands.moc"
