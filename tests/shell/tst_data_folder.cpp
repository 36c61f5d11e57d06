// The data folder: its trailing separator, and the case-insensitive existence tests that let a
// data folder copied from Windows load on a case-sensitive file system.

#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include "shell/Files.h"
#include "support/TestEnv.h"

namespace {

void MakeFile(const QString& path, const QByteArray& bytes = "x") {
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

QString FolderCheckMessage(int number, const QString& description) {
    return QStringLiteral("Error encountered during Events Folder check.\r\nError Number: ") +
           QString::number(number) + QStringLiteral("\r\nError Description: ") + description;
}

}  // namespace

class DataFolderTest : public QObject {
    Q_OBJECT

private slots:
    void appFolderEndsInOneSeparator_data();
    void appFolderEndsInOneSeparator();
    void backslashSeparatesFoldersInRelativeNames();
    void fileFoundWhateverItsCase_data();
    void fileFoundWhateverItsCase();
    void exactSpellingWinsOverAnotherCase();
    void fileNotFound_data();
    void fileNotFound();
    void folderFoundWhateverItsCase_data();
    void folderFoundWhateverItsCase();
    void folderCheckReportsUnlistableParent_data();
    void folderCheckReportsUnlistableParent();
};

void DataFolderTest::appFolderEndsInOneSeparator_data() {
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("appFolder");
    QTest::newRow("root stays root") << "/"
                                     << "/";
    QTest::newRow("no trailing separator") << "/data/orvanta"
                                           << "/data/orvanta/";
    QTest::newRow("one trailing separator") << "/data/orvanta/"
                                            << "/data/orvanta/";
    QTest::newRow("doubled separators") << "/data//orvanta//"
                                        << "/data/orvanta/";
}

void DataFolderTest::appFolderEndsInOneSeparator() {
    QFETCH(QString, folder);
    QFETCH(QString, appFolder);
    QCOMPARE(MakeAppFolder(folder), appFolder);
}

void DataFolderTest::backslashSeparatesFoldersInRelativeNames() {
    QCOMPARE(JoinPath("/data/", "Holidays\\2008Holidays.dat"), "/data/Holidays/2008Holidays.dat");
    QCOMPARE(JoinPath("/", "2024\\Notes.dat"), "/2024/Notes.dat");
}

void DataFolderTest::fileFoundWhateverItsCase_data() {
    QTest::addColumn<QString>("onDisk");
    QTest::addColumn<QString>("asked");
    QTest::addColumn<int>("permissions");
    const int readWrite = int(QFile::ReadOwner | QFile::WriteOwner);
    const int readOnly = int(QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    QTest::newRow("same spelling") << "2024Marks.dat"
                                   << "2024Marks.dat" << readWrite;
    QTest::newRow("lower case on disk") << "notes.dat"
                                        << "Notes.dat" << readWrite;
    QTest::newRow("upper case on disk") << "2024MARKS.DAT"
                                        << "2024Marks.dat" << readWrite;
    QTest::newRow("sub-folder and file in other case") << "holidays/2008HOLIDAYS.DAT"
                                                       << "Holidays\\2008Holidays.dat" << readWrite;
    QTest::newRow("year folder") << "2024/planner.DAT"
                                 << "2024\\Planner.dat" << readWrite;
    QTest::newRow("read-only") << "alerts.dat"
                               << "Alerts.dat" << readOnly;
    QTest::newRow("hidden") << ".TempRecord.txt"
                            << ".temprecord.TXT" << readWrite;
}

void DataFolderTest::fileFoundWhateverItsCase() {
    QFETCH(QString, onDisk);
    QFETCH(QString, asked);
    QFETCH(int, permissions);
    QTemporaryDir dir;
    const QString folder = MakeAppFolder(dir.path());
    MakeFile(folder + onDisk, "content");
    QFile::setPermissions(folder + onDisk, QFile::Permissions(permissions));

    QString realPath;
    QVERIFY(FileExists(folder, asked, &realPath));
    QCOMPARE(realPath, folder + onDisk);
    QFile opened(realPath);
    QVERIFY(opened.open(QIODevice::ReadOnly));
    QCOMPARE(opened.readAll(), QByteArray("content"));
}

void DataFolderTest::exactSpellingWinsOverAnotherCase() {
    QTemporaryDir dir;
    const QString folder = MakeAppFolder(dir.path());
    MakeFile(folder + "Notes.dat");
    MakeFile(folder + "notes.dat");
    MakeFile(folder + "NOTES.DAT");
    for (const QString name : {"notes.dat", "Notes.dat", "NOTES.DAT"}) {
        QString realPath;
        QVERIFY(FileExists(folder, name, &realPath));
        QCOMPARE(realPath, folder + name);
    }
}

void DataFolderTest::fileNotFound_data() {
    QTest::addColumn<QStringList>("filesOnDisk");
    QTest::addColumn<QStringList>("foldersOnDisk");
    QTest::addColumn<QString>("asked");
    QTest::newRow("empty folder") << QStringList() << QStringList() << "Alerts.dat";
    QTest::newRow("other file") << QStringList{"Alerts.bak"} << QStringList() << "Alerts.dat";
    QTest::newRow("longer name") << QStringList{"Alerts.dat.old"} << QStringList() << "Alerts.dat";
    QTest::newRow("a folder is not a file") << QStringList() << QStringList{"2024"} << "2024";
    QTest::newRow("a folder in another case is not a file")
        << QStringList() << QStringList{"notes.dat"} << "Notes.dat";
    QTest::newRow("sub-folder missing")
        << QStringList{"2008Holidays.dat"} << QStringList() << "Holidays\\2008Holidays.dat";
    QTest::newRow("sub-folder is a file")
        << QStringList{"Holidays"} << QStringList() << "Holidays\\2008Holidays.dat";
    QTest::newRow("empty name") << QStringList{"Alerts.dat"} << QStringList() << "";
}

void DataFolderTest::fileNotFound() {
    QFETCH(QStringList, filesOnDisk);
    QFETCH(QStringList, foldersOnDisk);
    QFETCH(QString, asked);
    QTemporaryDir dir;
    const QString folder = MakeAppFolder(dir.path());
    for (const QString& file : filesOnDisk)
        MakeFile(folder + file);
    for (const QString& sub : foldersOnDisk)
        QVERIFY(QDir().mkpath(folder + sub));

    QString realPath = "untouched";
    QVERIFY(!FileExists(folder, asked, &realPath));
    QCOMPARE(realPath, "untouched");
}

void DataFolderTest::folderFoundWhateverItsCase_data() {
    QTest::addColumn<QString>("onDisk");  // "/" at the end makes a folder, otherwise a file
    QTest::addColumn<QString>("asked");
    QTest::addColumn<QString>("found");  // empty when the folder is not found
    QTest::newRow("year folder") << "2024/"
                                 << "2024"
                                 << "2024/";
    QTest::newRow("other case") << "holidays/"
                                << "Holidays"
                                << "holidays/";
    QTest::newRow("upper case on disk") << "IMAGES/"
                                        << "Images"
                                        << "IMAGES/";
    QTest::newRow("missing") << "2024/"
                             << "2025"
                             << "";
    QTest::newRow("a file is not a folder") << "2024"
                                            << "2024"
                                            << "";
}

void DataFolderTest::folderFoundWhateverItsCase() {
    QFETCH(QString, onDisk);
    QFETCH(QString, asked);
    QFETCH(QString, found);
    TestEnv env;
    const QString folder = env.folder();
    if (onDisk.endsWith('/'))
        QVERIFY(QDir().mkpath(folder + onDisk));
    else
        MakeFile(folder + onDisk);

    QString realPath;
    QCOMPARE(FolderExists(env.dialogs, folder, asked, &realPath), !found.isEmpty());
    if (!found.isEmpty())
        QCOMPARE(realPath, folder + found);
    VERIFY_DIALOGS(env.dialogs);
}

void DataFolderTest::folderCheckReportsUnlistableParent_data() {
    QTest::addColumn<QString>("parentKind");
    QTest::newRow("missing parent") << "missing";
    QTest::newRow("parent is a file") << "file";
    QTest::newRow("unreadable parent") << "unreadable";
}

void DataFolderTest::folderCheckReportsUnlistableParent() {
    QFETCH(QString, parentKind);
    TestEnv env;
    const QString parent = env.folder() + "Share/";
    if (parentKind == "file") {
        MakeFile(env.folder() + "Share");
    } else if (parentKind == "unreadable") {
        QVERIFY(QDir().mkpath(parent + "2024"));
        QFile::setPermissions(parent, QFile::WriteOwner | QFile::ExeOwner);
        if (::access(QFile::encodeName(parent).constData(), R_OK) == 0) {
            QFile::setPermissions(parent, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
            QSKIP("folder permissions do not apply to this user");
        }
    }
    env.dialogs.ExpectMsgBox(FolderCheckMessage(76, "Path not found"), vb::OKOnly, "");

    QVERIFY(!FolderExists(env.dialogs, parent, "2024"));
    VERIFY_DIALOGS(env.dialogs);
    QFile::setPermissions(parent, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

ORVANTA_TEST_MAIN(DataFolderTest)
#include "tst_data_folder.moc"
