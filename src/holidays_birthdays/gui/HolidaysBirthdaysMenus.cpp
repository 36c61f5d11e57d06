#include "holidays_birthdays/gui/HolidaysBirthdaysMenus.h"

#include <QEvent>
#include <QLabel>
#include <QListWidget>
#include <algorithm>

#include "calendar/DateModel.h"
#include "calendar/MarkerColors.h"
#include "calendar/gui/CalendarMenus.h"
#include "holidays_birthdays/gui/frmBirthdays.h"
#include "holidays_birthdays/gui/frmHolidays.h"
#include "holidays_birthdays/modBirthdays.h"
#include "holidays_birthdays/modHolidays.h"
#include "shell/DateFormats.h"
#include "shell/Services.h"
#include "shell/gui/Icons.h"
#include "shell/gui/frmMain.h"

namespace {

constexpr int kBirthdayPictures = 3;

// "Date = March 15" for a birthday kept as "03/15".
QString BirthdayDateText(const QString& birthday) {
    const int month = birthday.left(2).toInt();
    if (month < 1 || month > 12)
        return QStringLiteral("Date = ") + birthday;
    return QStringLiteral("Date = ") + datefmt::MonthName(month) + QLatin1Char(' ') +
           QString::number(birthday.mid(3, 2).toInt());
}

}  // namespace

HolidaysBirthdaysMenus::HolidaysBirthdaysMenus(HolidaysBirthdaysContext context)
    : QObject(&context.frame),
      context_(context),
      lstBirthdays_(context.frame.Control<QListWidget>(QStringLiteral("lstBirthdays"))),
      lblBirthdayDate_(context.frame.Control<QLabel>(QStringLiteral("lblBirthdayDate"))),
      lblHoliday_(context.frame.Control<QLabel>(QStringLiteral("lblHoliday"))) {
    context_.calendar.AddDayDecorator([this](const QDate& date, DayLook& look) {
        look.captions += context_.holidays.HolidaysOn(date);
        look.captions += context_.birthdays.BirthdaysOn(date);
    });
    connect(&context_.birthdays, &BirthdayStore::birthdaysRead, this, [this] {
        ShowPendingBirthdays();
        context_.calendar.RedrawCalendar();
    });
    // A new day may bring birthdays within their alert period, or take them out of it.
    connect(&context_.frame, &frmMain::todayChanged, this,
            [this] { context_.birthdays.ReadBirthdays(); });
    connect(&context_.holidays, &HolidayStore::holidaysAssigned, this,
            &HolidaysBirthdaysMenus::ShowHoliday);
    connect(&context_.dates, &DateModel::selectedDateChanged, this,
            &HolidaysBirthdaysMenus::ShowHoliday);
    connect(lstBirthdays_, &QListWidget::currentRowChanged, this,
            &HolidaysBirthdaysMenus::lstBirthdays_Click);
    ConnectMenus();
}

void HolidaysBirthdaysMenus::ConnectMenus() {
    frmMain& frame = context_.frame;
    Handle(frame.MenuItem(QStringLiteral("mnuManageHolidays")), this, [this] { OpenHolidays(); });
    Handle(frame.MenuItem(QStringLiteral("mnuManageBDays")), this, [this] { OpenBirthdays(); });
    for (int i = 0; i < kBirthdayPictures; ++i) {
        auto* picture = frame.Control<QLabel>(ArrayName(QStringLiteral("imgBDay"), i));
        picture->setCursor(Qt::PointingHandCursor);
        picture->installEventFilter(this);
    }
    // Marking a day as a Birthday or a Holiday goes on in its manager, on that day.
    connect(frame.MenuItem(ArrayName(QStringLiteral("mnuOptDateMarkAs"), MarkerColors::kBirthday)),
            &QAction::triggered, this, [this] {
                const QDate date = context_.dates.SelectedDate;
                OpenBirthdays()->PresetNewBirthday(date.month(), date.day());
            });
    connect(frame.MenuItem(ArrayName(QStringLiteral("mnuOptDateMarkAs"), MarkerColors::kHoliday)),
            &QAction::triggered, this,
            [this] { OpenHolidays()->PresetNewHoliday(context_.dates.SelectedDate); });
}

frmHolidays* HolidaysBirthdaysMenus::OpenHolidays() {
    QWidget* window = context_.frame.ShowChild(QString::fromLatin1(frmHolidays::kName),
                                               [this] { return new frmHolidays(context_); });
    window->setFocus();
    return static_cast<frmHolidays*>(window);
}

frmBirthdays* HolidaysBirthdaysMenus::OpenBirthdays() {
    QWidget* window = context_.frame.ShowChild(QString::fromLatin1(frmBirthdays::kName),
                                               [this] { return new frmBirthdays(context_); });
    window->setFocus();
    return static_cast<frmBirthdays*>(window);
}

void HolidaysBirthdaysMenus::ShowPendingBirthdays() {
    const QString text = context_.birthdays.PendingText();
    const bool pending = !context_.birthdays.pending.isEmpty();
    for (int i = 0; i < kBirthdayPictures; ++i) {
        auto* picture = context_.frame.Control<QLabel>(ArrayName(QStringLiteral("imgBDay"), i));
        picture->setPixmap(icons::Cake(pending));
        picture->setToolTip(text);
    }
    QList<BirthdayRecord> people = context_.birthdays.pending;
    std::stable_sort(people.begin(), people.end(),
                     [](const BirthdayRecord& a, const BirthdayRecord& b) {
                         return a.name.compare(b.name, Qt::CaseInsensitive) < 0;
                     });
    lstBirthdays_->clear();
    for (const BirthdayRecord& person : people) {
        auto* item = new QListWidgetItem(person.name, lstBirthdays_);
        item->setData(Qt::UserRole, person.birthday);
    }
    lblBirthdayDate_->setText(QStringLiteral("Date ="));
}

void HolidaysBirthdaysMenus::lstBirthdays_Click() {
    const QListWidgetItem* item = lstBirthdays_->currentItem();
    lblBirthdayDate_->setText(item ? BirthdayDateText(item->data(Qt::UserRole).toString())
                                   : QStringLiteral("Date ="));
}

void HolidaysBirthdaysMenus::ShowHoliday() {
    const QStringList names = context_.holidays.HolidaysOn(context_.dates.SelectedDate);
    lblHoliday_->setText(QStringLiteral("Holiday = ") + (names.isEmpty()
                                                             ? QStringLiteral("None Chosen")
                                                             : names.join(QStringLiteral(", "))));
}

bool HolidaysBirthdaysMenus::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease) {
        context_.services.Trap("imgBDay_Click", [this] { OpenBirthdays(); });
        return true;
    }
    return QObject::eventFilter(watched, event);
}
