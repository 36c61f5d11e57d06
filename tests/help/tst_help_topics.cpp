// Help topics: "*"-separated topics split into name and description at their first ":", and the
// phrase search over the topics' text.

#include <QFile>
#include <QTest>

#include "help/modHelp.h"
#include "support/TestEnv.h"

namespace {

const QByteArray kTopics =
    "*Alerts:Set an alert for a date.\r\n"
    "*Planner:Open the daily planner for a date.\r\n"
    "*Search:Search the notes and the planner.\r\n";

}  // namespace

class HelpTopicsTest : public QObject {
    Q_OBJECT

private slots:
    void topicsSplitAtStarsAndFirstColon_data();
    void topicsSplitAtStarsAndFirstColon();
    void topicsLoadFromTheDataFolder_data();
    void topicsLoadFromTheDataFolder();
    void phraseFoundOnlyAsOnePiece_data();
    void phraseFoundOnlyAsOnePiece();
};

void HelpTopicsTest::topicsSplitAtStarsAndFirstColon_data() {
    QTest::addColumn<QString>("file");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QStringList>("descriptions");
    using S = QStringList;
    QTest::newRow("two topics") << "*Search:Find a phrase.\r\n*Print:Prints the page."
                                << S{"Search:Find a phrase.\r\n", "Print:Prints the page."}
                                << S{"Search", "Print"}
                                << S{"Find a phrase.\r\n", "Prints the page."};
    QTest::newRow("text before the first star ignored")
        << "Orvanta Help: read me\r\n*Alerts:Set an alert." << S{"Alerts:Set an alert."}
        << S{"Alerts"} << S{"Set an alert."};
    QTest::newRow("split on the first colon only")
        << "*Alarm Clock: rings at 10:30 AM: daily" << S{"Alarm Clock: rings at 10:30 AM: daily"}
        << S{"Alarm Clock"} << S{" rings at 10:30 AM: daily"};
    QTest::newRow("no colon: whole text is the name")
        << "*Getting Started\r\n*Notes:Free text." << S{"Getting Started\r\n", "Notes:Free text."}
        << S{"Getting Started\r\n", "Notes"} << S{"", "Free text."};
    QTest::newRow("colon first: empty name")
        << "*:only a description" << S{":only a description"} << S{""} << S{"only a description"};
    QTest::newRow("empty file") << "" << S{} << S{} << S{};
    QTest::newRow("no star") << "Topics: none yet\r\n" << S{} << S{} << S{};
    QTest::newRow("closing star starts no topic")
        << "*Print:Prints the page.*\r\n"
        << S{"Print:Prints the page."} << S{"Print"} << S{"Prints the page."};
}

void HelpTopicsTest::topicsSplitAtStarsAndFirstColon() {
    QFETCH(QString, file);
    QFETCH(QStringList, texts);
    QFETCH(QStringList, names);
    QFETCH(QStringList, descriptions);
    QStringList gotTexts, gotNames, gotDescriptions;
    for (const HelpTopic& topic : HelpTopics::Parse(file)) {
        gotTexts << topic.text;
        gotNames << topic.name;
        gotDescriptions << topic.description;
    }
    QCOMPARE(gotTexts, texts);
    QCOMPARE(gotNames, names);
    QCOMPARE(gotDescriptions, descriptions);
}

void HelpTopicsTest::topicsLoadFromTheDataFolder_data() {
    QTest::addColumn<QString>("fileName");  // empty: no file
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("firstDescription");
    QTest::newRow("usual spelling")
        << "Help_Topics.txt" << kTopics << QStringList{"Alerts", "Planner", "Search"}
        << "Set an alert for a date.\r\n";
    QTest::newRow("lower case on disk")
        << "help_topics.txt" << kTopics << QStringList{"Alerts", "Planner", "Search"}
        << "Set an alert for a date.\r\n";
    QTest::newRow("single-byte text")
        << "HELP_TOPICS.TXT" << QByteArray("*Caf\xe9:Co\xfbt 5 \x80")
        << QStringList{QString::fromUtf8("Café")} << QString::fromUtf8("Coût 5 €");
    QTest::newRow("no file") << "" << QByteArray() << QStringList() << "";
    QTest::newRow("other file") << "Help_Topics.bak" << kTopics << QStringList() << "";
}

void HelpTopicsTest::topicsLoadFromTheDataFolder() {
    QFETCH(QString, fileName);
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, names);
    QFETCH(QString, firstDescription);
    TestEnv env;
    if (!fileName.isEmpty())
        env.write(fileName, bytes);
    HelpTopics& help = env.state->help;

    help.LoadHelpTopics(env.state->services);
    VERIFY_DIALOGS(env.dialogs);
    QCOMPARE(help.Names(), names);
    QCOMPARE(qsizetype(help.TopicCount()), names.size());
    if (!names.isEmpty())
        QCOMPARE(help.topics().first().description, firstDescription);
}

void HelpTopicsTest::phraseFoundOnlyAsOnePiece_data() {
    QTest::addColumn<QString>("phrase");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("found");
    QTest::newRow("two words together") << "daily planner" << 0 << 1;
    QTest::newRow("two words apart") << "alert date" << 0 << -1;
    QTest::newRow("two words in the other order") << "planner daily" << 0 << -1;
    QTest::newRow("letter case ignored") << "DAILY Planner" << 0 << 1;
    QTest::newRow("first topic holding it") << "for a date" << 0 << 0;
    QTest::newRow("search goes on after a hit") << "for a date" << 1 << 1;
    QTest::newRow("later topics only") << "planner" << 2 << 2;
    QTest::newRow("past the last topic") << "planner" << 3 << -1;
    QTest::newRow("topic names are searched too") << "search:" << 0 << 2;
    QTest::newRow("across a line end") << "date.\r\nPlanner" << 0 << -1;
    QTest::newRow("not anywhere") << "birthday" << 0 << -1;
}

void HelpTopicsTest::phraseFoundOnlyAsOnePiece() {
    QFETCH(QString, phrase);
    QFETCH(int, from);
    QFETCH(int, found);
    TestEnv env;
    env.write("Help_Topics.txt", kTopics);
    env.state->help.LoadHelpTopics(env.state->services);
    QCOMPARE(int(env.state->help.TopicCount()), 3);
    QCOMPARE(env.state->help.FindPhrase(phrase, from), found);
}

ORVANTA_TEST_MAIN(HelpTopicsTest)
#include "tst_help_topics.moc"
