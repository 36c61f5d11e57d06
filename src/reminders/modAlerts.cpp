#include "reminders/modAlerts.h"

#include "reminders/RemindersMessages.h"
#include "shell/Files.h"
#include "shell/FixedWidth.h"
#include "shell/SavePath.h"
#include "shell/Services.h"
#include "shell/TextFile.h"

namespace {

// The day numbers count from this day, which is day 0.
constexpr qint64 kDayZeroJulian = 2415019;  // 30 December 1899

constexpr Field kDateField{0, 5};
constexpr Field kPeriodField{6, 4};
constexpr qsizetype kMessageStart = 11;

int DigitsOf(QStringView field) {
    int value = 0;
    for (const QChar c : field) {
        if (c < u'0' || c > u'9')
            Raise(err::TypeMismatch);
        value = value * 10 + (c.unicode() - u'0');
    }
    return value;
}

}  // namespace

int DaySerial(const QDate& date) {
    return int(date.toJulianDay() - kDayZeroJulian);
}

QDate DateOfSerial(int serial) {
    return QDate::fromJulianDay(kDayZeroJulian + serial);
}

QString SerialText(const QDate& date) {
    return QString::number(DaySerial(date)).left(kDateField.width);
}

bool FitsAlertFile(const QDate& date) {
    const int serial = DaySerial(date);
    return serial >= 10000 && serial <= 99999;
}

AlertLine ParseAlertLine(QStringView line) {
    if (line.size() < kMessageStart)
        Raise(err::TypeMismatch);
    AlertLine alert;
    alert.date = DateOfSerial(DigitsOf(kDateField.Raw(line)));
    alert.period = qint16(DigitsOf(kPeriodField.Raw(line)));
    alert.message = line.mid(kMessageStart).toString();
    return alert;
}

QString MakeAlertLine(const QDate& date, int period, const QString& message) {
    return SerialText(date) + QLatin1Char(':') +
           QStringLiteral("%1").arg(period, 4, 10, QLatin1Char('0')) + QLatin1Char(':') +
           OnOneLine(message);
}

const RecordLayout& AlertsLayout() {
    static const RecordLayout layout;
    return layout;
}

bool IsPendingOn(const QDate& date, int period, const QDate& today) {
    const int day = DaySerial(date), now = DaySerial(today);
    return day >= now && day <= now + period;
}

AlertIndicator IndicatorFor(int lineCount, int pendingCount) {
    using Back = AlertIndicator::Back;
    if (pendingCount > 0)
        return {QString::number(pendingCount) +
                    (pendingCount == 1 ? kPendingAlertSuffix : kPendingAlertsSuffix),
                kPendingAlertsTip, true, kAlertsExistTip, Back::Yellow};
    return {kNoPendingAlerts, kAllAlertsTip, false, kNoAlertsExistTip,
            lineCount > 0 ? Back::ButtonFace : Back::Unchanged};
}

AlertsStore::AlertsStore(Services& services) : services_(services) {}

QStringList AlertsStore::PendingAlertLines() const {
    QStringList lines;
    for (const int alert : pendingAlerts)
        lines.append(alertLines[alert]);
    return lines;
}

void AlertsStore::Clear() {
    alertLines.clear();
    alertDates.clear();
    alertPeriods.clear();
    alertMessages.clear();
    pendingAlerts.clear();
}

void AlertsStore::ReadAlerts() {
    Clear();
    // Today as a day number: the time of day does not count.
    const QDate today = services_.clock.today();
    ReadDataFile(services_, "ReadAlerts", file_, [&](QByteArrayView bytes, int) {
        const QString line = LineText(bytes);
        const AlertLine alert = ParseAlertLine(line);
        alertLines.append(line);
        alertDates.append(alert.date);
        alertPeriods.append(alert.period);
        alertMessages.append(alert.message);
    });
    fileFound_ = file_.Stamp().exists || file_.PartlyRead();
    for (int i = 0; i < AlertCount(); ++i)
        if (IsPendingOn(alertDates[i], alertPeriods[i], today))
            pendingAlerts.append(i);
    emit alertsRead(fileFound_);
}

bool AlertsStore::SaveAlerts(const QStringList& lines) {
    Records records(AlertsLayout());
    for (const QString& line : lines) {
        // The day number and the period are the line's first fields; the message is all
        // after them, colons included.
        if (!line.isEmpty())
            records.Add({kDateField.Raw(line), kPeriodField.Raw(line),
                         OnOneLine(QStringView(line).mid(kMessageStart))});
    }
    const QString message = records.IsEmpty() ? QString() : kAlertListUpdated;
    const SaveResult result = SaveDataFile(services_, "SaveAlerts", file_, records, message);
    if (result == SaveResult::Refused)
        return false;
    AlertListChanged = false;
    if (result == SaveResult::Merged)
        ReadAlerts();
    return true;
}
