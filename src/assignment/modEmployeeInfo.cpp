#include "assignment/modEmployeeInfo.h"

#include <algorithm>

#include "shell/Files.h"
#include "shell/Services.h"
#include "shell/TextFile.h"

QList<Contact> ParseEmployeeInfo(const QStringList& lines) {
    QList<Contact> people;
    for (const QString& line : lines) {
        if (line.isEmpty())
            continue;
        Contact person;
        const qsizetype first = line.indexOf(u':');
        person.name = line.left(first);
        if (first >= 0) {
            const qsizetype second = line.indexOf(u':', first + 1);
            person.address =
                second < 0 ? line.mid(first + 1) : line.mid(first + 1, second - first - 1);
            if (second >= 0)
                person.note = line.mid(second + 1);
        }
        people.append(person);
    }
    return people;
}

QString EmployeeInfoText(const QList<Contact>& people) {
    QStringList lines;
    lines.reserve(people.size());
    for (const Contact& person : people)
        lines.append(person.name + u':' + person.address + u':' + person.note);
    return lines.isEmpty() ? QString() : textfile::JoinLines(lines) + kCrLf;
}

void ContactList::ReadEmployeeInfo() {
    people_.clear();
    services_.Trap("ReadEmployeeInfo", [this] {
        QString path;
        if (!FileExists(services_.AppFolder, kEmployeeInfoFile, &path) &&
            !FileExists(services_.AppFolder, kEmailListFile, &path))
            return;
        people_ = ParseEmployeeInfo(textfile::ReadLines(path));
        Sort();
    });
}

bool ContactList::SaveEmployeeInfo() {
    return services_.Trap("SaveEmployeeInfo", [this] {
        textfile::WriteAll(PathForWriting(services_.AppFolder, kEmployeeInfoFile),
                           EmployeeInfoText(people_));
    });
}

qsizetype ContactList::Find(const QString& name) const {
    for (qsizetype i = 0; i < people_.size(); ++i)
        if (people_[i].name.compare(name, Qt::CaseInsensitive) == 0)
            return i;
    return -1;
}

qsizetype ContactList::Put(const Contact& person) {
    const qsizetype found = Find(person.name);
    if (found >= 0)
        people_[found] = person;
    else
        people_.append(person);
    Sort();
    return Find(person.name);
}

void ContactList::Remove(qsizetype index) {
    people_.removeAt(index);
}

void ContactList::Sort() {
    std::stable_sort(people_.begin(), people_.end(), [](const Contact& a, const Contact& b) {
        return a.name.compare(b.name, Qt::CaseInsensitive) < 0;
    });
}
