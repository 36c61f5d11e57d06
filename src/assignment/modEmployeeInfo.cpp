#include "assignment/modEmployeeInfo.h"

#include <algorithm>

#include "shell/Files.h"
#include "shell/SavePath.h"
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

namespace {

QStringList ContactFields(const Contact& person) {
    return {OnOneLine(person.name), OnOneLine(person.address), OnOneLine(person.note)};
}

}  // namespace

QString EmployeeInfoText(const QList<Contact>& people) {
    QStringList lines;
    lines.reserve(people.size());
    for (const Contact& person : people)
        lines.append(ContactFields(person).join(u':'));
    return lines.isEmpty() ? QString() : textfile::JoinLines(lines) + kCrLf;
}

const RecordLayout& EmployeeInfoLayout() {
    static const RecordLayout layout = [] {
        RecordLayout contacts;
        contacts.key = RecordLayout::Key::LeadingFields;
        contacts.keyFields = 1;
        contacts.whenEmpty = RecordLayout::WhenEmpty::EmptyFile;
        return contacts;
    }();
    return layout;
}

void ContactList::ReadEmployeeInfo() {
    people_.clear();
    // The older list is read only while there is no "Employee Info.dat"; it is never written,
    // and the first save makes "Employee Info.dat".
    const bool older = !FileExists(services_.AppFolder, kEmployeeInfoFile) &&
                       FileExists(services_.AppFolder, kEmailListFile);
    DataFile olderFile(kEmailListFile);
    QStringList lines;
    file_.SetName(kEmployeeInfoFile);
    ReadDataFile(services_, "ReadEmployeeInfo", older ? olderFile : file_,
                 [&](QByteArrayView line, int) { lines.append(LineText(line)); });
    people_ = ParseEmployeeInfo(lines);
    Sort();
}

bool ContactList::SaveEmployeeInfo() {
    Records records(EmployeeInfoLayout());
    for (const Contact& person : people_)
        records.Add(ContactFields(person));
    const SaveResult result = SaveDataFile(services_, "SaveEmployeeInfo", file_, records);
    if (result == SaveResult::Merged)
        ReadEmployeeInfo();
    return result != SaveResult::Refused;
}

std::optional<QString> ContactList::Problem(const Contact& person) {
    Records records(EmployeeInfoLayout());
    records.Add(ContactFields(person));
    return records.Problem();
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
