#include "calendar/DateActions.h"

#include "calendar/CalendarDisplay.h"
#include "calendar/CalendarMessages.h"
#include "calendar/DateModel.h"
#include "calendar/MarkerColors.h"
#include "calendar/modMarks.h"
#include "shell/DateFormats.h"
#include "shell/Services.h"

namespace {

// A mark's MarkSet value.
constexpr qint16 kMarked = -1;

}  // namespace

DateActions::DateActions(Services& services, DateModel& dates, MarkerColors& colors,
                         DateMarks& marks, CalendarDisplay& display)
    : services_(services), dates_(dates), colors_(colors), marks_(marks), display_(display) {}

DateActions::Day DateActions::SelectedCell() const {
    const QDate date = dates_.SelectedDate;
    const auto cell = dates_.FindDay(date);
    if (!cell)
        Raise(err::SubscriptOutOfRange);
    return {*cell, dates_.YearSlotOf(date)};
}

void DateActions::MarkSelectedDate(quint32 color) {
    const Day day = SelectedCell();
    marks_.years[day.year].set[day.cell] = kMarked;
    marks_.years[day.year].category[day.cell] = static_cast<qint32>(color);
}

void DateActions::RedrawViewOnShow() {
    switch (display_.ViewOnShow()) {
        case ViewKind::OneMonth:
            return display_.Show1MonthCalendar();
        case ViewKind::SixMonths:
            return display_.Show6MonthCalendar();
        case ViewKind::OneYear:
            return display_.Show1YearCalendar();
        case ViewKind::None:
            return;
    }
}

void DateActions::mnuOptDateMarkAs_Click(int index) {
    services_.Trap("mnuOptDateMarkAs_Click", [&] {
        if (index < 0 || index >= MarkerColors::kUserCategories)
            Raise(err::SubscriptOutOfRange);
        MarkSelectedDate(colors_.Color(index));
        const Year year = SelectedCell().year;
        marks_.Save(year);
        marks_.ReadAndDisplay(year);
        RedrawViewOnShow();
    });
}

void DateActions::mnuOptDateQuickMark_Click() {
    services_.Trap("mnuOptDateQuickMark_Click", [&] {
        MarkSelectedDate(colors_.Color(MarkerColors::kQuickMarkColor));
        display_.ReDraw1MonthDateMarks();
        display_.ReDraw6MonthDateMarks();
        display_.ReDrawDateMarks();
        marks_.SaveNextYearsMarks();
        marks_.ReadAndDisplayNextYearsMarks();
        marks_.SaveThisYearsMarks();
        marks_.ReadAndDisplayThisYearsMarks();
    });
}

void DateActions::mnuOptDateClearMark_Click() {
    services_.Trap("mnuOptDateClearMark_Click", [&] {
        const Day day = SelectedCell();
        MarkTables& tables = marks_.years[day.year];
        if (tables.set[day.cell] == 0)
            return;
        const auto category = static_cast<quint32>(tables.category[day.cell]);
        if (category == colors_.Color(MarkerColors::kBirthday)) {
            services_.dialogs.MsgBox(kUseBirthdayManagerMessage, kWarningStyle);
            return;
        }
        if (category == colors_.Color(MarkerColors::kHoliday)) {
            services_.dialogs.MsgBox(kUseHolidayManagerMessage, kWarningStyle);
            return;
        }
        // The cell's flag is cleared in both years' tables. The note goes with the mark: it is
        // only ever saved with one, so keeping it would bring it back on the next mark.
        marks_.MarkSet[day.cell] = 0;
        marks_.NextMarkSet[day.cell] = 0;
        tables.category[day.cell] = 0;
        tables.hover[day.cell].clear();
        marks_.SaveNextYearsMarks();
        marks_.SaveThisYearsMarks();
        RedrawViewOnShow();
    });
}

QString DateActions::HoverTitle(const QDate& date) const {
    // The day is named by its mark's caption, or by its weekday when it has no known mark.
    QString dayText = date.toString(QStringLiteral("dddd"));
    if (const auto cell = dates_.FindDay(date)) {
        const MarkTables& tables = marks_.years[dates_.YearSlotOf(date)];
        const int category = colors_.IndexOfColor(static_cast<quint32>(tables.category[*cell]));
        if (tables.set[*cell] != 0 && category >= 0)
            dayText = colors_.Caption(category);
    }
    return kHoverTitlePrefix + dayText + QStringLiteral(" for ") + datefmt::ShortDate(date);
}

void DateActions::mnuOptDateAttachHoverText_Click() {
    services_.Trap("mnuOptDateAttachHoverText_Click", [&] {
        const Day day = SelectedCell();
        MarkTables& tables = marks_.years[day.year];
        // The note is kept on the day's line of the marks file, which only a marked day has.
        if (tables.set[day.cell] == 0) {
            services_.dialogs.MsgBox(kHoverNeedsMarkMessage, kWarningStyle);
            return;
        }
        const QString answer = services_.dialogs.InputBox(
            kHoverPrompt, HoverTitle(dates_.SelectedDate), tables.hover[day.cell]);
        if (answer.isEmpty())
            return;
        if (answer.contains(QLatin1Char('\r')) || answer.contains(QLatin1Char('\n'))) {
            services_.dialogs.MsgBox(kHoverLineBreakMessage, kWarningStyle);
            return;
        }
        // Checked before the note goes into the year, which then holds only what can be saved.
        if (const auto problem = FieldProblem(MarksLayout(), answer, true)) {
            services_.dialogs.MsgBox(*problem, kWarningStyle);
            return;
        }
        tables.hover[day.cell] = answer;
        marks_.Save(day.year);
        marks_.ReadAndDisplay(day.year);
    });
}

void DateActions::mnuEditDeleteMarks_Click() {
    services_.Trap("mnuEditDeleteMarks_Click", [&] {
        if (services_.dialogs.MsgBox(kDeleteMarksQuestion, kQuestionStyle) != vb::Yes)
            return;
        marks_.DeleteThisYearsMarks();
        RedrawViewOnShow();
    });
}

void DateActions::mnuOptCalendarRestoreMarks_Click() {
    services_.Trap("mnuOptCalendarRestoreMarks_Click", [&] {
        if (!marks_.RestoreThisYearsMarks()) {
            services_.dialogs.MsgBox(kNoMarksBackupMessage, kWarningStyle);
            return;
        }
        RedrawViewOnShow();
    });
}

void DateActions::mnuEditMark_Click(int index) {
    services_.Trap("mnuEditMark_Click", [&] {
        if (index < 0 || index >= MarkerColors::kCount)
            Raise(err::SubscriptOutOfRange);
        colors_.SetHidden(index, !colors_.Hidden(index));
        RedrawViewOnShow();
    });
}

void DateActions::mnuEditMarksShowAll_Click() {
    services_.Trap("mnuEditMarksShowAll_Click", [&] {
        colors_.ShowAll();
        RedrawViewOnShow();
    });
}

void DateActions::mnuEditMarksHideAll_Click() {
    services_.Trap("mnuEditMarksHideAll_Click", [&] {
        colors_.HideAll();
        RedrawViewOnShow();
    });
}

void DateActions::mnuEditMarkerSaveSettings_Click() {
    colors_.SaveMarkerColors(services_);
}
