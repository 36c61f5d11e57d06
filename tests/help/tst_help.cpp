// Help topics: "*"-separated topics split into name and description at their first ":", the
// phrase search, and the help window that shows them.
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>

#include "TestEnv.h"
#include "help/HelpMessages.h"
#include "help/gui/frmHelp.h"
#include "help/modHelp.h"

namespace {

const QByteArray kTopics =
    "*Getting Started:Pick a date on the calendar.\r\n"
    "*Notes:Notes are kept per date. Pick a date first.\r\n"
    "*Planner:Open the daily planner for a date.\r\n";

}  // namespace

class HelpTest : public QObject {
    Q_OBJECT

    std::unique_ptr<TestEnv> env;
    std::unique_ptr<frmHelp> window;

    void click(const char* button) {
        QTest::mouseClick(window->Control<QPushButton>(button), Qt::LeftButton);
    }
    void search(const QString& phrase) {
        window->Control<QLineEdit>("txtSearch")->clear();
        QTest::keyClicks(window->Control<QLineEdit>("txtSearch"), phrase);
        click("cmdSearch_0");
    }
    int row() const { return window->Control<QListWidget>("lstHelp")->currentRow(); }

private slots:
    void init() {
        env = std::make_unique<TestEnv>();
        env->write("help_topics.TXT", kTopics);  // found whatever its letter case
        env->state->help.LoadHelpTopics(env->state->services);
        window = std::make_unique<frmHelp>(env->state->help, env->state->services);
        window->show();
    }
    // The environment goes with its test function, so that a box it did not expect fails that one.
    void cleanup() {
        window.reset();
        env.reset();
    }

    void topicsSplitAtStarsAndTheFirstColon_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QStringList>("descriptions");
        using S = QStringList;
        QTest::newRow("split on the first colon only")
            << "*Alarm Clock: rings at 10:30 AM" << S{"Alarm Clock"} << S{" rings at 10:30 AM"};
        QTest::newRow("no colon: whole text is the name")
            << "*Getting Started\r\n*Notes:Free." << S{"Getting Started\r\n", "Notes"}
            << S{"", "Free."};
        QTest::newRow("closing star starts no topic") << "*Print:Prints the page.*\r\n"
                                                      << S{"Print"} << S{"Prints the page."};
    }
    void topicsSplitAtStarsAndTheFirstColon() {
        QFETCH(QString, file);
        QFETCH(QStringList, names);
        QFETCH(QStringList, descriptions);
        QStringList gotNames, gotDescriptions;
        for (const HelpTopic& topic : HelpTopics::Parse(file)) {
            gotNames << topic.name;
            gotDescriptions << topic.description;
        }
        QCOMPARE(gotNames, names);
        QCOMPARE(gotDescriptions, descriptions);
    }

    void phraseFoundOnlyAsOnePiece_data() {
        QTest::addColumn<QString>("phrase");
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("found");
        QTest::newRow("words together, any case") << "DAILY Planner" << 0 << 2;
        QTest::newRow("words apart") << "notes date" << 0 << -1;
        QTest::newRow("search goes on after a hit") << "pick a date" << 1 << 1;
        QTest::newRow("topic names are searched too") << "notes:" << 0 << 1;
        QTest::newRow("past the last topic") << "planner" << 3 << -1;
    }
    void phraseFoundOnlyAsOnePiece() {
        QFETCH(QString, phrase);
        QFETCH(int, from);
        QFETCH(int, found);
        QCOMPARE(env->state->help.FindPhrase(phrase, from), found);
    }

    void windowListsTopicsAndShowsTheChosenDescription() {
        auto* list = window->Control<QListWidget>("lstHelp");
        QCOMPARE(list->count(), 3);
        QCOMPARE(window->Control<QPlainTextEdit>("txtHelp")->toPlainText(),
                 "Pick a date on the calendar.");
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualItemRect(list->item(2)).center());
        QCOMPARE(window->Control<QPlainTextEdit>("txtHelp")->toPlainText(),
                 "Open the daily planner for a date.");
        QCOMPARE(list->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    }

    void findNowThenFindAgainWalksTheHitsToTheEnd() {
        env->dialogs.ExpectMsgBox(kNothingToSearch, vb::OKOnly, "");
        search("");
        search("pick a date");
        QCOMPARE(row(), 0);
        click("cmdSearch_1");
        QCOMPARE(row(), 1);
        env->dialogs.ExpectMsgBox(kEndOfSearch, vb::OKOnly, "");
        click("cmdSearch_1");
        click("cmdSearch_1");  // after the end the search starts over
        QCOMPARE(row(), 0);
        env->dialogs.ExpectMsgBox(kPhraseNotFound, vb::OKOnly, "");
        search("planner date");
    }

    void helpOnSearchExplainsThePhraseRule() {
        env->dialogs.ExpectMsgBox(kHelpOnSearchText, kInformationStyle, "Help on Search");
        window->Control<QAction>("mnuHelp")->trigger();
    }
};

ORVANTA_TEST_MAIN(HelpTest)
#include "tst_help.moc"
