#pragma once

#include <QDate>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <optional>

#include "shell/DataFile.h"
#include "shell/Records.h"

class Services;

inline const QString kAlertsFile = QStringLiteral("Alerts.dat");

// ---- one alert line ------------------------------------------------------------------------
//
// "39737:0007:Send the quarterly figures": the alert's date as its day number (days since
// 30 December 1899) in columns 1-5, ":", the notification period in days as four digits, ":",
// and the message to the end of the line. Only the first eleven characters are positional, so
// the message may hold ":" itself.

// The day number of date: days since 30 December 1899.
int DaySerial(const QDate& date);
QDate DateOfSerial(int serial);
// What the file keeps of a date: the first five characters of its day number. A date of
// another time of the same day has the same text: the time of day is cut off, never rounded.
QString SerialText(const QDate& date);
// True when date's day number has exactly the five digits the file keeps (18 May 1927 to
// 13 October 2173).
bool FitsAlertFile(const QDate& date);

struct AlertLine {
    QDate date;
    qint16 period = 0;
    QString message;
};

// Reads a line of the file; a line shorter than eleven characters, or with anything but
// digits where the date and the period stand, raises a type mismatch (error 13).
AlertLine ParseAlertLine(QStringView line);
// The line of an alert: the period padded with zeros to four digits ("7" is "0007"). The
// message is kept on one line.
QString MakeAlertLine(const QDate& date, int period, const QString& message);
// The layout of "Alerts.dat": day number, period and message (which may hold ":"); no alerts,
// no file.
const RecordLayout& AlertsLayout();
// An alert counts as pending from period days before its date up to its date itself, both
// ends included, and never after it.
bool IsPendingOn(const QDate& date, int period, const QDate& today);

// ---- the main window's indicator -----------------------------------------------------------

struct AlertIndicator {
    enum class Back { Unchanged, ButtonFace, Yellow };
    QString caption;     // of cmdAlert
    QString buttonTip;   // of cmdAlert
    bool alertPicture;   // image 0 of imgAlert shows image 2 (alerts) rather than image 1
    QString pictureTip;  // of image 0 of imgAlert
    Back back;           // cmdAlert's colour
};

// What the indicator shows after a read that found the file with lineCount alerts, of which
// pendingCount are pending.
AlertIndicator IndicatorFor(int lineCount, int pendingCount);

// ---- the store -----------------------------------------------------------------------------

// Every alert of the program in "Alerts.dat" in the data folder, one line each, in the order
// the alert manager keeps them (the file is not sorted). A read works out which alerts are
// pending today.
class AlertsStore : public QObject {
    Q_OBJECT
public:
    explicit AlertsStore(Services& services);

    // The alerts of the last read, in file order, one entry per line.
    QStringList alertLines;
    QList<QDate> alertDates;
    QList<qint16> alertPeriods;
    QStringList alertMessages;
    // The alerts pending on the day of the last read: their places in the tables above.
    QList<int> pendingAlerts;

    int AlertCount() const { return int(alertLines.size()); }
    int PendingCount() const { return int(pendingAlerts.size()); }
    QStringList PendingAlertLines() const;
    bool IsPending(int alert) const { return pendingAlerts.contains(alert); }
    // Whether the last read found the file.
    bool FileFound() const { return fileFound_; }

    // Set by the alert manager while its editor holds a new alert; cleared by a save.
    bool AlertListChanged = false;

    // Reads the file again and works out the pending alerts of today. A missing file gives no
    // alerts. A malformed line ends the read (the fault is logged): the alerts before it stay,
    // and the file is not saved over until it has been read whole.
    void ReadAlerts();
    // Saves lines (the manager's raw list) to the file in their order, every one that is not
    // empty, and says "Alert List Updated.". No lines delete the file, without a word.
    // Returns false when nothing was written (see SaveDataFile).
    bool SaveAlerts(const QStringList& lines);

signals:
    // After every read. fileFound: the file was there (otherwise the indicator stays as it is).
    void alertsRead(bool fileFound);

private:
    void Clear();

    Services& services_;
    bool fileFound_ = false;
    DataFile file_{kAlertsFile};
};
