// Searching the notes and planner files for a phrase: case folded for every letter of the code
// page and for nothing else, a note's line breaks kept apart from letters, only the payload
// searched, each date once, and nothing read past a faulty line.
#include <QTest>

#include "TestEnv.h"
#include "notes_planner/PhraseSearch.h"

class PhraseSearchTest : public QObject {
    Q_OBJECT

private slots:
    void matchesLettersWithoutRegardToCase_data() {
        QTest::addColumn<QString>("phrase");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("inNote");
        QTest::addColumn<bool>("found");
        QTest::newRow("umlaut") << "MÜLLER" << QByteArray("Caf\xe9 M\xfcller") << false << true;
        QTest::newRow("lower finds upper") << "müller" << QByteArray("M\xdcLLER") << false << true;
        QTest::newRow("caron") << "ŠKODA" << QByteArray("\x9akoda") << false << true;
        QTest::newRow("ligature") << "œuvre" << QByteArray("\x8cUVRE") << false << true;
        QTest::newRow("y diaeresis") << "Ÿ" << QByteArray("\xff") << false << true;
        QTest::newRow("sharp s is no SS") << "SS"
                                          << QByteArray(
                                                 "Stra\xdf"
                                                 "e")
                                          << false << false;
        QTest::newRow("times is no divide") << "×" << QByteArray("\xf7") << false << false;
        QTest::newRow("long text, late")
            << "Zürich" << QByteArray(40, ' ') + "Z\xdcRICH" << false << true;
        QTest::newRow("long text, early") << "Zürich"
                                          << "Z\xdcRICH" + QByteArray(40, ' ') << false << true;
        QTest::newRow("cut short")
            << "Zürich" << QByteArray(40, ' ') + "Z\xfcric" << false << false;
        QTest::newRow("done mark in a page") << "õ"
                                             << QByteArray(
                                                    "a\xd5\xd2"
                                                    "b")
                                             << false << true;
        QTest::newRow("line break in a note") << "õ"
                                              << QByteArray(
                                                     "a\xd5\xd2"
                                                     "b")
                                              << true << false;
        QTest::newRow("letter in a note") << "Õ"
                                          << QByteArray(
                                                 "p\xf5"
                                                 "e")
                                          << true << true;
        QTest::newRow("not in the code page")
            << "日" << QByteArray("\xe6\x97\xa5") << false << false;
    }
    void matchesLettersWithoutRegardToCase() {
        QFETCH(QString, phrase);
        QFETCH(QByteArray, bytes);
        QFETCH(bool, inNote);
        QFETCH(bool, found);
        const PhraseMatcher matcher(phrase);
        QCOMPARE(matcher.FoundIn(bytes, inNote ? SearchLocation::Notes : SearchLocation::Planners),
                 found);
    }

    void findsEachDateOnceInFileOrder_data() {
        QTest::addColumn<QString>("phrase");
        QTest::addColumn<int>("month");
        QTest::addColumn<QList<QDate>>("notes");
        QTest::addColumn<QList<QDate>>("planners");
        const QDate march7(2026, 3, 7), march9(2026, 3, 9), january15(2026, 1, 15);
        QTest::newRow("all months")
            << "MÜLLER" << 0 << QList{march7, january15} << QList{march7, january15};
        QTest::newRow("one month") << "müller" << 1 << QList{january15} << QList{january15};
        QTest::newRow("after the faulty line") << "müller" << 4 << QList<QDate>{} << QList<QDate>{};
        QTest::newRow("date key") << "03/09" << 0 << QList<QDate>{} << QList<QDate>{};
        QTest::newRow("cell code") << "020201" << 0 << QList<QDate>{} << QList<QDate>{};
        QTest::newRow("payload") << "dentist" << 0 << QList{march9} << QList{march9};
        QTest::newRow("line break") << "õ" << 0 << QList<QDate>{} << QList{march7};
    }
    void findsEachDateOnceInFileOrder() {
        QFETCH(QString, phrase);
        QFETCH(int, month);
        QFETCH(QList<QDate>, notes);
        QFETCH(QList<QDate>, planners);
        TestEnv env;
        const QByteArray lines =
            "03/07/26:020600:Lunch with M\xfcller\xd5\xd2"
            "at noon\r\n"
            "03/09/26:020201:Dentist\r\n"
            "03/07/26:020600:Call M\xdcLLER\r\n"
            "01/15/26:000402:Invoice for m\xfcller\r\n"
            "02/30/26:010101:M\xfcller on no day\r\n"
            "04/02/26:0304x1:M\xfcller after a faulty line\r\n"
            "04/03/26:030501:M\xfcller never read\r\n";
        env.write("2026/notes.dat", lines);
        env.write("2026/Planner.dat", lines);
        const PhraseMatcher matcher(phrase);
        QCOMPARE(SearchYear(env.folder(), 2026, month, SearchLocation::Notes, matcher), notes);
        QCOMPARE(SearchYear(env.folder(), 2026, month, SearchLocation::Planners, matcher),
                 planners);
        const YearSearchResult result =
            SearchYearFile(env.folder(), 2026, month, SearchLocation::Notes, matcher);
        QCOMPARE(result.faultyLine, 6);
        QCOMPARE(result.error, 13);
    }
};

ORVANTA_TEST_MAIN(PhraseSearchTest)
#include "tst_phrase_search.moc"
