// The error report: shown in a "Program Error" box, then appended byte for byte to Error.log,
// which stops growing once a 16-bit write position can no longer address its end.
#include <QDir>
#include <QFile>
#include <QTest>
#include <stdexcept>

#include "TestEnv.h"
#include "shell/ShellMessages.h"
#include "shell/TextFile.h"

namespace {

QString Report(const QString& when, const QString& procedure, int number,
               const QString& description) {
    return when + "\r\nAn error occurred in " + procedure +
           ".\r\nError Number: " + QString::number(number) +
           "\r\nError Description: " + description + "\r\n\r\n";
}

const QString kReport = Report("9/7/2026 10:30:00 AM", "ReadAlerts", 13, "Type mismatch");

}  // namespace

class ErrorLogTest : public QObject {
    Q_OBJECT

private slots:
    void reportShownThenAppended_data() {
        QTest::addColumn<QDateTime>("now");
        QTest::addColumn<QString>("description");
        QTest::addColumn<QByteArray>("log");
        QTest::newRow("afternoon, no leading zeros")
            << QDateTime(QDate(2026, 1, 5), QTime(15, 4, 5)) << "File not found"
            << QByteArray(
                   "1/5/2026 3:04:05 PM\r\nAn error occurred in SaveThisYearsMarks.\r\n"
                   "Error Number: 53\r\nError Description: File not found\r\n\r\n");
        QTest::newRow("accented description in single bytes")
            << QDateTime(QDate(2027, 2, 28), QTime(12, 0, 9))
            << QString::fromUtf8("Fichier déjà pris")
            << QByteArray(
                   "2/28/2027 12:00:09 PM\r\nAn error occurred in SaveThisYearsMarks.\r\n"
                   "Error Number: 53\r\nError Description: Fichier d\xe9j\xe0 pris\r\n\r\n");
    }
    void reportShownThenAppended() {
        QFETCH(QDateTime, now);
        QFETCH(QString, description);
        QFETCH(QByteArray, log);
        TestEnv env(now);
        env.write("error.LOG", "earlier\r\n");  // an existing log, whatever its spelling
        env.dialogs.ExpectMsgBox(textfile::Decode(log), vb::OKOnly, "Program Error");
        env.state->services.LogError("SaveThisYearsMarks", 53, description);
        VERIFY_DIALOGS(env.dialogs);
        QCOMPARE(env.read("error.LOG").toHex(), ("earlier\r\n" + log).toHex());
        QCOMPARE(QDir(env.folder()).entryList(QDir::Files), QStringList{"error.LOG"});
    }

    void logStopsGrowingAtTheLimit_data() {
        QTest::addColumn<int>("size");
        QTest::addColumn<bool>("appended");
        QTest::newRow("no log yet") << -1 << true;
        QTest::newRow("32,766 bytes") << 32766 << true;
        QTest::newRow("32,767 bytes") << 32767 << false;
        QTest::newRow("100,000 bytes") << 100000 << false;
    }
    void logStopsGrowingAtTheLimit() {
        QFETCH(int, size);
        QFETCH(bool, appended);
        TestEnv env;
        const QByteArray old(std::max(size, 0), 'x');
        if (size >= 0)
            env.write("Error.log", old);
        env.dialogs.ExpectMsgBox(kReport, vb::OKOnly, kProgramErrorTitle);
        if (!appended)
            env.dialogs.ExpectMsgBox(kErrorLogWriteFailed, vb::OKOnly, "");
        env.state->services.LogError("ReadAlerts", 13, "Type mismatch");
        VERIFY_DIALOGS(env.dialogs);
        QVERIFY(env.read("Error.log") == (appended ? old + kReport.toLatin1() : old));
    }

    // An append that takes the log past the limit is made; the next one is refused.
    void logThatCrossedTheLimitTakesNoMore() {
        TestEnv env;
        const QByteArray old(32700, 'x');
        env.write("Error.log", old);
        env.dialogs.ExpectMsgBox(kReport, vb::OKOnly, kProgramErrorTitle)
            .ExpectMsgBox(kReport, vb::OKOnly, kProgramErrorTitle)
            .ExpectMsgBox(kErrorLogWriteFailed, vb::OKOnly, "");
        env.state->services.LogError("ReadAlerts", 13, "Type mismatch");
        env.state->services.LogError("ReadAlerts", 13, "Type mismatch");
        VERIFY_DIALOGS(env.dialogs);
        QVERIFY(env.read("Error.log") == old + kReport.toLatin1());
    }

    void readOnlyLogIsMadeWritableAndAppended() {
        TestEnv env;
        env.write("Error.log", "old\r\n");
        QVERIFY(QFile::setPermissions(env.path("Error.log"), QFile::ReadOwner | QFile::ReadGroup));
        env.dialogs.ExpectMsgBox(kReport, vb::OKOnly, kProgramErrorTitle);
        env.state->services.LogError("ReadAlerts", 13, "Type mismatch");
        VERIFY_DIALOGS(env.dialogs);
        QVERIFY(QFile::permissions(env.path("Error.log")) & QFile::WriteOwner);
        QCOMPARE(env.read("Error.log"), "old\r\n" + kReport.toLatin1());
    }

    void trapLogsUnderTheProcedureNameAndLeavesIt_data() {
        QTest::addColumn<int>("failure");
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("description");
        QTest::newRow("non-numeric field") << 0 << 13 << "Type mismatch";
        QTest::newRow("own description") << 2 << 75 << "Cannot open 2024\\Planner.dat";
        QTest::newRow("other exception") << 3 << 5 << "unexpected state";
    }
    void trapLogsUnderTheProcedureNameAndLeavesIt() {
        QFETCH(int, failure);
        QFETCH(int, number);
        QFETCH(QString, description);
        TestEnv env;
        env.expectProgramError("ReadThisYearsPlanner", number, description);
        bool finished = false;
        const bool ok = env.state->services.Trap("ReadThisYearsPlanner", [&] {
            if (failure == 0)
                ToInt(u"12x");
            if (failure == 2)
                Raise(err::PathFileAccessError, "Cannot open 2024\\Planner.dat");
            if (failure == 3)
                throw std::runtime_error("unexpected state");
            finished = true;
        });
        QVERIFY(!ok && !finished);
        VERIFY_DIALOGS(env.dialogs);
        QVERIFY(env.read("Error.log").contains("An error occurred in ReadThisYearsPlanner."));
    }

    void wholeFieldsReadAsNumbers_data() {
        QTest::addColumn<QString>("field");
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("error");  // 0 when the field is a number
        QTest::newRow("surrounding blanks, negative") << " -42 " << -42 << 0;
        QTest::newRow("largest") << "2147483647" << 2147483647 << 0;
        QTest::newRow("trailing letter") << "12x" << 0 << 13;
        QTest::newRow("blank inside") << "4 2" << 0 << 13;
        QTest::newRow("too large") << "2147483648" << 0 << 6;
    }
    void wholeFieldsReadAsNumbers() {
        QFETCH(QString, field);
        QFETCH(int, value);
        QFETCH(int, error);
        try {
            QCOMPARE(ToInt(field), value);
            QCOMPARE(error, 0);
        } catch (const VbError& e) {
            QCOMPARE(e.number(), error);
        }
    }
};

ORVANTA_TEST_MAIN(ErrorLogTest)
#include "tst_error_log.moc"
