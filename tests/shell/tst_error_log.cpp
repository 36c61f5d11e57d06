// The error report: shown in a "Program Error" box, then appended byte for byte to Error.log,
// which stops growing once a 16-bit write position can no longer address its end.

#include <QDir>
#include <QFile>
#include <QTest>
#include <stdexcept>

#include "shell/Services.h"
#include "shell/VbError.h"
#include "support/TestEnv.h"

namespace {

const QString kTitle = QStringLiteral("Program Error");
const QString kLogFailed = QStringLiteral("Error writing to Error.log.");

QString Report(const QString& when, const QString& procedure, const QString& number,
               const QString& description) {
    return when + "\r\nAn error occurred in " + procedure + ".\r\nError Number: " + number +
           "\r\nError Description: " + description + "\r\n\r\n";
}

QStringList FilesIn(const QString& folder) {
    return QDir(folder).entryList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
}

// The failing bodies a procedure's trap is tested with.
enum class Failure { TypeMismatch, EmptyNumber, Overflow, FileNotFound, OwnText, Std };

void Fail(Failure failure) {
    switch (failure) {
        case Failure::TypeMismatch:
            ToInt(u"12x");
            return;
        case Failure::EmptyNumber:
            ToInt(u"");
            return;
        case Failure::Overflow:
            ToInt(u"99999999999");
            return;
        case Failure::FileNotFound:
            Raise(err::FileNotFound);
        case Failure::OwnText:
            Raise(err::PathFileAccessError, "Cannot open 2024\\Planner.dat");
        case Failure::Std:
            throw std::runtime_error("unexpected state");
    }
}

}  // namespace

class ErrorLogTest : public QObject {
    Q_OBJECT

private slots:
    void reportShownThenAppended_data();
    void reportShownThenAppended();
    void reportsAppendInOrder();
    void logStopsGrowingAtTheLimit_data();
    void logStopsGrowingAtTheLimit();
    void logThatCrossedTheLimitTakesNoMore();
    void unwritableLogIsReportedAfterTheReport();
    void readOnlyLogIsMadeWritableAndAppended();
    void logSpelledInAnotherCaseIsAppended();
    void trapLogsUnderTheProcedureName_data();
    void trapLogsUnderTheProcedureName();
    void trapLetsSuccessPass();
    void wholeFieldsReadAsNumbers_data();
    void wholeFieldsReadAsNumbers();
};

void ErrorLogTest::reportShownThenAppended_data() {
    QTest::addColumn<QDateTime>("now");
    QTest::addColumn<QString>("description");
    QTest::addColumn<QString>("report");
    QTest::addColumn<QByteArray>("logBytes");
    const QString proc = "SaveThisYearsMarks";
    QTest::newRow("morning")
        << QDateTime(QDate(2026, 9, 7), QTime(10, 30, 0)) << "File not found"
        << Report("9/7/2026 10:30:00 AM", proc, "53", "File not found")
        << QByteArray(
               "9/7/2026 10:30:00 AM\r\nAn error occurred in SaveThisYearsMarks.\r\n"
               "Error Number: 53\r\nError Description: File not found\r\n\r\n");
    QTest::newRow("afternoon, no leading zeros")
        << QDateTime(QDate(2026, 1, 5), QTime(15, 4, 5)) << "File not found"
        << Report("1/5/2026 3:04:05 PM", proc, "53", "File not found")
        << Report("1/5/2026 3:04:05 PM", proc, "53", "File not found").toLatin1();
    QTest::newRow("midnight")
        << QDateTime(QDate(2027, 12, 31), QTime(0, 0, 0)) << "File not found"
        << Report("12/31/2027 12:00:00 AM", proc, "53", "File not found")
        << Report("12/31/2027 12:00:00 AM", proc, "53", "File not found").toLatin1();
    QTest::newRow("noon")
        << QDateTime(QDate(2027, 2, 28), QTime(12, 0, 9)) << "File not found"
        << Report("2/28/2027 12:00:09 PM", proc, "53", "File not found")
        << Report("2/28/2027 12:00:09 PM", proc, "53", "File not found").toLatin1();
    QTest::newRow("accented description in single bytes")
        << QDateTime(QDate(2026, 9, 7), QTime(10, 30, 0)) << QString::fromUtf8("Fichier déjà pris")
        << Report("9/7/2026 10:30:00 AM", proc, "53", QString::fromUtf8("Fichier déjà pris"))
        << QByteArray(
               "9/7/2026 10:30:00 AM\r\nAn error occurred in SaveThisYearsMarks.\r\n"
               "Error Number: 53\r\nError Description: Fichier d\xe9j\xe0 pris\r\n\r\n");
}

void ErrorLogTest::reportShownThenAppended() {
    QFETCH(QDateTime, now);
    QFETCH(QString, description);
    QFETCH(QString, report);
    QFETCH(QByteArray, logBytes);
    TestEnv env(now);
    env.dialogs.ExpectMsgBox(report, vb::OKOnly, kTitle);

    env.state->services.LogError("SaveThisYearsMarks", 53, description);
    VERIFY_DIALOGS(env.dialogs);
    QCOMPARE(env.read("Error.log").toHex(), logBytes.toHex());
    QCOMPARE(FilesIn(env.folder()), QStringList{"Error.log"});
}

void ErrorLogTest::reportsAppendInOrder() {
    TestEnv env(QDateTime(QDate(2026, 3, 1), QTime(9, 0, 0)));
    env.write("Error.log", "earlier\r\n");
    const QString first = Report("3/1/2026 9:00:00 AM", "ReadAlerts", "13", "Type mismatch");
    const QString second =
        Report("3/1/2026 9:15:30 AM", "SaveThisYearsNotes", "70", "Permission denied");
    env.dialogs.ExpectMsgBox(first, vb::OKOnly, kTitle).ExpectMsgBox(second, vb::OKOnly, kTitle);

    env.state->services.LogError("ReadAlerts", 13, "Type mismatch");
    env.clock.Set(QDateTime(QDate(2026, 3, 1), QTime(9, 15, 30)));
    env.state->services.LogError("SaveThisYearsNotes", 70, "Permission denied");
    VERIFY_DIALOGS(env.dialogs);
    QCOMPARE(env.read("Error.log"), "earlier\r\n" + (first + second).toLatin1());
}

void ErrorLogTest::logStopsGrowingAtTheLimit_data() {
    QTest::addColumn<int>("size");
    QTest::addColumn<bool>("appended");
    QTest::newRow("empty log") << 0 << true;
    QTest::newRow("32,765 bytes") << 32765 << true;
    QTest::newRow("32,766 bytes") << 32766 << true;
    QTest::newRow("32,767 bytes") << 32767 << false;
    QTest::newRow("32,768 bytes") << 32768 << false;
    QTest::newRow("100,000 bytes") << 100000 << false;
}

void ErrorLogTest::logStopsGrowingAtTheLimit() {
    QFETCH(int, size);
    QFETCH(bool, appended);
    TestEnv env;
    const QByteArray old(size, 'x');
    env.write("Error.log", old);
    const QString report = Report("9/7/2026 10:30:00 AM", "ReadBirthdays", "53", "File not found");
    env.dialogs.ExpectMsgBox(report, vb::OKOnly, kTitle);
    if (!appended)
        env.dialogs.ExpectMsgBox(kLogFailed, vb::OKOnly, "");

    env.state->services.LogError("ReadBirthdays", 53, "File not found");
    VERIFY_DIALOGS(env.dialogs);
    const QByteArray log = env.read("Error.log");
    QCOMPARE(log.size(), appended ? size + report.size() : size);
    QVERIFY(log == (appended ? old + report.toLatin1() : old));
}

void ErrorLogTest::logThatCrossedTheLimitTakesNoMore() {
    TestEnv env;
    const QByteArray old(32700, 'x');
    env.write("Error.log", old);
    const QString report = Report("9/7/2026 10:30:00 AM", "ReadAlerts", "13", "Type mismatch");
    QVERIFY(old.size() + report.size() > 32767);
    env.dialogs.ExpectMsgBox(report, vb::OKOnly, kTitle)
        .ExpectMsgBox(report, vb::OKOnly, kTitle)
        .ExpectMsgBox(kLogFailed, vb::OKOnly, "");

    env.state->services.LogError("ReadAlerts", 13, "Type mismatch");
    env.state->services.LogError("ReadAlerts", 13, "Type mismatch");
    VERIFY_DIALOGS(env.dialogs);
    QVERIFY(env.read("Error.log") == old + report.toLatin1());
}

void ErrorLogTest::unwritableLogIsReportedAfterTheReport() {
    TestEnv env;
    QVERIFY(QDir().mkpath(env.path("Error.log")));
    const QString report = Report("9/7/2026 10:30:00 AM", "ReadAlerts", "13", "Type mismatch");
    env.dialogs.ExpectMsgBox(report, vb::OKOnly, kTitle).ExpectMsgBox(kLogFailed, vb::OKOnly, "");
    env.state->services.LogError("ReadAlerts", 13, "Type mismatch");
    VERIFY_DIALOGS(env.dialogs);
}

void ErrorLogTest::readOnlyLogIsMadeWritableAndAppended() {
    TestEnv env;
    env.write("Error.log", "old\r\n");
    QVERIFY(QFile::setPermissions(env.path("Error.log"), QFile::ReadOwner | QFile::ReadGroup));
    const QString report = Report("9/7/2026 10:30:00 AM", "ReadAlerts", "13", "Type mismatch");
    env.dialogs.ExpectMsgBox(report, vb::OKOnly, kTitle);

    env.state->services.LogError("ReadAlerts", 13, "Type mismatch");
    VERIFY_DIALOGS(env.dialogs);
    QVERIFY(QFile::permissions(env.path("Error.log")) & QFile::WriteOwner);
    QCOMPARE(env.read("Error.log"), "old\r\n" + report.toLatin1());
}

void ErrorLogTest::logSpelledInAnotherCaseIsAppended() {
    TestEnv env;
    env.write("ERROR.LOG", "old\r\n");
    const QString report = Report("9/7/2026 10:30:00 AM", "ReadAlerts", "13", "Type mismatch");
    env.dialogs.ExpectMsgBox(report, vb::OKOnly, kTitle);

    env.state->services.LogError("ReadAlerts", 13, "Type mismatch");
    VERIFY_DIALOGS(env.dialogs);
    QCOMPARE(FilesIn(env.folder()), QStringList{"ERROR.LOG"});
    QCOMPARE(env.read("ERROR.LOG"), "old\r\n" + report.toLatin1());
}

void ErrorLogTest::trapLogsUnderTheProcedureName_data() {
    QTest::addColumn<int>("failure");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("description");
    QTest::newRow("non-numeric field") << int(Failure::TypeMismatch) << 13 << "Type mismatch";
    QTest::newRow("empty numeric field") << int(Failure::EmptyNumber) << 13 << "Type mismatch";
    QTest::newRow("number too large") << int(Failure::Overflow) << 6 << "Overflow";
    QTest::newRow("standard description") << int(Failure::FileNotFound) << 53 << "File not found";
    QTest::newRow("own description")
        << int(Failure::OwnText) << 75 << "Cannot open 2024\\Planner.dat";
    QTest::newRow("other exception") << int(Failure::Std) << 5 << "unexpected state";
}

void ErrorLogTest::trapLogsUnderTheProcedureName() {
    QFETCH(int, failure);
    QFETCH(int, number);
    QFETCH(QString, description);
    TestEnv env;
    const QString report = Report("9/7/2026 10:30:00 AM", "ReadThisYearsPlanner",
                                  QString::number(number), description);
    env.dialogs.ExpectMsgBox(report, vb::OKOnly, kTitle);

    bool finished = false;
    const bool ok = env.state->services.Trap("ReadThisYearsPlanner", [&] {
        Fail(Failure(failure));
        finished = true;
    });
    QVERIFY(!ok);
    QVERIFY(!finished);
    VERIFY_DIALOGS(env.dialogs);
    QCOMPARE(env.read("Error.log"), report.toLatin1());
}

void ErrorLogTest::trapLetsSuccessPass() {
    TestEnv env;
    bool finished = false;
    QVERIFY(env.state->services.Trap("ReadAlerts", [&] { finished = true; }));
    QVERIFY(finished);
    VERIFY_DIALOGS(env.dialogs);
    QVERIFY(!env.exists("Error.log"));
}

void ErrorLogTest::wholeFieldsReadAsNumbers_data() {
    QTest::addColumn<QString>("field");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("error");  // 0 when the field is a number
    QTest::newRow("plain") << "42" << 42 << 0;
    QTest::newRow("surrounding blanks") << "  42 " << 42 << 0;
    QTest::newRow("negative") << "-1" << -1 << 0;
    QTest::newRow("largest") << "2147483647" << 2147483647 << 0;
    QTest::newRow("letters") << "abc" << 0 << 13;
    QTest::newRow("trailing letter") << "12x" << 0 << 13;
    QTest::newRow("blank inside") << "4 2" << 0 << 13;
    QTest::newRow("empty") << "" << 0 << 13;
    QTest::newRow("only blanks") << "   " << 0 << 13;
    QTest::newRow("too large") << "2147483648" << 0 << 6;
}

void ErrorLogTest::wholeFieldsReadAsNumbers() {
    QFETCH(QString, field);
    QFETCH(int, value);
    QFETCH(int, error);
    try {
        const int read = ToInt(field);
        QCOMPARE(error, 0);
        QCOMPARE(read, value);
    } catch (const VbError& e) {
        QCOMPARE(e.number(), error);
    }
}

ORVANTA_TEST_MAIN(ErrorLogTest)
#include "tst_error_log.moc"
