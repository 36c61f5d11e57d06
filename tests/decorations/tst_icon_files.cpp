// The icon library's and the placed icons' files: pictures found whatever the letter case of
// their names, icons kept on their days through a save and a fresh read, the template's icons
// in every month, and files that are never saved over after a faulty line.
#include <QTest>

#include "TestEnv.h"
#include "app/FirstStart.h"
#include "decorations/DecorationMessages.h"
#include "decorations/modIcons.h"
#include "decorations/modMonthIcons.h"
#include "shell/ShellMessages.h"

class IconFilesTest : public QObject {
    Q_OBJECT

private slots:
    void pictureIsFoundWhateverTheLetterCase_data() {
        QTest::addColumn<QString>("onDisk");
        QTest::newRow("as written") << "Images/12.ico";
        QTest::newRow("folder and extension changed") << "images/12.ICO";
        QTest::newRow("all capitals") << "IMAGES/12.Ico";
    }
    void pictureIsFoundWhateverTheLetterCase() {
        QFETCH(QString, onDisk);
        TestEnv env;
        env.write(onDisk, "picture");
        env.write("icon tags.DAT", "12:Dentist: 2 pm\r\n3:Car\r\n");
        modIcons icons(env.state->services);
        icons.ReadIconTags();
        QCOMPARE(icons.PicturePath(12), env.path(onDisk));
        QCOMPARE(icons.PicturePath(3), QString());
        QCOMPARE(icons.Caption(12), "Dentist: 2 pm");
        // A new icon never takes a number that has a picture, listed or not.
        QCOMPARE(icons.NextNumber(), 13);
    }

    void starterIconsNeverReplaceTheUsersPictures() {
        TestEnv env;
        env.write("images/3.ICO", "mine");
        InstallDefaultFiles(env.state->services);
        QCOMPARE(env.read("images/3.ICO"), "mine");
        QVERIFY(env.exists("images/1.ico"));
        modIcons icons(env.state->services);
        icons.ReadIconTags();
        QVERIFY(icons.tags().size() >= 40);
        QCOMPARE(icons.PicturePath(1), env.path("images/1.ico"));
    }

    void placedIconsComeBackOnTheirDaysAfterASave() {
        TestEnv env;
        ChangeFlags flags;
        modMonthIcons store(env.state->services, flags);
        store.PlaceIcon(QDate(2026, 9, 15), 3);
        store.PlaceIcon(QDate(2026, 9, 15), 7);
        store.PlaceIcon(QDate(2027, 9, 1), 3);
        QVERIFY(flags.MonthIconsChanged);
        env.dialogs.ExpectMsgBox(kMonthIconsSaved, vb::OKOnly, {});
        QVERIFY(store.SaveMonthIcons(9));
        VERIFY_DIALOGS(env.dialogs);
        QVERIFY(!flags.MonthIconsChanged);
        QCOMPARE(env.read("Sep_Icons.dat"), "09/15/2026:3\r\n09/15/2026:7\r\n09/01/2027:3\r\n");

        modMonthIcons again(env.state->services, flags);
        QCOMPARE(again.IconsOn(QDate(2026, 9, 15)), QList<int>({3, 7}));
        QCOMPARE(again.IconsOn(QDate(2027, 9, 1)), QList<int>({3}));
        QCOMPARE(again.IconsOn(QDate(2026, 9, 1)), QList<int>());
        QCOMPARE(again.IconsOn(QDate(2026, 9, 16)), QList<int>());
    }

    void templateIconsShowInEveryMonthThatHasTheDay() {
        TestEnv env;
        env.write("TEMPLATE.dat", "01:4\r\n31:9\r\n");
        ChangeFlags flags;
        modMonthIcons store(env.state->services, flags);
        store.PlaceIcon(QDate(2031, 1, 1), 5);
        QCOMPARE(store.IconsOn(QDate(2031, 1, 1)), QList<int>({4, 5}));
        QCOMPARE(store.IconsOn(QDate(2031, 1, 31)), QList<int>({9}));
        QCOMPARE(store.IconsOn(QDate(2026, 4, 1)), QList<int>({4}));
        QCOMPARE(store.IconsOn(QDate(2026, 4, 30)), QList<int>());
        // A template icon is removed only while the template is being modified.
        QVERIFY(!store.RemoveIcon(QDate(2031, 1, 1), 0));
        QVERIFY(store.RemoveIcon(QDate(2031, 1, 1), 1));
        QCOMPARE(store.IconsOn(QDate(2031, 1, 1)), QList<int>({4}));
    }

    void aFaultyLineKeepsTheFileFromBeingSavedOver_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("readBeforeFault");
        QTest::newRow("month of another month")
            << "Sep_Icons.dat" << QByteArray("09/02/2026:1\r\n10/02/2026:1\r\n") << 1;
        QTest::newRow("month without a number")
            << "Sep_Icons.dat" << QByteArray("09/02/2026:x\r\n") << 0;
        QTest::newRow("template day 32") << "Template.dat" << QByteArray("02:1\r\n32:1\r\n") << 1;
    }
    void aFaultyLineKeepsTheFileFromBeingSavedOver() {
        QFETCH(QString, file);
        QFETCH(QByteArray, content);
        QFETCH(int, readBeforeFault);
        TestEnv env;
        env.write(file, content);
        ChangeFlags flags;
        modMonthIcons store(env.state->services, flags);
        const bool month = file != "Template.dat";
        env.expectProgramError(month ? "ReadMonthIcons" : "ReadTemplateIcons", 13,
                               FaultDescription("Type mismatch", file, readBeforeFault + 1));
        QCOMPARE(store.IconsOn(QDate(2026, 9, 2)).size(), readBeforeFault);
        env.dialogs.ExpectMsgBox(PartlyReadFileMessage(file, readBeforeFault + 1), kWarningStyle,
                                 {});
        QVERIFY(month ? !store.SaveMonthIcons(9) : !store.SaveTemplateIcons());
        VERIFY_DIALOGS(env.dialogs);
        QCOMPARE(env.read(file), content);
    }
};

ORVANTA_TEST_MAIN(IconFilesTest)
#include "tst_icon_files.moc"
