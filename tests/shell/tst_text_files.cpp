// Data files as single-byte text with CR LF line ends: decoding and encoding, line splitting,
// whole-file writes and writes that keep the previous version as a ".bak" file.

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QTemporaryDir>
#include <QTest>

#include "shell/Files.h"
#include "shell/TextFile.h"
#include "shell/VbError.h"
#include "support/TestEnv.h"

namespace {

using FileSet = QMap<QString, QByteArray>;  // relative path -> bytes

void MakeFiles(const QString& folder, const FileSet& files) {
    for (auto it = files.begin(); it != files.end(); ++it) {
        QDir().mkpath(QFileInfo(folder + it.key()).absolutePath());
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
        const QString path = it.next();
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            qFatal("cannot read %s", qPrintable(path));
        files.insert(path.mid(folder.size()), file.readAll());
    }
    return files;
}

QByteArray ReadBytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<missing>");
}

}  // namespace

class TextFilesTest : public QObject {
    Q_OBJECT

private slots:
    void markerBytesRoundTrip_data();
    void markerBytesRoundTrip();
    void everyByteSurvivesReadAndWrite();
    void linesSplitLikeLineInput_data();
    void linesSplitLikeLineInput();
    void readLinesDecodesTheFile();
    void writeAllLeavesExactlyTheBytes_data();
    void writeAllLeavesExactlyTheBytes();
    void unstorableCharacterIsRefused_data();
    void unstorableCharacterIsRefused();
    void backupNames_data();
    void backupNames();
    void writeWithBackup_data();
    void writeWithBackup();
    void writeWithBackupRefusesUnstorableText();
};

void TextFilesTest::markerBytesRoundTrip_data() {
    QTest::addColumn<QByteArray>("hex");
    QTest::addColumn<QString>("text");
    QTest::newRow("210 encoded line feed") << QByteArray("d2") << QString(QChar(0x00D2));
    QTest::newRow("213 encoded carriage return") << QByteArray("d5") << QString(QChar(0x00D5));
    QTest::newRow("243 done") << QByteArray("f3") << QString(QChar(0x00F3));
    QTest::newRow("245 not done") << QByteArray("f5") << QString(QChar(0x00F5));
    QTest::newRow("euro sign") << QByteArray("80") << QString(QChar(0x20AC));
    QTest::newRow("mixed with text") << QByteArray("41d5d242f3f5800d0a")
                                     << QString("A") + QChar(0xD5) + QChar(0xD2) + "B" +
                                            QChar(0xF3) + QChar(0xF5) + QChar(0x20AC) + "\r\n";
}

void TextFilesTest::markerBytesRoundTrip() {
    QFETCH(QByteArray, hex);
    QFETCH(QString, text);
    QCOMPARE(textfile::Decode(QByteArray::fromHex(hex)), text);
    QCOMPARE(textfile::Encode(text).toHex(), hex);

    QTemporaryDir dir;
    const QString path = dir.filePath("Planner.dat");
    textfile::WriteAll(path, text);
    QCOMPARE(ReadBytes(path).toHex(), hex);
    QCOMPARE(textfile::ReadAll(path), text);
}

// A data file copied from another machine may hold any byte; loading and saving it again must
// give back the same bytes.
void TextFilesTest::everyByteSurvivesReadAndWrite() {
    QByteArray all;
    for (int b = 0; b < 256; ++b)
        all.append(char(b));
    QTemporaryDir dir;
    const QString path = dir.filePath("Notes.dat");
    textfile::WriteAll(path, textfile::Decode(all));
    QCOMPARE(ReadBytes(path).toHex(), all.toHex());
}

void TextFilesTest::linesSplitLikeLineInput_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("CR LF") << "one\r\ntwo" << QStringList{"one", "two"};
    QTest::newRow("lone CR") << "one\rtwo" << QStringList{"one", "two"};
    QTest::newRow("lone LF") << "one\ntwo" << QStringList{"one", "two"};
    QTest::newRow("final CR LF adds no line") << "one\r\ntwo\r\n" << QStringList{"one", "two"};
    QTest::newRow("final lone CR adds no line") << "one\r" << QStringList{"one"};
    QTest::newRow("empty line kept") << "one\r\n\r\ntwo" << QStringList{"one", "", "two"};
    QTest::newRow("empty last line kept") << "one\r\n\r\n" << QStringList{"one", ""};
    QTest::newRow("CR then CR LF") << "one\r\r\ntwo" << QStringList{"one", "", "two"};
    QTest::newRow("only a line end") << "\r\n" << QStringList{""};
    QTest::newRow("no line end") << "one" << QStringList{"one"};
    QTest::newRow("empty text") << "" << QStringList();
    QTest::newRow("blanks kept") << "  a  \r\n " << QStringList{"  a  ", " "};
}

void TextFilesTest::linesSplitLikeLineInput() {
    QFETCH(QString, text);
    QFETCH(QStringList, lines);
    QCOMPARE(textfile::SplitLines(text), lines);
}

void TextFilesTest::readLinesDecodesTheFile() {
    QTemporaryDir dir;
    MakeFiles(dir.path() + "/",
              {{"To Do.dat", QByteArray::fromHex("f343616c6c0d0af5506179800d0a")}});
    const QStringList expected{QChar(0xF3) + QString("Call"),
                               QChar(0xF5) + QString("Pay") + QChar(0x20AC)};
    QCOMPARE(textfile::ReadLines(dir.filePath("To Do.dat")), expected);
}

void TextFilesTest::writeAllLeavesExactlyTheBytes_data() {
    QTest::addColumn<QByteArray>("before");  // "<missing>" for no file
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QByteArray>("after");
    QTest::newRow("new file") << QByteArray("<missing>") << QStringList{"01/05/26", "x"}
                              << QByteArray("01/05/26\r\nx");
    QTest::newRow("longer file replaced whole")
        << QByteArray("a long old content\r\nwith two lines\r\n") << QStringList{"short"}
        << QByteArray("short");
    QTest::newRow("empty lines kept")
        << QByteArray("old") << QStringList{"", "a", ""} << QByteArray("\r\na\r\n");
    QTest::newRow("empty content") << QByteArray("old") << QStringList() << QByteArray("");
}

void TextFilesTest::writeAllLeavesExactlyTheBytes() {
    QFETCH(QByteArray, before);
    QFETCH(QStringList, lines);
    QFETCH(QByteArray, after);
    QTemporaryDir dir;
    const QString folder = dir.path() + "/";
    if (before != "<missing>")
        MakeFiles(folder, {{"Alerts.dat", before}});

    textfile::WriteAll(folder + "Alerts.dat", textfile::JoinLines(lines));
    QCOMPARE(Snapshot(folder), FileSet({{"Alerts.dat", after}}));
}

void TextFilesTest::unstorableCharacterIsRefused_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("character");
    QTest::addColumn<QString>("codePoint");
    const QString han(QChar(0x65E5));
    const QString emoji = QString::fromUtf8("\xF0\x9F\x98\x80");  // U+1F600
    const QString omega(QChar(0x03A9));
    QTest::newRow("CJK character") << "Meeting " + han << han << "U+65E5";
    QTest::newRow("emoji") << "Lunch " + emoji + " at noon" << emoji << "U+1F600";
    QTest::newRow("first of several") << omega + "x" + han << omega << "U+03A9";
    QTest::newRow("after storable accents and euro")
        << QString(QChar(0xD5)) + QChar(0x20AC) + QChar(0xE9) + han << han << "U+65E5";
    QTest::newRow("emoji before another unstorable character")
        << "ab" + emoji + han << emoji << "U+1F600";
    QTest::newRow("after a control character 26")
        << QString(QChar(0x1A)) + "a" + han << han << "U+65E5";
}

void TextFilesTest::unstorableCharacterIsRefused() {
    QFETCH(QString, text);
    QFETCH(QString, character);
    QFETCH(QString, codePoint);
    QCOMPARE(textfile::FirstUnstorableCharacter(text), std::optional<QString>(character));

    QTemporaryDir dir;
    const QString folder = dir.path() + "/";
    const QByteArray old = QByteArray::fromHex("4f6c640d0af3");
    MakeFiles(folder, {{"Notes.dat", old}});
    try {
        textfile::WriteAll(folder + "Notes.dat", text);
        QFAIL("the text was written");
    } catch (const VbError& error) {
        QCOMPARE(error.number(), err::InvalidProcedureCall);
        QVERIFY2(error.description().contains(character), qPrintable(error.description()));
        QVERIFY2(error.description().contains(codePoint), qPrintable(error.description()));
    }
    QCOMPARE(Snapshot(folder), FileSet({{"Notes.dat", old}}));
}

void TextFilesTest::backupNames_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("backup");
    QTest::newRow("marks") << "2024Marks.dat"
                           << "2024Marks.bak";
    QTest::newRow("two dots") << "My.Plan.pln"
                              << "My.Plan.bak";
    QTest::newRow("no extension") << "Notes"
                                  << "Notes.bak";
    QTest::newRow("dot in folder only") << "v1.2\\Notes"
                                        << "v1.2\\Notes.bak";
    QTest::newRow("in a year folder") << "2024\\Notes.dat"
                                      << "2024\\Notes.bak";
}

void TextFilesTest::backupNames() {
    QFETCH(QString, name);
    QFETCH(QString, backup);
    QCOMPARE(BackupName(name), backup);
}

void TextFilesTest::writeWithBackup_data() {
    QTest::addColumn<FileSet>("before");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("content");
    QTest::addColumn<FileSet>("after");
    const QByteArray older = "older\r\n";
    const QByteArray old = "old\r\n";
    const QString content = QString("01/05/26:000100:1") + QChar(0xD5) + QChar(0xD2) + "2";
    const QByteArray bytes = QByteArray::fromHex("30312f30352f32363a3030303130303a31d5d232");
    QTest::newRow("first save") << FileSet{} << "2024Marks.dat" << content
                                << FileSet{{"2024Marks.dat", bytes}};
    QTest::newRow("current becomes the backup")
        << FileSet{{"2024Marks.dat", old}} << "2024Marks.dat" << content
        << FileSet{{"2024Marks.bak", old}, {"2024Marks.dat", bytes}};
    QTest::newRow("older backup replaced")
        << FileSet{{"2024Marks.dat", old}, {"2024Marks.bak", older}} << "2024Marks.dat" << content
        << FileSet{{"2024Marks.bak", old}, {"2024Marks.dat", bytes}};
    QTest::newRow("backup in another case replaced")
        << FileSet{{"2024Marks.dat", old}, {"2024MARKS.BAK", older}} << "2024Marks.dat" << content
        << FileSet{{"2024Marks.bak", old}, {"2024Marks.dat", bytes}};
    QTest::newRow("empty content leaves only the backup")
        << FileSet{{"2024Marks.dat", old}, {"2024Marks.bak", older}} << "2024Marks.dat"
        << "" << FileSet{{"2024Marks.bak", old}};
    QTest::newRow("nothing to save and nothing saved before") << FileSet{} << "2024Marks.dat"
                                                              << "" << FileSet{};
    QTest::newRow("backup alone is kept when there is no current file")
        << FileSet{{"2024Marks.bak", older}} << "2024Marks.dat" << content
        << FileSet{{"2024Marks.bak", older}, {"2024Marks.dat", bytes}};
    QTest::newRow("in a year folder")
        << FileSet{{"2024/Notes.dat", old}} << "2024\\Notes.dat" << content
        << FileSet{{"2024/Notes.bak", old}, {"2024/Notes.dat", bytes}};
    QTest::newRow("other files untouched")
        << FileSet{{"2024Marks.dat", old}, {"2025Marks.dat", older}} << "2024Marks.dat" << content
        << FileSet{{"2024Marks.bak", old}, {"2024Marks.dat", bytes}, {"2025Marks.dat", older}};
    // A data folder copied from another machine may spell the files in another case: the file
    // found becomes the backup, and the folder is left with the prescribed spellings only.
    QTest::newRow("current in another case becomes the backup")
        << FileSet{{"2024MARKS.DAT", old}, {"2024marks.bak", older}} << "2024Marks.dat" << content
        << FileSet{{"2024Marks.bak", old}, {"2024Marks.dat", bytes}};
    QTest::newRow("other spellings beside the exact one removed")
        << FileSet{{"2024Marks.dat", old}, {"2024marks.DAT", older}, {"2024MARKS.bak", older}}
        << "2024Marks.dat" << content << FileSet{{"2024Marks.bak", old}, {"2024Marks.dat", bytes}};
    QTest::newRow("empty content removes the current file in another case")
        << FileSet{{"2024marks.DAT", old}} << "2024Marks.dat"
        << "" << FileSet{{"2024Marks.bak", old}};
    QTest::newRow("leftovers of a save cut short are replaced")
        << FileSet{{"2024Marks.dat", old},
                   {"2024Marks.dat.saving", "to"},
                   {"2024Marks.bak.saving", "rn"}}
        << "2024Marks.dat" << content << FileSet{{"2024Marks.bak", old}, {"2024Marks.dat", bytes}};
}

void TextFilesTest::writeWithBackup() {
    QFETCH(FileSet, before);
    QFETCH(QString, name);
    QFETCH(QString, content);
    QFETCH(FileSet, after);
    QTemporaryDir dir;
    const QString folder = MakeAppFolder(dir.path());
    MakeFiles(folder, before);
    if (name.contains('\\'))
        QDir().mkpath(folder + name.section('\\', 0, 0));

    textfile::WriteWithBackup(folder, name, content);
    QCOMPARE(Snapshot(folder), after);
}

void TextFilesTest::writeWithBackupRefusesUnstorableText() {
    QTemporaryDir dir;
    const QString folder = MakeAppFolder(dir.path());
    const FileSet before{{"2024Marks.dat", "old\r\n"}, {"2024Marks.bak", "older\r\n"}};
    MakeFiles(folder, before);
    QVERIFY_THROWS_EXCEPTION(VbError, textfile::WriteWithBackup(folder, "2024Marks.dat",
                                                                "ok\r\n" + QString(QChar(0x4E00))));
    QCOMPARE(Snapshot(folder), before);
}

ORVANTA_TEST_MAIN(TextFilesTest)
#include "tst_text_files.moc"
