#include "calendar/DateActions.h"

#include <QRegularExpression>

#include "calendar/CalendarDisplay.h"
#include "shell/DateFormats.h"
#include "shell/Files.h"
#include "shell/ProgramState.h"
#include "shell/TextFile.h"

namespace {

const QString kErrorLogFile = QStringLiteral("Error.log");

// A mark's MarkSet value.
constexpr qint16 kMarked = -1;

}  // namespace

DateActions::DateActions(ProgramState& state, CalendarDisplay& display)
    : state_(state), display_(display) {}

DateActions::Day DateActions::SelectedCell() const {
    const QDate date = state_.dates.SelectedDate;
    const auto cell = state_.dates.FindDay(date);
    if (!cell)
        Raise(err::SubscriptOutOfRange);
    return {*cell, state_.dates.IsNextYear(date)};
}

void DateActions::MarkSelectedDate(quint32 color) {
    const Day day = SelectedCell();
    state_.marks.SetTable(day.nextYear)[day.cell] = kMarked;
    state_.marks.CategoryTable(day.nextYear)[day.cell] = static_cast<qint32>(color);
}

void DateActions::RedrawViewOnShow() {
    switch (display_.ViewKind()) {
        case 1:
            display_.Show1MonthCalendar();
            break;
        case 6:
            display_.Show6MonthCalendar();
            break;
        case 12:
            display_.Show1YearCalendar();
            break;
        default:
            break;
    }
}

void DateActions::mnuOptDateMarkAs_Click(int index) {
    state_.services.Trap("mnuOptDateMarkAs_Click", [&] {
        if (index < 0 || index >= MarkerColors::kUserCategories)
            Raise(err::SubscriptOutOfRange);
        MarkSelectedDate(state_.markerColors.Color(index));
        const bool nextYear = SelectedCell().nextYear;
        state_.marks.Save(nextYear);
        state_.marks.ReadAndDisplay(nextYear);
        RedrawViewOnShow();
    });
}

void DateActions::mnuOptDateQuickMark_Click() {
    state_.services.Trap("mnuOptDateQuickMark_Click", [&] {
        MarkSelectedDate(state_.markerColors.Color(MarkerColors::kQuickMarkColor));
        display_.ReDraw1MonthDateMarks();
        display_.ReDraw6MonthDateMarks();
        display_.ReDrawDateMarks();
        state_.marks.SaveNextYearsMarks();
        state_.marks.ReadAndDisplayNextYearsMarks();
        state_.marks.SaveThisYearsMarks();
        state_.marks.ReadAndDisplayThisYearsMarks();
    });
}

void DateActions::mnuOptDateClearMark_Click() {
    state_.services.Trap("mnuOptDateClearMark_Click", [&] {
        const Day day = SelectedCell();
        DateMarks& marks = state_.marks;
        if (marks.SetTable(day.nextYear)[day.cell] == 0)
            return;
        const auto category = static_cast<quint32>(marks.CategoryTable(day.nextYear)[day.cell]);
        if (category == state_.markerColors.Color(MarkerColors::kBirthday)) {
            state_.services.dialogs.MsgBox(kUseBirthdayManagerMessage, kWarningStyle);
            return;
        }
        if (category == state_.markerColors.Color(MarkerColors::kHoliday)) {
            state_.services.dialogs.MsgBox(kUseHolidayManagerMessage, kWarningStyle);
            return;
        }
        // The cell's flag is cleared in both years' tables. The note goes with the mark: it is
        // only ever saved with one, so keeping it would bring it back on the next mark.
        marks.MarkSet[day.cell] = 0;
        marks.NextMarkSet[day.cell] = 0;
        marks.CategoryTable(day.nextYear)[day.cell] = 0;
        marks.HoverTable(day.nextYear)[day.cell].clear();
        marks.SaveNextYearsMarks();
        marks.SaveThisYearsMarks();
        RedrawViewOnShow();
    });
}

QString DateActions::HoverTitle(const QDate& date) const {
    // The day is named by its mark's caption, or by its weekday when it has no known mark.
    QString dayText = date.toString(QStringLiteral("dddd"));
    if (const auto cell = state_.dates.FindDay(date)) {
        const bool nextYear = state_.dates.IsNextYear(date);
        DateMarks& marks = state_.marks;
        const int category = state_.markerColors.IndexOfColor(
            static_cast<quint32>(marks.CategoryTable(nextYear)[*cell]));
        if (marks.SetTable(nextYear)[*cell] != 0 && category >= 0)
            dayText = state_.markerColors.Caption(category);
    }
    return kHoverTitlePrefix + dayText + QStringLiteral(" for ") + datefmt::ShortDate(date);
}

void DateActions::mnuOptDateAttachHoverText_Click() {
    state_.services.Trap("mnuOptDateAttachHoverText_Click", [&] {
        const Day day = SelectedCell();
        // The note is kept on the day's line of the marks file, which only a marked day has.
        if (state_.marks.SetTable(day.nextYear)[day.cell] == 0) {
            state_.services.dialogs.MsgBox(kHoverNeedsMarkMessage, kWarningStyle);
            return;
        }
        QString& hover = state_.marks.HoverTable(day.nextYear)[day.cell];
        const QString answer = state_.services.dialogs.InputBox(
            kHoverPrompt, HoverTitle(state_.dates.SelectedDate), hover);
        if (answer.isEmpty())
            return;
        if (answer.contains(QLatin1Char('\r')) || answer.contains(QLatin1Char('\n'))) {
            state_.services.dialogs.MsgBox(kHoverLineBreakMessage, kWarningStyle);
            return;
        }
        if (const auto bad = textfile::FirstUnstorableCharacter(answer)) {
            state_.services.dialogs.MsgBox(textfile::UnstorableCharacterMessage(*bad),
                                           kWarningStyle);
            return;
        }
        hover = answer;
        state_.marks.Save(day.nextYear);
        state_.marks.ReadAndDisplay(day.nextYear);
    });
}

void DateActions::mnuEditDeleteMarks_Click() {
    state_.services.Trap("mnuEditDeleteMarks_Click", [&] {
        if (state_.services.dialogs.MsgBox(kDeleteMarksQuestion, kQuestionStyle) != vb::Yes)
            return;
        state_.marks.DeleteThisYearsMarks();
        RedrawViewOnShow();
    });
}

void DateActions::mnuOptCalendarRestoreMarks_Click() {
    state_.services.Trap("mnuOptCalendarRestoreMarks_Click", [&] {
        if (!state_.marks.RestoreThisYearsMarks()) {
            state_.services.dialogs.MsgBox(kNoMarksBackupMessage, kWarningStyle);
            return;
        }
        RedrawViewOnShow();
    });
}

void DateActions::mnuEditMark_Click(int index) {
    state_.services.Trap("mnuEditMark_Click", [&] {
        if (index < 0 || index >= MarkerColors::kCount)
            Raise(err::SubscriptOutOfRange);
        state_.markerColors.SetHidden(index, !state_.markerColors.Hidden(index));
        RedrawViewOnShow();
    });
}

void DateActions::mnuEditMarksShowAll_Click() {
    state_.services.Trap("mnuEditMarksShowAll_Click", [&] {
        state_.markerColors.ShowAll();
        RedrawViewOnShow();
    });
}

void DateActions::mnuEditMarksHideAll_Click() {
    state_.services.Trap("mnuEditMarksHideAll_Click", [&] {
        state_.markerColors.HideAll();
        RedrawViewOnShow();
    });
}

void DateActions::mnuEditMarkerSaveSettings_Click() {
    state_.markerColors.SaveMarkerColors(state_.services);
}

void DateActions::mnuOptDateRemoveAll_Click() {
    state_.services.Trap("mnuOptDateRemoveAll_Click", [&] {
        // The month's icons are removed by the icon store once there is one; until then the
        // question is all there is.
        state_.services.dialogs.MsgBox(kRemoveIconsQuestion, kQuestionStyle, kRemoveIconsTitle);
    });
}

bool DateActions::IsDriveLetter(const QString& answer) {
    static const QRegularExpression letter(QStringLiteral("^[A-Z]$"),
                                           QRegularExpression::CaseInsensitiveOption);
    return letter.match(answer).hasMatch();
}

void DateActions::mnuOptNetworkShare_Click() {
    state_.services.Trap("mnuOptNetworkShare_Click", [&] {
        const QString answer =
            state_.services.dialogs.InputBox(kShareDrivePrompt, kShareDriveTitle);
        if (answer.isEmpty())
            return;
        if (!IsDriveLetter(answer)) {
            state_.services.dialogs.MsgBox(kBadDriveLetterMessage, kWarningStyle);
            return;
        }
        state_.prefs.SetValue(prefkey::NetworkShareDrive, answer);
        state_.prefs.SaveUserPreferences(state_.services);
    });
}

void DateActions::mnuOptCreateShortcut_Click(const QString& programFile) {
    state_.services.Trap("mnuOptCreateShortcut_Click", [&] {
        Dialogs& dialogs = state_.services.dialogs;
        try {
            state_.services.platform.CreateShortcut(
                kShortcutName, programFile,
                {QStringLiteral("--data-dir"), state_.services.AppFolder});
        } catch (const VbError& error) {
            dialogs.MsgBox(kShortcutFailedPrefix + QString::number(error.number()) +
                               QStringLiteral(" : ") + error.description(),
                           kWarningStyle);
            return;
        }
        dialogs.MsgBox(kShortcutAddedMessage, kInformationStyle);
    });
}

void DateActions::mnuSupportReportProblem_Click() {
    state_.services.Trap("mnuSupportReportProblem_Click", [&] {
        state_.services.dialogs.MsgBox(kReportProblemMessage, kInformationStyle);
        state_.services.platform.OpenUrl(kMakerSite + kBugReportPage);
    });
}

void DateActions::mnuSupportSendErrorLog_Click() {
    state_.services.Trap("mnuSupportSendErrorLog_Click", [&] {
        Services& services = state_.services;
        services.dialogs.MsgBox(kSendErrorLogMessage, kInformationStyle);
        QString path;
        if (!FileExists(services.AppFolder, kErrorLogFile, &path)) {
            services.dialogs.MsgBox(kLogFileNotFoundMessage, kWarningStyle);
            return;
        }
        services.platform.SetClipboardText(textfile::ReadAll(path));
        services.platform.OpenUrl(kMakerSite + kErrorLogPage);
    });
}
