// The planner record: every field at its character position, and back.
#include <QTest>

#include "notes_planner/PlannerRecord.h"

namespace {

const QChar kDone(char16_t(243));
const QChar kNotDone(char16_t(245));

// The record with text put at 1-based positions over blanks and ten "not done" marks.
QString Record(const QList<QPair<int, QString>>& fields) {
    QString record(4090, u' ');
    record += QString(10, kNotDone);
    for (const auto& [position, text] : fields)
        record.replace(position - 1, text.size(), text);
    return record;
}

}  // namespace

class PlannerRecordTest : public QObject {
    Q_OBJECT

private slots:
    void pageIsWrittenAtItsPositions_data() {
        QTest::addColumn<PlannerPage>("page");
        QTest::addColumn<QString>("record");
        PlannerPage empty;
        QTest::newRow("empty page") << empty << Record({});

        PlannerPage bold;
        bold.times[0] = "06:00 AM";
        bold.bold[0] = true;
        bold.slotTexts[0] = "Staff meeting";
        QTest::newRow("bold line") << bold << Record({{1, "B06:00 AM Staff meeting"}});
        bold.bold[0] = false;
        QTest::newRow("normal line") << bold << Record({{1, "06:00 AM  Staff meeting"}});

        PlannerPage push;
        push.times[15] = "";
        push.slotTexts[15] = QString(151, u'x');
        QTest::newRow("continuance line cut to 150")
            << push << Record({{2401 + 10, QString(150, u'x')}});

        PlannerPage sections;
        sections.slotTexts[kFirstToDoSlot + 9] = "last to-do";
        sections.done[0] = sections.done[9] = true;
        sections.slotTexts[kFirstExpenseSlot] = "Lunch";
        sections.slotTexts[kFirstAmountSlot + 5] = "12345678901";
        sections.slotTexts[kTotalExpendituresSlot] = "12.50";
        sections.slotTexts[kFirstDestinationSlot + 4] = "Springfield";
        sections.slotTexts[kFirstBeginSlot] = "12000";
        sections.slotTexts[kFirstEndSlot + 4] = "12042";
        sections.slotTexts[kFirstMilesSlot + 4] = "42";
        sections.slotTexts[kTotalMileageSlot] = "42";
        QString expected = Record({{3101, "last to-do"},
                                   {3161, "Lunch"},
                                   {3511, "1234567890"},
                                   {3521, "12.50"},
                                   {3851, "Springfield"},
                                   {3931, "12000"},
                                   {4021, "12042"},
                                   {4071, "42"},
                                   {4081, "42"}});
        expected[4090] = expected[4099] = kDone;
        QTest::newRow("every section") << sections << expected;
    }
    void pageIsWrittenAtItsPositions() {
        QFETCH(PlannerPage, page);
        QFETCH(QString, record);
        QCOMPARE(BuildPlannerRecord(page), record);
        // Reading gives the page back, text cut to its field's width.
        PlannerPage cut = page;
        for (int slot = 0; slot < kPlannerSlots; ++slot)
            cut.slotTexts[slot].truncate(SlotWidth(slot));
        QCOMPARE(ParsePlannerRecord(record), cut);
    }

    void shortOrDamagedRecordReadsAsBlankAndNotDone_data() {
        QTest::addColumn<QString>("record");
        QTest::newRow("empty") << QString();
        QTest::newRow("cut before the done marks") << Record({{11, "text"}}).left(4090);
        QTest::newRow("blanks for done marks")
            << Record({{11, "text"}}).left(4090) + QString(10, u' ');
    }
    void shortOrDamagedRecordReadsAsBlankAndNotDone() {
        QFETCH(QString, record);
        const PlannerPage page = ParsePlannerRecord(record);
        QCOMPARE(page.done, (std::array<bool, kPlannerToDoItems>{}));
        QCOMPARE(page.slotTexts[0], record.isEmpty() ? "" : "text");
        QCOMPARE(page.slotTexts[1], "");
    }

    void blankRecordsHaveNoTextAndNoDoneMark_data() {
        QTest::addColumn<QString>("record");
        QTest::addColumn<bool>("blank");
        QTest::newRow("cleared page") << Record({}) << true;
        QTest::newRow("time labels only") << Record({{1, "B06:00 AM "}, {161, "07:00 AM"}}) << true;
        QTest::newRow("one done mark") << Record({}).replace(4095, 1, kDone) << false;
        QTest::newRow("a total") << Record({{4081, "4"}}) << false;
        QTest::newRow("line text") << Record({{171, "x"}}) << false;
    }
    void blankRecordsHaveNoTextAndNoDoneMark() {
        QFETCH(QString, record);
        QFETCH(bool, blank);
        QCOMPARE(IsBlankRecord(record), blank);
    }

    void tagsNameEachSlotsWidthAndKind() {
        QCOMPARE(SlotTag(3, LineKind::Push), "150.Push");
        const QStringList tags = {SlotTag(0),  SlotTag(16), SlotTag(26), SlotTag(32), SlotTag(38),
                                  SlotTag(39), SlotTag(44), SlotTag(49), SlotTag(54), SlotTag(59)};
        QCOMPARE(tags, QStringList({"150.Stop", "060.ToDo", "050.Expense", "010.ExpAmt", "",
                                    "080.Dest", "010.Begin", "010.End", "010.Total", ""}));
    }
};

Q_DECLARE_METATYPE(PlannerPage)

QTEST_APPLESS_MAIN(PlannerRecordTest)
#include "tst_planner_record.moc"
