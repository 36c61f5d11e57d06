// The help window: topics listed, descriptions shown, and the phrase search with its messages.
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>

#include "TestEnv.h"
#include "help/gui/frmHelp.h"

class HelpWindowTest : public QObject {
    Q_OBJECT

    std::unique_ptr<TestEnv> env;
    std::unique_ptr<frmHelp> window;

    void search(const QString& phrase, int button) {
        auto* box = window->findChild<QLineEdit*>("txtSearch");
        box->clear();
        QTest::keyClicks(box, phrase);
        QTest::mouseClick(window->findChild<QPushButton*>(button ? "cmdSearch_1" : "cmdSearch_0"),
                          Qt::LeftButton);
    }
    void again() {
        QTest::mouseClick(window->findChild<QPushButton*>("cmdSearch_1"), Qt::LeftButton);
    }
    int row() const { return window->findChild<QListWidget*>("lstHelp")->currentRow(); }
    QString description() const {
        return window->findChild<QPlainTextEdit*>("txtHelp")->toPlainText();
    }

private slots:
    void init() {
        env = std::make_unique<TestEnv>();
        env->write("Help_Topics.txt",
                   "*Getting Started:Pick a date on the calendar."
                   "*Notes:Notes are kept per date. Pick a date first."
                   "*Planner:A planner page for a date."
                   "*Alarm:Rings at the set time.");
        env->state->help.LoadHelpTopics(env->state->services);
        window = std::make_unique<frmHelp>(env->state->help, env->state->services);
        window->show();
    }
    void cleanup() {
        VERIFY_DIALOGS(env->dialogs);
        window.reset();
        env.reset();
    }

    void listsTopicsAndShowsTheChosenDescription() {
        QCOMPARE(window->windowTitle(), QString("Orvanta Help"));
        auto* list = window->findChild<QListWidget*>("lstHelp");
        QCOMPARE(list->count(), 4);
        QCOMPARE(list->item(3)->text(), QString("Alarm"));
        QCOMPARE(description(), QString("Pick a date on the calendar."));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualItemRect(list->item(2)).center());
        QCOMPARE(description(), QString("A planner page for a date."));
        QCOMPARE(window->findChild<QPushButton*>("cmdSearch_0")->text(), QString("Find Now"));
        QCOMPARE(window->findChild<QPushButton*>("cmdSearch_1")->text(), QString("Find Again"));
    }

    void emptySearchIsRefused() {
        env->dialogs.ExpectMsgBox("Nothing to search for.", vb::OKOnly, "");
        search("", 0);
    }

    void findNowThenFindAgainWalksTheHitsToTheEnd() {
        search("pick a date", 0);
        QCOMPARE(row(), 0);
        again();
        QCOMPARE(row(), 1);
        env->dialogs.ExpectMsgBox("End of Search", vb::OKOnly, "");
        again();
        VERIFY_DIALOGS(env->dialogs);
        // After the end, the search starts over from the first topic.
        again();
        QCOMPARE(row(), 0);
    }

    void findNowAlwaysStartsAtTheFirstTopic() {
        search("date", 0);
        again();
        QCOMPARE(row(), 1);
        search("date", 0);
        QCOMPARE(row(), 0);
    }

    void wordsApartAreNotAPhrase() {
        env->dialogs.ExpectMsgBox("Search Phrase not Found", vb::OKOnly, "");
        search("planner date", 0);
        QCOMPARE(row(), 0);
    }

    void helpOnSearchExplainsThePhraseRule() {
        const QString text =
            "The search looks for your entry as one single phrase throughout each help topic."
            "\r\n\r\nTwo or more words are found only where they stand together, in the order "
            "typed, so a search for two words that appear apart in a topic finds nothing.\r\n\r\n"
            "For the best results, search for one word at a time. Find Now starts at the first "
            "topic; Find Again goes on from the topic after the last one found.";
        env->dialogs.ExpectMsgBox(text, vb::OKOnly | vb::Information, "Help on Search");
        QAction* help = window->findChild<QAction*>("mnuHelp");
        QCOMPARE(help->text(), QString("&Help on Search"));
        help->trigger();
    }
};

ORVANTA_TEST_MAIN(HelpWindowTest)
#include "tst_help_window.moc"
