#include "ical/gui/ICalMenus.h"

#include <QDir>
#include <QFileInfo>

#include "calendar/DateModel.h"
#include "calendar/MarkerColors.h"
#include "holidays_birthdays/IcsHolidays.h"
#include "ical/IcalMessages.h"
#include "ical/IcalTransfer.h"
#include "notes_planner/gui/frmNotes.h"
#include "notes_planner/gui/frmPlanner.h"
#include "shell/SafeSave.h"
#include "shell/Services.h"
#include "shell/gui/Controls.h"
#include "shell/gui/frmMain.h"

ICalMenus::ICalMenus(frmMain& frame, Stores stores)
    : QObject(&frame), frame_(frame), stores_(stores) {
    Handle(frame.MenuItem(QStringLiteral("mnuFileExportICal")), this, [this] {
        stores_.services.Trap("mnuFileExportICal_Click", [this] { mnuFileExportICal_Click(); });
    });
    Handle(frame.MenuItem(QStringLiteral("mnuFileImportICal")), this, [this] {
        stores_.services.Trap("mnuFileImportICal_Click", [this] { mnuFileImportICal_Click(); });
    });
}

void ICalMenus::mnuFileExportICal_Click() {
    Services& services = stores_.services;
    QString path = services.dialogs.SaveFileName(
        kExportICalTitle, QDir::home().filePath(QStringLiteral("Orvanta.ics")), kICalFilter);
    if (path.isEmpty())
        return;
    if (QFileInfo(path).suffix().isEmpty())
        path += QStringLiteral(".ics");
    const IcsExport exported = ExportDataFolder(services, stores_.prefs, DateRange{});
    if (!exported.problem.isEmpty()) {
        services.dialogs.MsgBox(exported.problem, kWarningStyle, kExportICalTitle);
        return;
    }
    safesave::Replace(path, exported.bytes);
    services.dialogs.MsgBox(ICalExportedMessage(exported.components, path), kInformationStyle,
                            kExportICalTitle);
}

void ICalMenus::mnuFileImportICal_Click() {
    // A page or note open for editing would be saved over what the import puts on its date.
    for (const char* window : {frmPlanner::kName, frmNotes::kName}) {
        if (frame_.ChildWindow(QString::fromLatin1(window))) {
            stores_.services.dialogs.MsgBox(kICalCloseEditorsMessage, kWarningStyle,
                                            kImportICalTitle);
            return;
        }
    }
    const QString path =
        stores_.services.dialogs.OpenFileName(kImportICalTitle, QDir::homePath(), kICalFilter);
    if (!path.isEmpty())
        ImportFile(path);
}

void ICalMenus::ImportFile(const QString& path) {
    Dialogs& dialogs = stores_.services.dialogs;
    const std::optional<QByteArray> read = ReadIcsFile(path);
    if (!read) {
        dialogs.MsgBox(ICalUnreadableMessage(path), kWarningStyle, kImportICalTitle);
        return;
    }
    const QByteArray& bytes = *read;
    const QTimeZone zone = ImportZone(stores_.prefs);
    DateRange range = YearRange(stores_.dates.ThisYear);
    IcsContent content = ReadIcs(bytes, range, zone);
    if (!content.problem.isEmpty()) {
        dialogs.MsgBox(content.problem, kWarningStyle, kImportICalTitle);
        return;
    }
    if (content.repeats) {
        std::optional<DateRange> years;
        while (!years) {
            const QString typed = dialogs.InputBox(kICalYearsPrompt, kImportICalTitle,
                                                   QString::number(stores_.dates.ThisYear));
            if (typed.isEmpty())
                return;
            years = ParseYearRange(typed);
            if (!years)
                dialogs.MsgBox(kICalYearsRefused, kWarningStyle, kImportICalTitle);
        }
        if (years->from != range.from || years->to != range.to) {
            range = *years;
            content = ReadIcs(bytes, range, zone);
        }
    }
    AllDayAs allDay = AllDayAs::LeftOut;
    if (!content.allDay.isEmpty()) {
        const int answer = dialogs.MsgBox(ICalAllDayQuestion(content.allDay.size()),
                                          vb::YesNoCancel | vb::Question, kImportICalTitle);
        allDay = answer == vb::Yes  ? AllDayAs::Holidays
                 : answer == vb::No ? AllDayAs::Marks
                                    : AllDayAs::LeftOut;
    }
    const ImportPlan plan =
        PlanImport(stores_.services, content, allDay, stores_.colors.Color(MarkerColors::kHoliday));
    if (plan.IsEmpty()) {
        dialogs.MsgBox(PreviewText(plan), kInformationStyle, kImportICalTitle);
        return;
    }
    if (dialogs.MsgBox(ICalPreviewQuestion(PreviewText(plan)), kQuestionStyle, kImportICalTitle) !=
        vb::Yes)
        return;
    // A file that could not be read whole took nothing: the import was then only in part.
    const bool all = ApplyImport({stores_.services, stores_.planner, stores_.notes,
                                  stores_.holidays, stores_.marks, stores_.dates},
                                 plan) &&
                     plan.unreadFiles.isEmpty();
    dialogs.MsgBox(all ? kICalImportedMessage : kICalImportedInPartMessage, kInformationStyle,
                   kImportICalTitle);
}
