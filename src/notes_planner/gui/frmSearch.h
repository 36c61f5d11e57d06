#pragma once

#include <QDate>
#include <QList>
#include <functional>
#include <memory>

#include "notes_planner/PhraseSearch.h"
#include "notes_planner/gui/NotesPlannerContext.h"
#include "shell/gui/ChildWindow.h"

class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;
class QRadioButton;

// Finds the dates of a year (or of one month of it, or of every year of the data folder)
// whose note or planner page holds a phrase, lists them and opens the one chosen. The phrase
// and where it was looked for stay active for Search Again in the notes and planner windows.
// The files are read as they are on disk: the years the calendar holds are left as they were.
class frmSearch : public ChildWindow {
    Q_OBJECT
public:
    static constexpr const char* kName = "frmSearch";

    // open shows a found date's notes (planner false) or planner page.
    frmSearch(NotesPlannerContext& context,
              std::function<void(const QDate& date, bool planner)> open);

    void cmdSearch_Click();
    void cmdOpen_Click();
    // Whether a search of every year is still going through the years.
    bool IsSearching() const { return searching_; }

    // The entry of the year list that searches every year of the data folder.
    static QString AllYearsEntry();

private:
    QWidget* BuildTimePeriodFrame();
    QWidget* BuildOccurrencesFrame();
    void LoadComboBoxes();
    void optLocation_Click();
    SearchLocation Location() const;
    // Searches the next year of a search of every year, then hands back to the event loop so
    // that the window keeps answering; reports when the last year is done.
    void SearchNextYear();
    void AddResults(const QList<QDate>& dates);
    void ReportCount();

    NotesPlannerContext& context_;
    std::function<void(const QDate&, bool)> open_;
    QComboBox* cmbYear_;
    QComboBox* cmbMonth_;
    QComboBox* cmbPhrase_;
    QList<QRadioButton*> optLocation_;
    QPushButton* cmdSearch_;
    QListWidget* lstResults_;
    QPushButton* cmdOpen_;
    QLabel* lblProgress_;
    // The search under way.
    std::unique_ptr<PhraseMatcher> matcher_;
    SearchLocation searchedLocation_ = SearchLocation::Notes;
    QList<int> pendingYears_;
    bool searching_ = false;
};
