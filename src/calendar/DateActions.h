#pragma once

#include <QDate>
#include <QString>

#include "calendar/DayGrid.h"
#include "shell/Dialogs.h"

class CalendarDisplay;
class ProgramState;

// Message-box styles of the date actions.
inline constexpr int kQuestionStyle = vb::YesNo | vb::Question;
inline constexpr int kWarningStyle = vb::OKOnly | vb::Exclamation;
inline constexpr int kInformationStyle = vb::OKOnly | vb::Information;

inline const QString kUseBirthdayManagerMessage =
    QStringLiteral("Use the Birthday Manager to remove this mark.");
inline const QString kUseHolidayManagerMessage =
    QStringLiteral("Use the Holiday Manager to remove this mark.");

inline const QString kHoverPrompt =
    QStringLiteral("You may input the Hover Text in the box provided. Click Cancel to ignore.");
inline const QString kHoverTitlePrefix = QStringLiteral("Optional Hover Text: ");
inline const QString kHoverNeedsMarkMessage = QStringLiteral(
    "A hover note is kept with the day's mark. Please mark the day first, then attach the note.");
inline const QString kHoverLineBreakMessage =
    QStringLiteral("A hover note must fit on one line. Please remove the line break.");

inline const QString kDeleteMarksQuestion = QStringLiteral(
    "Are you sure you want to clear all this year's marks? Note: Holidays and Birthdays are "
    "excluded.");
inline const QString kNoMarksBackupMessage =
    QStringLiteral("There is no backup of this year's marks to restore.");

inline const QString kRemoveIconsQuestion = QStringLiteral(
    "Proceeding with this action will remove all icons for the entire month. Continue?");
inline const QString kRemoveIconsTitle = QStringLiteral("Preparing to remove all Icons");

inline const QString kShareDrivePrompt =
    QStringLiteral("Enter the Network Share Drive letter below. Example d, e, f, etc.");
inline const QString kShareDriveTitle = QStringLiteral("Setting Network Share Drive");
inline const QString kBadDriveLetterMessage = QStringLiteral("Could not determine drive letter.");

inline const QString kShortcutName = QStringLiteral("Shortcut to Orvanta");
inline const QString kShortcutAddedMessage =
    QStringLiteral("A Shortcut has been successfully added to Programs.");
inline const QString kShortcutFailedPrefix = QStringLiteral("Unable to Create Shortcut : ");

inline const QString kReportProblemMessage = QStringLiteral(
    "A new window will open taking you to the Bug Report Page. Type a brief "
    "decription\r\nof the problem in the box provided and we'll get back to you "
    "as soon as possible. P.S.Don't forget to leave your email address.");
inline const QString kSendErrorLogMessage = QStringLiteral(
    "This process will copy the Error Log File to memory so that you can paste it in the\r\nthe "
    "appropriate box on our website. Please make sure you are connected to the internet.");
inline const QString kLogFileNotFoundMessage = QStringLiteral("Log File not found.");

// The maker's web site and its pages for problem reports and error logs.
inline const QString kMakerSite = QStringLiteral("https://www.orvanta.example");
inline const QString kBugReportPage = QStringLiteral("/orvanta/bug_report.htm");
inline const QString kErrorLogPage = QStringLiteral("/orvanta/error_log.htm");

// The commands of the Date Options, Edit (marks), Options and Support menus that act on the
// selected date, on the marks or on the program's settings. The main window's menu items call
// them; each is a procedure of its own that reports its failures under its own name.
class DateActions {
public:
    DateActions(ProgramState& state, CalendarDisplay& display);

    // Marks the selected date as user category index (0-11).
    void mnuOptDateMarkAs_Click(int index);
    void mnuOptDateQuickMark_Click();
    void mnuOptDateClearMark_Click();
    void mnuOptDateAttachHoverText_Click();

    void mnuEditDeleteMarks_Click();
    void mnuOptCalendarRestoreMarks_Click();
    // Shows or hides the marks of category index, or of all categories.
    void mnuEditMark_Click(int index);
    void mnuEditMarksShowAll_Click();
    void mnuEditMarksHideAll_Click();
    void mnuEditMarkerSaveSettings_Click();

    void mnuOptDateRemoveAll_Click();
    void mnuOptNetworkShare_Click();
    // programFile: the running program; the launcher starts it on this data folder.
    void mnuOptCreateShortcut_Click(const QString& programFile);
    void mnuSupportReportProblem_Click();
    void mnuSupportSendErrorLog_Click();

    // The title of the hover-text box for date.
    QString HoverTitle(const QDate& date) const;
    // True for one letter A-Z in either case.
    static bool IsDriveLetter(const QString& answer);

private:
    struct Day {
        CellIndex cell;
        bool nextYear = false;
    };
    // The selected date's cell; raises when the date holders do not hold it.
    Day SelectedCell() const;
    void MarkSelectedDate(quint32 color);
    // Shows again the calendar view on show, which repaints it.
    void RedrawViewOnShow();

    ProgramState& state_;
    CalendarDisplay& display_;
};
