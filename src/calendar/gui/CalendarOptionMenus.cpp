#include "calendar/gui/CalendarOptionMenus.h"

#include <QComboBox>

#include "calendar/DateModel.h"
#include "calendar/gui/CalendarMenus.h"
#include "calendar/gui/frmFindDate.h"
#include "shell/Services.h"
#include "shell/UserPreferences.h"
#include "shell/gui/frmMain.h"

namespace {

const QString kOn = QStringLiteral("-1");
const QString kOff = QStringLiteral("0");

}  // namespace

CalendarOptionMenus::CalendarOptionMenus(frmMain& frame, Services& services, const DateModel& dates,
                                         UserPreferences& prefs, CalendarMenus& calendar)
    : QObject(&frame),
      frame_(frame),
      services_(services),
      dates_(dates),
      prefs_(prefs),
      calendar_(calendar) {
    Handle(frame.MenuItem(QStringLiteral("mnuDateFind")), this,
           [this] { services_.Trap("mnuDateFind_Click", [this] { mnuDateFind_Click(); }); });
    QAction* offset = frame.MenuItem(QStringLiteral("mnuOptCalNumbersOffset"));
    offset->setCheckable(true);
    Handle(offset, this, &CalendarOptionMenus::mnuOptCalNumbersOffset_Click);
}

void CalendarOptionMenus::ShowAtStart() {
    ShowNumbersOffset(prefs_.Value(prefkey::ShowNumbersOffset).trimmed() == kOn);
}

frmFindDate* CalendarOptionMenus::mnuDateFind_Click() {
    // A found date is chosen the way the year selector chooses one, so it may be any year
    // that selector offers.
    const auto* years = frame_.Control<QComboBox>(QStringLiteral("cmbYear"));
    const int firstYear = years->itemText(0).toInt();
    const int lastYear = years->itemText(years->count() - 1).toInt();
    auto* window = static_cast<frmFindDate*>(
        frame_.ShowChild(QString::fromLatin1(frmFindDate::kName), [this, firstYear, lastYear] {
            frmMain* frame = &frame_;
            return new frmFindDate(services_, dates_, firstYear, lastYear,
                                   [frame](const QDate& date) { emit frame->dateChosen(date); });
        }));
    window->setFocus();
    return window;
}

void CalendarOptionMenus::mnuOptCalNumbersOffset_Click() {
    services_.Trap("mnuOptCalNumbersOffset_Click", [this] {
        const bool on = frame_.MenuItem(QStringLiteral("mnuOptCalNumbersOffset"))->isChecked();
        ShowNumbersOffset(on);
        prefs_.SetValue(prefkey::ShowNumbersOffset, on ? kOn : kOff);
        prefs_.SaveUserPreferences(services_);
    });
}

void CalendarOptionMenus::ShowNumbersOffset(bool on) {
    frame_.MenuItem(QStringLiteral("mnuOptCalNumbersOffset"))->setChecked(on);
    calendar_.SetNumbersOffset(on);
}
