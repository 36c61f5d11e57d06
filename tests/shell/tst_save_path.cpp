// The one way every data file is saved: fields that would break a line or cannot be stored are
// refused by name, a file read only in part is never saved over (the faulty line named), and a
// file another program changed since it was read is merged record by record, the user deciding
// where both changed the same record.
#include <QTest>

#include "TestEnv.h"
#include "shell/SavePath.h"
#include "shell/ShellMessages.h"

namespace {

RecordLayout Layout(RecordLayout::Key key, int keyFields = 1) {
    RecordLayout layout;
    layout.key = key;
    layout.keyFields = keyFields;
    return layout;
}

// A file of "key:value" lines as an editor of the file keeps it: read once, then saved whole.
struct Editor {
    Editor(TestEnv& env_, const RecordLayout& layout_) : env(env_), layout(layout_) {}

    bool Read() {
        lines.clear();
        return ReadDataFile(env.state->services, "ReadList", file, [&](QByteArrayView line, int) {
            if (line.startsWith("bad"))
                Raise(err::TypeMismatch);
            lines << LineText(line);
        });
    }
    SaveResult Save(const QStringList& records) {
        Records out(layout);
        for (const QString& record : records)
            out.Add(record.split(u'|'));
        return SaveDataFile(env.state->services, "SaveList", file, out);
    }

    TestEnv& env;
    RecordLayout layout;
    DataFile file{QStringLiteral("List.dat")};
    QStringList lines;
};

}  // namespace

class SavePathTest : public QObject {
    Q_OBJECT

private slots:
    void fieldsThatWouldBreakALineAreRefused_data() {
        QTest::addColumn<QString>("field");
        QTest::addColumn<bool>("last");
        QTest::addColumn<bool>("lineBreaks");
        QTest::addColumn<QString>("problem");
        const QString colon = SeparatorName(u':');
        QTest::newRow("CR LF") << "Agenda:\r\nitem two" << true << false
                               << FieldBreaksLineMessage("Agenda:\r\nitem two", kLineBreakName);
        QTest::newRow("lone LF") << "a\nb" << false << false
                                 << FieldBreaksLineMessage("a\nb", kLineBreakName);
        QTest::newRow("colon before the last field")
            << "Smith: John" << false << false << FieldBreaksLineMessage("Smith: John", colon);
        QTest::newRow("colon in the last field") << "10:30 call" << true << false << QString();
        QTest::newRow("tab") << "a\tb" << false << false << QString();
        QTest::newRow("not in the code page")
            << QString::fromUtf8("done \u2713") << true << false
            << textfile::UnstorableCharacterMessage(QString::fromUtf8("\u2713"));
        QTest::newRow("line break kept in a note") << "one\r\ntwo" << true << true << QString();
        QTest::newRow("the note's line-break character")
            << QString::fromUtf8("S\u00d5O") << true << true
            << LineBreakCharacterMessage(QString::fromUtf8("\u00d5"));
        QTest::newRow("that character elsewhere")
            << QString::fromUtf8("S\u00d5O") << true << false << QString();
    }
    void fieldsThatWouldBreakALineAreRefused() {
        QFETCH(QString, field);
        QFETCH(bool, last);
        QFETCH(bool, lineBreaks);
        QFETCH(QString, problem);
        RecordLayout layout;
        layout.encodesLineBreaks = lineBreaks;
        QCOMPARE(FieldProblem(layout, field, last).value_or(QString()), problem);

        // A refused save changes nothing on disk.
        TestEnv env;
        env.write("List.dat", "old\r\n");
        Editor editor(env, layout);
        QVERIFY(editor.Read());
        if (!problem.isEmpty())
            env.dialogs.ExpectMsgBox(problem, kWarningStyle, {});
        const QString record = last ? QStringLiteral("k|") + field : field + QStringLiteral("|v");
        QCOMPARE(editor.Save({record}) == SaveResult::Refused, !problem.isEmpty());
        if (!problem.isEmpty())
            QCOMPARE(env.read("List.dat"), QByteArray("old\r\n"));
        VERIFY_DIALOGS(env.dialogs);
    }

    void aPartlyReadFileIsNeverSavedOver() {
        TestEnv env;
        env.write("List.dat", "a:1\r\nb:2\r\nbad line\r\nc:3\r\n");
        Editor editor(env, Layout(RecordLayout::Key::LeadingFields));
        // The report names the file and the faulty line, in the box and in Error.log.
        env.expectProgramError("ReadList", err::TypeMismatch, "Type mismatch (List.dat, line 3)");
        QVERIFY(!editor.Read());
        QCOMPARE(editor.lines, QStringList({"a:1", "b:2"}));
        env.dialogs.ExpectMsgBox(PartlyReadFileMessage("List.dat", 3), kWarningStyle, {});
        QCOMPARE(editor.Save({"a|1"}), SaveResult::Refused);
        QCOMPARE(env.read("List.dat"), QByteArray("a:1\r\nb:2\r\nbad line\r\nc:3\r\n"));
        QVERIFY(env.read("Error.log").contains("Type mismatch (List.dat, line 3)"));
        VERIFY_DIALOGS(env.dialogs);
    }

    // Another program changes the file between the editor's read and its save.
    void changesMadeMeanwhileAreMerged_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QStringList>("ours");
        QTest::addColumn<QByteArray>("theirs");
        QTest::addColumn<int>("answer");  // to the conflict question; 0 when none is asked
        QTest::addColumn<QByteArray>("after");
        const int byKey = int(RecordLayout::Key::LeadingFields);
        const int byLine = int(RecordLayout::Key::WholeLine);
        const int byPlace = int(RecordLayout::Key::Position);
        QTest::newRow("their new record kept")
            << byKey << QByteArray("a:1\r\nb:1\r\n") << QStringList{"a|2", "b|1"}
            << QByteArray("a:1\r\nb:1\r\nc:1\r\n") << 0 << QByteArray("a:2\r\nb:1\r\nc:1\r\n");
        QTest::newRow("their change kept, ours added")
            << byKey << QByteArray("a:1\r\nb:1\r\n") << QStringList{"a|1", "b|1", "d|4"}
            << QByteArray("a:9\r\nb:1\r\n") << 0 << QByteArray("a:9\r\nb:1\r\nd:4\r\n");
        QTest::newRow("deleted here, untouched there")
            << byKey << QByteArray("a:1\r\nb:1\r\n") << QStringList{"a|1"}
            << QByteArray("b:1\r\na:1\r\nc:1\r\n") << 0 << QByteArray("a:1\r\nc:1\r\n");
        QTest::newRow("same change on both sides")
            << byKey << QByteArray("a:1\r\n") << QStringList{"a|2"} << QByteArray("a:2\r\nz:0\r\n")
            << 0 << QByteArray("a:2\r\nz:0\r\n");
        QTest::newRow("both changed it: Yes keeps ours")
            << byKey << QByteArray("a:1\r\nb:1\r\n") << QStringList{"a|2", "b|1"}
            << QByteArray("a:3\r\nb:5\r\n") << int(vb::Yes) << QByteArray("a:2\r\nb:5\r\n");
        QTest::newRow("both changed it: No writes nothing")
            << byKey << QByteArray("a:1\r\n") << QStringList{"a|2"} << QByteArray("a:3\r\n")
            << int(vb::No) << QByteArray("a:3\r\n");
        QTest::newRow("changed here, deleted there")
            << byKey << QByteArray("a:1\r\nb:1\r\n") << QStringList{"a|2", "b|1"}
            << QByteArray("b:1\r\n") << int(vb::Yes) << QByteArray("b:1\r\na:2\r\n");
        QTest::newRow("file deleted there, nothing changed here")
            << byKey << QByteArray("a:1\r\n") << QStringList{"a|1", "n|1"} << QByteArray() << 0
            << QByteArray("n:1\r\n");
        QTest::newRow("lists: both added lines")
            << byLine << QByteArray("x\r\ny\r\n") << QStringList{"x", "y", "z"}
            << QByteArray("w\r\nx\r\ny\r\n") << 0 << QByteArray("w\r\nx\r\ny\r\nz\r\n");
        QTest::newRow("lists: a line of two alike removed once")
            << byLine << QByteArray("x\r\nx\r\n") << QStringList{"x"}
            << QByteArray("x\r\nx\r\nq\r\n") << 0 << QByteArray("x\r\nq\r\n");
        QTest::newRow("places: each side's line kept")
            << byPlace << QByteArray("a\r\nb\r\n") << QStringList{"a", "B"}
            << QByteArray("A\r\nb\r\n") << 0 << QByteArray("A\r\nB\r\n");
        QTest::newRow("same bytes written again: ours as it is")
            << byLine << QByteArray("x\r\ny\r\n") << QStringList{"y", "x"}
            << QByteArray("x\r\ny\r\n") << 0 << QByteArray("y\r\nx\r\n");
    }
    void changesMadeMeanwhileAreMerged() {
        QFETCH(int, key);
        QFETCH(QByteArray, before);
        QFETCH(QStringList, ours);
        QFETCH(QByteArray, theirs);
        QFETCH(int, answer);
        QFETCH(QByteArray, after);
        TestEnv env;
        env.write("List.dat", before);
        RecordLayout layout = Layout(RecordLayout::Key(key));
        if (layout.key != RecordLayout::Key::LeadingFields)
            layout.separator = QChar();
        Editor editor(env, layout);
        QVERIFY(editor.Read());
        if (theirs.isEmpty())
            QFile::remove(env.path("List.dat"));
        else
            env.write("List.dat", theirs);
        if (answer != 0)
            env.dialogs.ExpectMsgBox(
                ChangedOnDiskQuestion(
                    "List.dat", {key == int(RecordLayout::Key::Position) ? QStringLiteral("line 2")
                                                                         : QStringLiteral("a")}),
                vb::YesNo | vb::Exclamation, kChangedOnDiskTitle, answer);
        const SaveResult result = editor.Save(ours);
        QCOMPARE(env.read("List.dat"), after);
        QCOMPARE(result == SaveResult::Refused, answer == vb::No);
        VERIFY_DIALOGS(env.dialogs);
    }

    void whatAnEmptySaveLeaves_data() {
        QTest::addColumn<bool>("emptyFile");
        QTest::addColumn<bool>("backup");
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QByteArray>("backupFile");
        QTest::newRow("no file") << false << false << QByteArray("<missing>")
                                 << QByteArray("<missing>");
        QTest::newRow("an empty file")
            << true << false << QByteArray("") << QByteArray("<missing>");
        QTest::newRow("only the backup")
            << false << true << QByteArray("<missing>") << QByteArray("a:1\r\n");
    }
    void whatAnEmptySaveLeaves() {
        QFETCH(bool, emptyFile);
        QFETCH(bool, backup);
        QFETCH(QByteArray, file);
        QFETCH(QByteArray, backupFile);
        TestEnv env;
        env.write("List.dat", "a:1\r\n");
        RecordLayout layout;
        layout.whenEmpty =
            emptyFile ? RecordLayout::WhenEmpty::EmptyFile : RecordLayout::WhenEmpty::NoFile;
        layout.keepBackup = backup;
        Editor editor(env, layout);
        QVERIFY(editor.Read());
        QCOMPARE(editor.Save({}), SaveResult::Saved);
        QCOMPARE(env.read("List.dat"), file);
        QCOMPARE(env.read("List.bak"), backupFile);
    }
};

ORVANTA_TEST_MAIN(SavePathTest)
#include "tst_save_path.moc"
