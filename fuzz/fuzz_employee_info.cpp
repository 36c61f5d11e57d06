// "Employee Info.dat" on any bytes: the reader never crashes, no name or address holds a ":",
// and the people read are written back as lines that read as the same people.
#include "FuzzSupport.h"
#include "assignment/modEmployeeInfo.h"
#include "shell/TextFile.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzz::WriteInput(kEmployeeInfoFile, data, size);
    ContactList contacts(fuzz::services());
    contacts.ReadEmployeeInfo();
    for (const Contact& person : contacts.People())
        fuzz::Check(!person.name.contains(u':') && !person.address.contains(u':'),
                    "a name or an address holds no field separator");
    const QList<Contact> again =
        ParseEmployeeInfo(textfile::SplitLines(EmployeeInfoText(contacts.People())));
    fuzz::Check(again == contacts.People(), "what is written reads back the same");
    return 0;
}
