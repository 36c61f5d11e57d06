// Searching the notes and planner files for a phrase: case folded for every letter of the code
// page and for nothing else, a note's line breaks kept apart from letters, only the payload
// searched, each date once, and nothing read past a faulty line.
#include <QTest>

#include "TestEnv.h"
#include "notes_planner/PhraseSearch.h"
#include "shell/TextFile.h"

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
        QTest::newRow("sharp s is no SS") << "SS"
                                          << QByteArray(
                                                 "Stra\xdf"
                                                 "e")
                                          << false << false;
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

    // The first and the last letter of every run of letters that the search folds, and the
    // characters just outside each run, which it must not fold. Each pair is tried both ways,
    // the letter first and last in the phrase, in a short text and in a long one.
    void foldsEveryCaseRangeToItsEnds_data() {
        QTest::addColumn<QString>("capital");
        QTest::addColumn<QString>("small");
        QTest::addColumn<bool>("folded");
        const auto pair = [](const char* name, const char16_t* capital, const char16_t* small,
                             bool folded) {
            QTest::newRow(name) << QString::fromUtf16(capital) << QString::fromUtf16(small)
                                << folded;
        };
        pair("A", u"A", u"a", true);
        pair("Z", u"Z", u"z", true);
        pair("A grave", u"À", u"à", true);
        pair("O diaeresis", u"Ö", u"ö", true);
        pair("O stroke", u"Ø", u"ø", true);
        pair("thorn", u"Þ", u"þ", true);
        pair("S caron", u"Š", u"š", true);
        pair("OE", u"Œ", u"œ", true);
        pair("Z caron", u"Ž", u"ž", true);
        pair("Y diaeresis", u"Ÿ", u"ÿ", true);
        pair("at sign, before A", u"@", u"`", false);
        pair("bracket, after Z", u"[", u"{", false);
        pair("inverted question mark, before A grave", u"¿", u"ß", false);
        pair("times, between O diaeresis and O stroke", u"×", u"÷", false);
        pair("sharp s, after thorn", u"ß", u"ÿ", false);
        pair("angle quote, after S caron", u"‹", u"›", false);
    }
    void foldsEveryCaseRangeToItsEnds() {
        QFETCH(QString, capital);
        QFETCH(QString, small);
        QFETCH(bool, folded);
        for (const auto& [inPhrase, inText] : {std::pair{capital, small}, {small, capital}}) {
            for (const QString& phrase : {inPhrase + "oo", "oo" + inPhrase}) {
                const QByteArray text = textfile::Encode(QString(phrase).replace(inPhrase, inText));
                const PhraseMatcher matcher(phrase);
                QVERIFY(matcher.CanMatch());
                QVERIFY2(matcher.FoundIn(text) == folded, qPrintable(phrase));
                QVERIFY2(matcher.FoundIn(text + QByteArray(32, ' ')) == folded, qPrintable(phrase));
            }
        }
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
