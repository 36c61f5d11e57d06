// "Employee Info.dat": the records read from its bytes, the bytes a save writes, and the older
// "Email_List.dat" read only when it is all there is.
#include <QTest>

#include "TestEnv.h"
#include "assignment/modEmployeeInfo.h"

namespace {

// People as "name|address|note", one string each.
QStringList Describe(const QList<Contact>& people) {
    QStringList described;
    for (const Contact& person : people)
        described.append(person.name + '|' + person.address + '|' + person.note);
    return described;
}

}  // namespace

class ContactsFileTest : public QObject {
    Q_OBJECT

private slots:
    void readsRecords_data() {
        QTest::addColumn<QByteArray>("employeeInfo");
        QTest::addColumn<QByteArray>("emailList");
        QTest::addColumn<QStringList>("people");
        QTest::newRow("three fields, sorted by name whatever the case")
            << QByteArray("bob:b@x.org:Sales\r\nAnn:a@x.org:IT\r\n") << QByteArray()
            << QStringList{"Ann|a@x.org|IT", "bob|b@x.org|Sales"};
        QTest::newRow("a note keeps its colons")
            << QByteArray("Ann:a@x.org:Room 4: left") << QByteArray()
            << QStringList{"Ann|a@x.org|Room 4: left"};
        QTest::newRow("missing fields are empty, empty lines skipped, lone LF ends a line")
            << QByteArray("Ann\r\n\r\nBob:b@x.org\nCarl::") << QByteArray()
            << QStringList{"Ann||", "Bob|b@x.org|", "Carl||"};
        QTest::newRow("windows-1252 letters")
            << QByteArray("Ren\xe9:r@x.org:\xc9tude") << QByteArray()
            << QStringList{"Ren\u00e9|r@x.org|\u00c9tude"};
        QTest::newRow("the older list when it is all there is")
            << QByteArray() << QByteArray("Ann:a@x.org\r\n") << QStringList{"Ann|a@x.org|"};
        QTest::newRow("the contact list wins over the older list")
            << QByteArray("Bob:b@x.org:") << QByteArray("Ann:a@x.org")
            << QStringList{"Bob|b@x.org|"};
    }
    void readsRecords() {
        QFETCH(QByteArray, employeeInfo);
        QFETCH(QByteArray, emailList);
        QFETCH(QStringList, people);
        TestEnv env;
        if (!employeeInfo.isEmpty())
            env.write(kEmployeeInfoFile, employeeInfo);
        if (!emailList.isEmpty())
            env.write(kEmailListFile, emailList);
        ContactList contacts(env.state->services);
        contacts.ReadEmployeeInfo();
        QCOMPARE(Describe(contacts.People()), people);
    }

    void saveWritesEveryRecord() {
        TestEnv env;
        env.write(kEmailListFile, "Old:o@x.org");
        ContactList contacts(env.state->services);
        contacts.ReadEmployeeInfo();
        contacts.Put({"zoe", "z@x.org", "Sales: east"});
        contacts.Put({"Ann", "a@x.org", "Ren\u00e9"});
        contacts.Put({"OLD", "new@x.org", ""});  // the same person, whatever the case
        contacts.SaveEmployeeInfo();
        QCOMPARE(env.read(kEmployeeInfoFile),
                 "Ann:a@x.org:Ren\xe9\r\nOLD:new@x.org:\r\nzoe:z@x.org:Sales: east\r\n");
        QCOMPARE(env.read(kEmailListFile), "Old:o@x.org");
        while (!contacts.People().isEmpty())
            contacts.Remove(0);
        contacts.SaveEmployeeInfo();
        QVERIFY(env.exists(kEmployeeInfoFile));
        QCOMPARE(env.read(kEmployeeInfoFile), "");
    }
};

ORVANTA_TEST_MAIN(ContactsFileTest)
#include "tst_contacts_file.moc"
