// "Alerts.dat" on any bytes: the reader never crashes; every alert it keeps is a well-formed
// line whose date, period and message come back the same when written again, and only alerts it
// keeps are pending.
#include "FuzzSupport.h"
#include "reminders/modAlerts.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzz::WriteInput(kAlertsFile, data, size);
    AlertsStore alerts(fuzz::services());
    alerts.ReadAlerts();
    fuzz::Check(alerts.FileFound(), "the file written is found");
    const int count = alerts.AlertCount();
    fuzz::Check(alerts.alertDates.size() == count && alerts.alertPeriods.size() == count &&
                    alerts.alertMessages.size() == count,
                "the tables stay parallel");
    for (int i = 0; i < count; ++i) {
        const QString& line = alerts.alertLines[i];
        fuzz::Check(!line.contains(u'\r') && !line.contains(u'\n'), "an alert is one line");
        fuzz::Check(alerts.alertMessages[i] == line.mid(11), "the message is the line's end");
        fuzz::Check(alerts.alertPeriods[i] >= 0 && alerts.alertPeriods[i] <= 9999,
                    "a period has four digits");
        if (!FitsAlertFile(alerts.alertDates[i]))
            continue;
        const AlertLine again = ParseAlertLine(
            MakeAlertLine(alerts.alertDates[i], alerts.alertPeriods[i], alerts.alertMessages[i]));
        fuzz::Check(again.date == alerts.alertDates[i] && again.period == alerts.alertPeriods[i] &&
                        again.message == alerts.alertMessages[i],
                    "an alert written again reads back the same");
    }
    for (const int alert : alerts.pendingAlerts)
        fuzz::Check(alert >= 0 && alert < count, "only alerts read are pending");
    return 0;
}
