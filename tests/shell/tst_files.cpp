// The data folder and its files: the folder's trailing separator, names found whatever their
// letter case, single-byte text with CR LF line ends, and whole-file writes, with and without
// keeping the previous version as a ".bak".
#include <unistd.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QTemporaryDir>
#include <QTest>

#include "TestEnv.h"
#include "shell/Files.h"
#include "shell/ShellMessages.h"
#include "shell/TextFile.h"

namespace {

using FileSet =
    QMap<QString, QByteArray>;  // relative path -> bytes; a path ending in "/" is a folder

void MakeFiles(const QString& folder, const FileSet& files) {
    for (auto it = files.begin(); it != files.end(); ++it) {
        QDir().mkpath(QFileInfo(folder + it.key()).absolutePath());
        if (it.key().endsWith('/'))
            continue;
        QFile file(folder + it.key());
        if (!file.open(QIODevice::WriteOnly) || file.write(it.value()) != it.value().size())
            qFatal("cannot write %s", qPrintable(it.key()));
    }
}

// Every file under folder with its bytes, so that a whole folder is compared at once.
FileSet Snapshot(const QString& folder) {
    FileSet files;
    QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        QFile file(it.next());
        if (!file.open(QIODevice::ReadOnly))
            qFatal("cannot read %s", qPrintable(file.fileName()));
        files.insert(file.fileName().mid(folder.size()), file.readAll());
    }
    return files;
}

}  // namespace

class FilesTest : public QObject {
    Q_OBJECT

    QTemporaryDir dir;
    QString folder;

private slots:
    void init() {
        dir.remove();
        QVERIFY(QDir().mkpath(dir.path()));
        folder = MakeAppFolder(dir.path());
    }

    void appFolderEndsInOneSeparator() {
        QCOMPARE(MakeAppFolder("/"), "/");
        QCOMPARE(MakeAppFolder("/data//orvanta"), "/data/orvanta/");
        QCOMPARE(JoinPath("/data/", "Holidays\\2008Holidays.dat"),
                 "/data/Holidays/2008Holidays.dat");
    }

    // A data folder copied from Windows may spell its files either way: the entry on disk is
    // found and its real path handed back, an exact spelling winning.
    void fileFoundWhateverItsCase_data() {
        QTest::addColumn<FileSet>("onDisk");
        QTest::addColumn<QString>("asked");
        QTest::addColumn<QString>("found");  // empty when not found
        QTest::newRow("lower case on disk") << FileSet{{"notes.dat", ""}} << "Notes.dat"
                                            << "notes.dat";
        QTest::newRow("sub-folder and file in other case")
            << FileSet{{"holidays/2008HOLIDAYS.DAT", ""}} << "Holidays\\2008Holidays.dat"
            << "holidays/2008HOLIDAYS.DAT";
        QTest::newRow("hidden") << FileSet{{".TempRecord.txt", ""}} << ".temprecord.TXT"
                                << ".TempRecord.txt";
        QTest::newRow("exact spelling wins")
            << FileSet{{"notes.dat", ""}, {"Notes.dat", ""}, {"NOTES.DAT", ""}} << "Notes.dat"
            << "Notes.dat";
        QTest::newRow("a folder is not a file") << FileSet{{"notes.dat/", ""}} << "Notes.dat"
                                                << "";
    }
    void fileFoundWhateverItsCase() {
        QFETCH(FileSet, onDisk);
        QFETCH(QString, asked);
        QFETCH(QString, found);
        MakeFiles(folder, onDisk);
        QString realPath = "untouched";
        QCOMPARE(FileExists(folder, asked, &realPath), !found.isEmpty());
        QCOMPARE(realPath, found.isEmpty() ? "untouched" : folder + found);
    }

    void folderFoundWhateverItsCaseOrReported() {
        FakeDialogs dialogs;
        MakeFiles(folder, {{"holidays/", ""}, {"2024", "a file"}});
        QString realPath;
        QVERIFY(FolderExists(dialogs, folder, "Holidays", &realPath));
        QCOMPARE(realPath, folder + "holidays/");
        QVERIFY(!FolderExists(dialogs, folder, "2024"));
        dialogs.ExpectMsgBox(
            kFolderCheckFailed + "\r\nError Number: 76\r\nError Description: Path not found",
            vb::OKOnly, "");
        QVERIFY(!FolderExists(dialogs, folder + "missing/", "2024"));
        VERIFY_DIALOGS(dialogs);
    }

    // The bytes that stand for line breaks (210, 213) and done marks (243, 245) in the planner
    // and to-do files, and any other byte a copied file may hold, survive a read and a write.
    void singleByteTextRoundTrips_data() {
        QTest::addColumn<QByteArray>("hex");
        QTest::addColumn<QString>("text");
        QTest::newRow("markers and euro") << QByteArray("41d5d242f3f5800d0a")
                                          << QString("A") + QChar(0xD5) + QChar(0xD2) + "B" +
                                                 QChar(0xF3) + QChar(0xF5) + QChar(0x20AC) + "\r\n";
        QByteArray all;
        for (int b = 0; b < 256; ++b)
            all.append(char(b));
        QTest::newRow("every byte") << all.toHex() << textfile::Decode(all);
    }
    void singleByteTextRoundTrips() {
        QFETCH(QByteArray, hex);
        QFETCH(QString, text);
        QCOMPARE(textfile::Decode(QByteArray::fromHex(hex)), text);
        textfile::WriteAll(folder + "Planner.dat", text);
        QCOMPARE(Snapshot(folder)["Planner.dat"].toHex(), hex);
        QCOMPARE(textfile::ReadAll(folder + "Planner.dat"), text);
    }

    void linesSplitLikeLineInput_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("lines");
        QTest::newRow("CR LF, lone CR, lone LF")
            << "a\r\nb\rc\nd" << QStringList{"a", "b", "c", "d"};
        QTest::newRow("final line end adds no line") << "one\r\ntwo\r\n"
                                                     << QStringList{"one", "two"};
        QTest::newRow("empty lines kept") << "one\r\n\r\ntwo\r\n\r\n"
                                          << QStringList{"one", "", "two", ""};
        QTest::newRow("CR then CR LF") << "one\r\r\ntwo" << QStringList{"one", "", "two"};
        QTest::newRow("empty text") << "" << QStringList();
    }
    void linesSplitLikeLineInput() {
        QFETCH(QString, text);
        QFETCH(QStringList, lines);
        QCOMPARE(textfile::SplitLines(text), lines);
    }

    // A character a data file cannot hold refuses the save, naming it; nothing on disk changes.
    void unstorableCharacterIsRefused_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("character");
        QTest::addColumn<QString>("codePoint");
        const QString han(QChar(0x65E5));
        const QString emoji = QString::fromUtf8("\xF0\x9F\x98\x80");  // U+1F600
        QTest::newRow("emoji before another") << "ab" + emoji + han << emoji << "U+1F600";
        QTest::newRow("after storable accents and a control character 26")
            << QString(QChar(0x1A)) + QChar(0x20AC) + QChar(0xE9) + han << han << "U+65E5";
    }
    void unstorableCharacterIsRefused() {
        QFETCH(QString, text);
        QFETCH(QString, character);
        QFETCH(QString, codePoint);
        const FileSet before{{"2024Marks.dat", "old\r\n"}, {"Notes.dat", "\xf3"}};
        MakeFiles(folder, before);
        QCOMPARE(textfile::FirstUnstorableCharacter(text), std::optional<QString>(character));
        try {
            textfile::WriteAll(folder + "Notes.dat", text);
            QFAIL("the text was written");
        } catch (const VbError& error) {
            QCOMPARE(error.number(), err::InvalidProcedureCall);
            QVERIFY2(error.description().contains(character + "\" (" + codePoint),
                     qPrintable(error.description()));
        }
        QVERIFY_THROWS_EXCEPTION(VbError, textfile::WriteWithBackup(folder, "2024Marks.dat", text));
        QCOMPARE(Snapshot(folder), before);
    }

    void writeWithBackup_data() {
        QTest::addColumn<FileSet>("before");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("content");
        QTest::addColumn<FileSet>("after");
        const QByteArray older = "older\r\n";
        const QByteArray old = "old\r\n";
        const QString content = QString("01/05/26:000100:1") + QChar(0xD5) + QChar(0xD2) + "2";
        const QByteArray bytes = QByteArray::fromHex("30312f30352f32363a3030303130303a31d5d232");
        QTest::newRow("first save")
            << FileSet{} << "2024Marks.dat" << content << FileSet{{"2024Marks.dat", bytes}};
        QTest::newRow("older backup replaced")
            << FileSet{{"2024Marks.dat", old}, {"2024Marks.bak", older}} << "2024Marks.dat"
            << content << FileSet{{"2024Marks.bak", old}, {"2024Marks.dat", bytes}};
        QTest::newRow("empty content leaves only the backup")
            << FileSet{{"2024Marks.dat", old}, {"2024Marks.bak", older}} << "2024Marks.dat"
            << "" << FileSet{{"2024Marks.bak", old}};
        QTest::newRow("in a year folder, other files untouched")
            << FileSet{{"2024/Notes.dat", old}, {"2025Marks.dat", older}} << "2024\\Notes.dat"
            << content
            << FileSet{
                   {"2024/Notes.bak", old}, {"2024/Notes.dat", bytes}, {"2025Marks.dat", older}};
        // A data folder copied from another machine may spell the files in another case: the
        // file found becomes the backup, and the folder is left with the prescribed spellings.
        QTest::newRow("current in another case becomes the backup")
            << FileSet{{"2024MARKS.DAT", old}, {"2024marks.bak", older}} << "2024Marks.dat"
            << content << FileSet{{"2024Marks.bak", old}, {"2024Marks.dat", bytes}};
        QTest::newRow("other spellings beside the exact one removed")
            << FileSet{{"2024Marks.dat", old}, {"2024marks.DAT", older}, {"2024MARKS.bak", older}}
            << "2024Marks.dat" << content
            << FileSet{{"2024Marks.bak", old}, {"2024Marks.dat", bytes}};
        QTest::newRow("empty content removes the current file in another case")
            << FileSet{{"2024marks.DAT", old}} << "2024Marks.dat"
            << "" << FileSet{{"2024Marks.bak", old}};
        QTest::newRow("leftovers of a save cut short are replaced")
            << FileSet{{"2024Marks.dat", old},
                       {"2024Marks.dat.saving", "to"},
                       {"2024Marks.bak.saving", "rn"}}
            << "2024Marks.dat" << content
            << FileSet{{"2024Marks.bak", old}, {"2024Marks.dat", bytes}};
    }
    void writeWithBackup() {
        QFETCH(FileSet, before);
        QFETCH(QString, name);
        QFETCH(QString, content);
        QFETCH(FileSet, after);
        MakeFiles(folder, before);
        if (name.contains('\\'))
            QDir().mkpath(folder + name.section('\\', 0, 0));
        textfile::WriteWithBackup(folder, name, content);
        QCOMPARE(Snapshot(folder), after);
    }
};

ORVANTA_TEST_MAIN(FilesTest)
#include "tst_files.moc"
