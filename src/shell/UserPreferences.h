#pragma once

#include "shell/DataFile.h"
#include "shell/Records.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <utility>

class Services;

// The keys of "UserPreferences.txt". Each key ends in ":" and its value follows it on the same
// line.
namespace prefkey {
inline const QString SharedDirectory = QStringLiteral("Shared Directory:");
inline const QString CompanyName = QStringLiteral("Company Name:");
inline const QString CompanyAddress1 = QStringLiteral("Company Address 1:");
inline const QString CompanyAddress2 = QStringLiteral("Company Address 2:");
inline const QString CompanyCityStateZip = QStringLiteral("Company City, State Zip:");
inline const QString CompanyPhone = QStringLiteral("Company Phone:");
inline const QString CompanyFax = QStringLiteral("Company Fax:");
inline const QString CompanyWebsite = QStringLiteral("Company Website:");
inline const QString CompanyEmail = QStringLiteral("Company Email:");
inline const QString AutoCompleteWord = QStringLiteral("Auto Complete Word:");
inline const QString AutoStartPosition = QStringLiteral("Auto Start Position:");
inline const QString ShowFut = QStringLiteral("Show FUT:");
inline const QString MinimizeFut = QStringLiteral("Minimize FUT:");
inline const QString DefaultPrinter = QStringLiteral("Default Printer:");
inline const QString FrequentTermsFile = QStringLiteral("Frequent Terms File:");
inline const QString LoadFutPosition = QStringLiteral("Load FUT Position:");
inline const QString FutPosition = QStringLiteral("FUT Position:");
inline const QString NetworkShareDrive = QStringLiteral("Network Share Drive:");
// The main window's place and size: left,top,width,height,maximized (-1 or 0).
inline const QString MainWindowPosition = QStringLiteral("Main Window Position:");
// What a mile is paid in the mileage report, a number such as 0.70; empty when nothing is paid.
inline const QString MileageRate = QStringLiteral("Mileage Rate:");
// The time of day shown in the main window's status bar: -1 shown, 0 (or empty) not.
inline const QString ShowTimeOfDay = QStringLiteral("Show Time of Day:");
// The one-month calendar's day numbers small in their cell's corner: -1 yes, 0 (or empty) no.
inline const QString ShowNumbersOffset = QStringLiteral("Show Numbers Offset:");
// The time zone written into exported iCalendar times (an IANA name); empty for floating times.
inline const QString CalendarTimeZone = QStringLiteral("Calendar Time Zone:");

// Every key the program knows, in the order a new file lists them.
const QStringList& All();
}  // namespace prefkey

inline const QString kUserPreferencesFile = QStringLiteral("UserPreferences.txt");

// The user's settings, one "Key:value" line each. The file may hold lines this version does not
// know (written by a later version, or by hand); they are kept, in their place, when the file
// is rewritten.
class UserPreferences {
public:
    UserPreferences();

    // Reads the file; a missing file leaves every setting empty.
    void GetUserPreferences(Services& services);
    // Saves the whole file: its lines in their order, then any known key it lacked (a value
    // kept on one line). Changes another program made meanwhile to other settings stay.
    void SaveUserPreferences(Services& services);
    // The layout of the file: a setting a line, named by its key.
    static const RecordLayout& Layout();

    // The value of key (given with its trailing ":"); empty when the key is not set.
    QString Value(const QString& key) const;
    void SetValue(const QString& key, const QString& value);

private:
    void Reset();

    // (key, value) in file order. A line without ":" has an empty key and is kept whole as
    // its value.
    QList<std::pair<QString, QString>> lines_;
    DataFile file_{kUserPreferencesFile};
};
