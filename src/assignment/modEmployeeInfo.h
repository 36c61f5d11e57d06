#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

#include "shell/DataFile.h"
#include "shell/Records.h"

class Services;

inline const QString kEmployeeInfoFile = QStringLiteral("Employee Info.dat");
// An older, shorter contact list: "name:address" a line. It is read only when there is no
// "Employee Info.dat", and the first save turns it into one; it is never written.
inline const QString kEmailListFile = QStringLiteral("Email_List.dat");

// One person of the contact list: the three texts of a record.
struct Contact {
    QString name;
    QString address;
    QString note;

    bool operator==(const Contact&) const = default;
};

// A record is a line "name:address:note". The name is also the name of the person's folder
// on the share and the address an e-mail address, so neither holds ":"; the note, last on the
// line, may. A line with fewer fields leaves the missing ones empty; an empty line is skipped.
QList<Contact> ParseEmployeeInfo(const QStringList& lines);
QString EmployeeInfoText(const QList<Contact>& people);
// The layout of "Employee Info.dat": a person a line, named by the name; nobody, an empty file.
const RecordLayout& EmployeeInfoLayout();

// The people, kept sorted by name whatever the letters' case.
class ContactList {
public:
    explicit ContactList(Services& services) : services_(services) {}

    // Reads "Employee Info.dat" (or the older "Email_List.dat" when that is all there is); no
    // file is an empty list. A failure is logged.
    void ReadEmployeeInfo();
    // Saves "Employee Info.dat" with everybody; an empty list leaves an empty file. False when
    // nothing was written (see SaveDataFile).
    bool SaveEmployeeInfo();
    // Why person cannot be kept in the file (a field holding a character it cannot hold, or a
    // name or address holding ":"), or nullopt.
    static std::optional<QString> Problem(const Contact& person);

    const QList<Contact>& People() const { return people_; }
    // The index of the person called name (any letter case); -1 when there is none.
    qsizetype Find(const QString& name) const;
    // Adds person, or replaces the person of that name. Returns the person's index.
    qsizetype Put(const Contact& person);
    void Remove(qsizetype index);

private:
    void Sort();

    Services& services_;
    QList<Contact> people_;
    DataFile file_{kEmployeeInfoFile};
};
