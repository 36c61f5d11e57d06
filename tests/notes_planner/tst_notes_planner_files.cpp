// "Notes.dat" and "Planner.dat": their bytes, their order, the two years kept apart, and
// nothing lost to a faulty line, an unstorable character or a year over its 366 pages.
#include <QTest>

#include "TestEnv.h"
#include "shell/ShellMessages.h"
#include "shell/TextFile.h"

namespace {

const QDate kMarch7(2026, 3, 7);  // a Saturday: cell 02 06 00

PlannerPage PageWith(const QString& firstLine) {
    PlannerPage page;
    page.times[0] = "06:00 AM";
    page.slotTexts[0] = firstLine;
    return page;
}

QByteArray PlannerLine(const QByteArray& key, const QByteArray& code, const PlannerPage& page) {
    return key + ":" + code + ":" + textfile::Encode(BuildPlannerRecord(page)) + "\r\n";
}

}  // namespace

class NotesPlannerFilesTest : public QObject {
    Q_OBJECT

private slots:
    void notesKeepTheirFirstPlaceAndDropBlankOnes() {
        TestEnv env;
        env.select(kMarch7);
        NotesStore& notes = env.state->notes;
        const auto save = [&](const QDate& date, const QString& text) {
            env.dialogs.ExpectMsgBox("Notes Saved", vb::OKOnly, "");
            env.select(date);
            QVERIFY(notes.SaveThisYearsNotes(date, text));
        };
        save(kMarch7, "a\r\nb");
        save(QDate(2026, 1, 1), "New year");
        save(QDate(2026, 1, 2), "   ");
        save(kMarch7, "a\r\nb\u00e9");
        QCOMPARE(env.read("2026/Notes.dat"),
                 "03/07/26:020600:a\xd5\xd2"
                 "b\xe9\r\n01/01/26:000400:New year\r\n");
        notes.ReadThisYearsNotes();
        QVERIFY(!notes.HasNote(QDate(2026, 1, 2)));
        env.select(kMarch7);
        const ShownNote shown = notes.DisplayThisNote();
        QCOMPARE(shown.caption, "Notes for March 7, 2026");
        QCOMPARE(shown.text, "a\r\nb\u00e9");
        VERIFY_DIALOGS(env.dialogs);
    }

    // The cell code is kept as the file has it: the flag goes to that cell, and the code is
    // written back unchanged. Each year's flags stay with its own year.
    void cellCodesAreStoredAndYearsKeptApart() {
        TestEnv env;
        env.write("2026/notes.DAT", "03/07/26:020601:stored code\r\n");
        env.write("2027/Notes.dat", "05/01/27:040600:next year\r\n");
        env.write("2026/Planner.dat", PlannerLine("03/08/26", "020000", PageWith("x")));
        env.select(kMarch7);
        NotesStore& notes = env.state->notes;
        QVERIFY(notes.HasNote(QDate(2026, 3, 14)));  // the day in cell 02 06 01
        QVERIFY(!notes.HasNote(kMarch7));
        QVERIFY(notes.HasNote(QDate(2027, 5, 1)));
        QVERIFY(!notes.HasNote(QDate(2026, 5, 1)));
        QVERIFY(env.state->planner.HasPlanner(QDate(2026, 3, 1)));
        QVERIFY(!env.state->planner.HasPlanner(QDate(2027, 3, 1)));
        env.select(QDate(2026, 2, 1));
        env.dialogs.ExpectMsgBox("Notes Saved", vb::OKOnly, "");
        notes.SaveThisYearsNotes(QDate(2026, 2, 1), "second");
        QCOMPARE(env.read("2026/notes.DAT"),
                 "03/07/26:020601:stored code\r\n02/01/26:010000:second\r\n");
        VERIFY_DIALOGS(env.dialogs);
    }

    void faultyLineKeepsEarlierLinesAndBlocksTheSave_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("procedure");
        QTest::newRow("notes") << "2026/Notes.dat"
                               << "ReadThisYearsNotes";
        QTest::newRow("planner") << "2026/Planner.dat"
                                 << "ReadThisYearsPlanner";
    }
    void faultyLineKeepsEarlierLinesAndBlocksTheSave() {
        QFETCH(QString, file);
        QFETCH(QString, procedure);
        TestEnv env;
        const QByteArray bytes =
            "03/07/26:020600:kept\r\n03/08/26:02 000:bad\r\n03/09/26:020100:x\r\n";
        env.write(file, bytes);
        const QString fileName = QString(file).replace('/', '\\');
        env.expectProgramError(procedure, 13, FaultDescription("Type mismatch", fileName, 2));
        env.select(kMarch7);
        const bool notes = file.endsWith("Notes.dat");
        QVERIFY(notes ? env.state->notes.HasNote(kMarch7) : env.state->planner.HasPlanner(kMarch7));
        QVERIFY(!env.state->notes.HasNote(QDate(2026, 3, 9)));
        env.dialogs.ExpectMsgBox(PartlyReadFileMessage(fileName, 2), kWarningStyle, "");
        QVERIFY(notes ? !env.state->notes.SaveThisYearsNotes(kMarch7, "new")
                      : !env.state->planner.SaveThisYearsPlannerFile());
        QCOMPARE(env.read(file), bytes);
        VERIFY_DIALOGS(env.dialogs);
    }

    void unstorableCharacterChangesNothing() {
        TestEnv env;
        env.select(kMarch7);
        env.dialogs.ExpectMsgBox(textfile::UnstorableCharacterMessage("\u65e5"), kWarningStyle, "");
        QVERIFY(!env.state->notes.SaveThisYearsNotes(kMarch7, "\u65e5"));
        env.dialogs.ExpectMsgBox(textfile::UnstorableCharacterMessage("\u65e5"), kWarningStyle, "");
        QVERIFY(!env.state->planner.SavePlannerRecord(kMarch7, PageWith("\u65e5")));
        QVERIFY(!env.exists("2026"));
        QCOMPARE(env.state->notes.years[Year::This].Count(), 0);
        VERIFY_DIALOGS(env.dialogs);
    }

    void plannerPagesAreWrittenOnceInOrderAndClearedOnesDropped() {
        TestEnv env;
        env.select(kMarch7);
        PlannerStore& planner = env.state->planner;
        QVERIFY(planner.SavePlannerRecord(kMarch7, PageWith("first")));
        QVERIFY(planner.SavePlannerRecord(QDate(2026, 1, 1), PageWith("")));
        QVERIFY(planner.SavePlannerRecord(QDate(2026, 1, 2), PageWith("third")));
        QVERIFY(planner.SavePlannerRecord(kMarch7, PageWith("first again")));
        env.dialogs.ExpectMsgBox("Planner Records Updated", vb::OKOnly, "");
        QVERIFY(planner.SaveThisYearsPlannerFile());
        QCOMPARE(env.read("2026/Planner.dat"),
                 PlannerLine("03/07/26", "020600", PageWith("first again")) +
                     PlannerLine("01/02/26", "000500", PageWith("third")));
        env.select(QDate(2027, 1, 1));
        QVERIFY(planner.SavePlannerRecord2(QDate(2028, 1, 1), PageWith("next")));
        env.dialogs.ExpectMsgBox("Planner Saved", vb::OKOnly, "");
        QVERIFY(planner.SaveNextYearsPlannerFile());
        QCOMPARE(env.read("2028/Planner.dat"), PlannerLine("01/01/28", "000600", PageWith("next")));
        VERIFY_DIALOGS(env.dialogs);
    }

    void the367thPageIsRefusedAndTheFileKept() {
        TestEnv env;
        env.select(kMarch7);
        PlannerStore& planner = env.state->planner;
        DatedEntries& year = planner.years[Year::This];
        for (int i = 0; i < 366; ++i)
            year.payloads[year.Append(QStringLiteral("key%1").arg(i))] = "x";
        env.write("2026/Planner.dat", "kept");
        env.dialogs.ExpectMsgBox("Bad Planner Count", vb::OKOnly, "");
        QVERIFY(!planner.SavePlannerRecord(kMarch7, PageWith("one too many")));
        QCOMPARE(year.Count(), 367);
        env.dialogs.ExpectMsgBox("Bad Planner Count", vb::OKOnly, "");
        QVERIFY(!planner.SaveThisYearsPlannerFile());
        QCOMPARE(env.read("2026/Planner.dat"), "kept");
        VERIFY_DIALOGS(env.dialogs);
    }

    void reportExtractsFlagOnlyPagesWithExpensesOrMileage() {
        PlannerPage page = PageWith("meeting");
        page.slotTexts[kFirstToDoSlot] = "to-do only";
        PlannerExtract extract = ExtractOf(textfile::Encode(BuildPlannerRecord(page)));
        QVERIFY(!extract.hasExpenses && !extract.hasMileage);
        page.slotTexts[kFirstAmountSlot + 5] = "3.00";
        page.slotTexts[kFirstMilesSlot + 4] = "7";
        extract = ExtractOf(textfile::Encode(BuildPlannerRecord(page)));
        QVERIFY(extract.hasExpenses && extract.hasMileage);
        QCOMPARE(extract.amounts[5], "3.00      ");
        QCOMPARE(extract.miles[4], "7         ");
    }
};

ORVANTA_TEST_MAIN(NotesPlannerFilesTest)
#include "tst_notes_planner_files.moc"
