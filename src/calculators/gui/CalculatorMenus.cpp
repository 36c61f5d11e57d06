#include "calculators/gui/CalculatorMenus.h"

#include "calculators/gui/frmDateDiff.h"
#include "calculators/gui/frmNumDays.h"
#include "calendar/DateModel.h"
#include "shell/gui/frmMain.h"

namespace {

// Each interval item, the interval it chooses and the code that counts it. Calendar years and
// months are counted as years and months are, by the year and month starts passed; calendar
// weeks by the Sundays passed, where "Weeks" counts whole seven-day periods.
struct IntervalItem {
    const char* menu;
    const char* interval;
    const char* code;
};
constexpr IntervalItem kIntervalItems[] = {
    {"mnuDateDiffSYears", "Years", "yyyy"},
    {"mnuDateDiffSQuarters", "Quarters", "q"},
    {"mnuDateDiffSMonths", "Months", "m"},
    {"mnuDateDiffSWeeks", "Weeks", "w"},
    {"mnuDateDiffSDays", "Days", "d"},
    {"mnuDateDiffSHours", "Hours", "h"},
    {"mnuDateDiffSMinutes", "Minutes", "n"},
    {"mnuDateDiffSSeconds", "Seconds", "s"},
    {"mnuDateDiffCYears", "Calendar Years", "yyyy"},
    {"mnuDateDiffCMonths", "Calendar Months", "m"},
    {"mnuDateDiffCWeeks", "Calendar Weeks", "ww"},
};

}  // namespace

CalculatorMenus::CalculatorMenus(frmMain& frame, Services& services, const DateModel& dates)
    : QObject(&frame), frame_(frame), services_(services), dates_(dates) {
    for (const IntervalItem& item : kIntervalItems) {
        const QString menu = QString::fromLatin1(item.menu);
        Handle(frame_.MenuItem(menu), this, [this, item, menu] {
            services_.Trap(qPrintable(menu + QStringLiteral("_Click")), [this, item] {
                OpenDateDiff(QString::fromLatin1(item.interval), QString::fromLatin1(item.code));
            });
        });
    }
    Handle(frame_.MenuItem(QStringLiteral("mnuNumOfDays")), this,
           [this] { services_.Trap("mnuNumOfDays_Click", [this] { mnuNumOfDays_Click(); }); });
}

frmDateDiff* CalculatorMenus::OpenDateDiff(const QString& interval, const QString& code) {
    auto* window =
        static_cast<frmDateDiff*>(frame_.ShowChild(QString::fromLatin1(frmDateDiff::kName), [this] {
            return new frmDateDiff(services_, services_.clock.today(), dates_.SelectedDate);
        }));
    window->ChooseInterval(interval, code);
    window->setFocus();
    return window;
}

frmNumDays* CalculatorMenus::mnuNumOfDays_Click() {
    const QDate selected = dates_.SelectedDate;
    const QDate first(selected.year(), selected.month(), 1);
    auto* window =
        static_cast<frmNumDays*>(frame_.ShowChild(QString::fromLatin1(frmNumDays::kName), [&] {
            return new frmNumDays(services_, first, first.addMonths(1).addDays(-1));
        }));
    window->setFocus();
    return window;
}
