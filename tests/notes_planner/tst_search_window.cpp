// The search window as a user runs it: the counts and their wording, a search of every year
// that leaves the calendar's year alone, a found note opened with the phrase selected and
// Search Again after it, and the refusals.
#include <QComboBox>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "MainWindowFixture.h"
#include "calendar/DateModel.h"
#include "notes_planner/gui/NotesPlannerMenus.h"
#include "notes_planner/gui/NotesPlannerMessages.h"
#include "notes_planner/gui/frmNotes.h"
#include "notes_planner/gui/frmSearch.h"
#include "notes_planner/modNotes.h"

namespace {

struct SearchFixture : MainWindowFixture {
    SearchFixture() {
        // Müller twice on one date, in capitals in another year, and a date without him.
        env.write("2026/Notes.dat",
                  "09/07/26:080101:Call M\xfcller\xd5\xd2"
                  "and m\xfcller again\r\n"
                  "09/08/26:080201:Lunch\r\n");
        env.write("2025/Notes.dat", "03/07/25:020500:Letter to M\xdcLLER\r\n");
        Start();
        menu("mnuEditFind")->trigger();
        search = frame().findChild<frmSearch*>("frmSearch");
    }
    void Search(const QString& phrase, const QString& year, const QString& message) {
        control("cmbPhrase")->setEditText(phrase);
        control("cmbYear")->setCurrentText(year);
        env.dialogs.ExpectMsgBox(message, vb::OKOnly, "");
        search->Control<QPushButton>("cmdSearch")->click();
        QTRY_VERIFY(!search->IsSearching());
    }
    QComboBox* control(const char* name) const { return search->Control<QComboBox>(name); }
    QListWidget* results() const { return search->Control<QListWidget>("lstResults"); }
    frmSearch* search = nullptr;
};

}  // namespace

class SearchWindowTest : public QObject {
    Q_OBJECT

private slots:
    void countsDatesOnceAndSearchesEveryYearWithoutLeavingTheYear() {
        SearchFixture f;
        f.Search("  m\u00dcLLER ", "2026", "Search Phrase appears on 1 date");
        f.Search("M\u00fcller", frmSearch::AllYearsEntry(), "Search Phrase appears on 2 dates.");
        QCOMPARE(f.results()->item(0)->data(Qt::UserRole).toDate(), QDate(2026, 9, 7));
        QCOMPARE(f.results()->item(1)->data(Qt::UserRole).toDate(), QDate(2025, 3, 7));
        // The calendar still holds the year it showed, with its notes.
        QCOMPARE(f.env.state->dates.ThisYear, 2026);
        QVERIFY(f.env.state->notes.HasNote(QDate(2026, 9, 8)));
        VERIFY_DIALOGS(f.env.dialogs);
    }

    void foundNoteOpensWithThePhraseSelectedAndSearchAgainGoesOn() {
        SearchFixture f;
        f.Search("m\u00fcller", "2026", "Search Phrase appears on 1 date");
        f.search->Control<QPushButton>("cmdOpen")->click();
        frmNotes* notes = f.window.notesPlanner->notesWindow();
        QCOMPARE(notes->date(), QDate(2026, 9, 7));
        auto* text = notes->Control<QPlainTextEdit>("txtNotes");
        QCOMPARE(text->textCursor().selectionStart(), 5);
        notes->mnuEditSearchAgain_Click();
        QCOMPARE(text->textCursor().selectedText(), "m\u00fcller");
        f.env.dialogs.ExpectMsgBox(kNoMoreOccurrencesMessage, vb::OKOnly, "");
        notes->mnuEditSearchAgain_Click();
        QCOMPARE(text->textCursor().selectedText(), "m\u00fcller");
        VERIFY_DIALOGS(f.env.dialogs);
    }

    void refusals() {
        SearchFixture f;
        f.env.dialogs.ExpectMsgBox(kNoPhraseMessage, vb::OKOnly, "");
        f.control("cmbPhrase")->setEditText("   ");
        f.search->Control<QPushButton>("cmdSearch")->click();
        f.search->Control<QRadioButton>("optLocation_0")->setChecked(true);
        QCOMPARE(f.env.state->search.location, "Planners");
        f.Search("M\u00fcller", "2026", kPhraseNotFoundMessage);
        f.env.dialogs.ExpectMsgBox(kNothingSelectedMessage, vb::OKOnly, "");
        f.search->Control<QPushButton>("cmdOpen")->click();
        VERIFY_DIALOGS(f.env.dialogs);
    }
};

ORVANTA_TEST_MAIN(SearchWindowTest)
#include "tst_search_window.moc"
