// Term files: what their bytes read as, what a save writes, and starting a new list.
#include <QTest>

#include "TestEnv.h"
#include "shell/ShellMessages.h"
#include "terms/TermMessages.h"
#include "terms/modFUT.h"

class TermFilesTest : public QObject {
    Q_OBJECT

private slots:
    void readGivesOneTermPerLine_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("terms");
        QTest::newRow("no line end after the last term")
            << QByteArray("Acme, Inc.\r\n\"Q3\" review")
            << QStringList{"Acme, Inc.", "\"Q3\" review"};
        QTest::newRow("a final CR LF adds no term")
            << QByteArray("Acme\r\nZed\r\n") << QStringList{"Acme", "Zed"};
        QTest::newRow("a blank line in the middle is an empty term")
            << QByteArray("Acme\r\n\r\nZed") << QStringList{"Acme", "", "Zed"};
        QTest::newRow("lines ended by LF alone")
            << QByteArray("Acme\nZed\n") << QStringList{"Acme", "Zed"};
        QTest::newRow("code page letters") << QByteArray("Caf\xe9") << QStringList{"Caf\u00e9"};
        QTest::newRow("empty file") << QByteArray() << QStringList{};
    }
    void readGivesOneTermPerLine() {
        QFETCH(QByteArray, bytes);
        QFETCH(QStringList, terms);
        TestEnv env;
        env.write(kDefaultTermFile, bytes);
        QVERIFY(env.state->terms.ReadFrequentlyUsedTerms());
        QCOMPARE(env.state->terms.Terms(), terms);
        QCOMPARE(env.read(kDefaultTermFile), bytes);  // reading never rewrites
        VERIFY_DIALOGS(env.dialogs);
    }

    void readingAMissingListCreatesItEmpty() {
        TestEnv env;
        QVERIFY(env.state->terms.ReadFrequentlyUsedTerms());
        QVERIFY(env.state->terms.Terms().isEmpty());
        QCOMPARE(env.read(kDefaultTermFile), QByteArray());
    }

    void saveEndsOnlyBetweenTerms_data() {
        QTest::addColumn<QStringList>("terms");
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("one term") << QStringList{"Acme"} << QByteArray("Acme");
        QTest::newRow("empty term in the middle")
            << QStringList{"Acme", "", "Z\u00e9d"} << QByteArray("Acme\r\n\r\nZ\xe9\x64");
    }
    void saveEndsOnlyBetweenTerms() {
        QFETCH(QStringList, terms);
        QFETCH(QByteArray, bytes);
        TestEnv env;
        env.write(kDefaultTermFile, "old\r\nlonger list\r\n");
        QVERIFY(env.state->terms.ReadFrequentlyUsedTerms());
        QVERIFY(env.state->terms.SaveFrequentlyUsedTerms(terms));
        QCOMPARE(env.read(kDefaultTermFile), bytes);
        QVERIFY(env.state->terms.ReadFrequentlyUsedTerms());
        QCOMPARE(env.state->terms.Terms(), terms);
    }

    void savingAnEmptyListLeavesTheFile() {
        TestEnv env;
        env.write(kDefaultTermFile, "Acme\r\nZed");
        env.dialogs.ExpectMsgBox(kNoTermsToSave, vb::OKOnly, {});
        QVERIFY(!env.state->terms.SaveFrequentlyUsedTerms({}));
        QCOMPARE(env.read(kDefaultTermFile), QByteArray("Acme\r\nZed"));
        VERIFY_DIALOGS(env.dialogs);
    }

    void newFileStartsEmptyAndBecomesCurrent_data() {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<int>("overwrite");  // 0: the file does not exist yet
        QTest::addColumn<QString>("current");
        QTest::addColumn<QByteArray>("salesFile");
        QTest::newRow("new name") << "Sales" << 0 << "Sales.fut" << QByteArray();
        QTest::newRow("existing, Yes empties it")
            << "Sales" << int(vb::Yes) << "Sales.fut" << QByteArray();
        QTest::newRow("existing, No keeps it")
            << "Sales" << int(vb::No) << kDefaultTermFile << QByteArray("Acme");
        QTest::newRow("Cancel") << "" << 0 << kDefaultTermFile << QByteArray("<missing>");
        QTest::newRow("illegal name") << "a/b" << 0 << kDefaultTermFile << QByteArray("<missing>");
    }
    void newFileStartsEmptyAndBecomesCurrent() {
        QFETCH(QString, answer);
        QFETCH(int, overwrite);
        QFETCH(QString, current);
        QFETCH(QByteArray, salesFile);
        TestEnv env;
        env.dialogs.ExpectInputBox(kNewTermFilePrompt, kNewTermFileTitle, {}, answer);
        if (overwrite) {
            env.write("Sales.fut", "Acme");
            env.dialogs.ExpectMsgBox(kTermFileExistsQuestion, kQuestionStyle, kTermFileExistsTitle,
                                     overwrite);
        }
        if (answer.contains(u'/'))
            env.dialogs.ExpectMsgBox(kIllegalFileNameMessage, vb::OKOnly, {});
        QCOMPARE(env.state->terms.CreateNewFUTFile(), current != kDefaultTermFile);
        QCOMPARE(env.state->terms.CurrentFile(), current);
        QCOMPARE(env.read("Sales.fut"), salesFile);
        VERIFY_DIALOGS(env.dialogs);
    }
};

ORVANTA_TEST_MAIN(TermFilesTest)
#include "tst_term_files.moc"
