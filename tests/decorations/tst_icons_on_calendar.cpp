// Icons on the calendar as the user handles them: dropped on a day, shown there, saved with the
// month, the template's icons, the questions before icons are lost, and the icon manager.
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QTest>

#include "MainWindowFixture.h"
#include "calendar/gui/CalendarView.h"
#include "decorations/DecorationMessages.h"
#include "decorations/gui/DecorationMenus.h"
#include "decorations/gui/IconPictures.h"
#include "decorations/gui/frmIcons.h"
#include "shell/ShellMessages.h"

namespace {

struct IconsFixture : MainWindowFixture {
    IconsFixture() {
        QImage red(32, 32, QImage::Format_ARGB32);
        red.fill(Qt::red);
        env.write("images/3.ICO", iconpictures::IcoBytes(red));
        env.write("Icon Tags.dat", "3:Dentist\r\n");
        Start();
        menu("mnuCalOneMonth")->trigger();
    }
    CalendarView* view() const { return calendar().calendarView(); }
    // Drops icon number on date the way a drag from the palette ends.
    void Drop(const QDate& date, int number) const {
        QMimeData data;
        data.setData(kIconMimeType, QByteArray::number(number));
        const QPointF at = view()->DayRect(date).center();
        QDragEnterEvent enter(at.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view(), &enter);
        QDragMoveEvent move(at.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view(), &move);
        QVERIFY(move.isAccepted());
        QDropEvent drop(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view(), &drop);
    }
    QList<DayIcon> IconsOn(const QDate& date) const { return calendar().LookOf(date).icons; }
    QString Template() const { return control<QLabel>("lblTemplate")->text(); }
};

}  // namespace

class IconsOnCalendarTest : public QObject {
    Q_OBJECT

private slots:
    void droppedIconShowsOnItsDayAndIsSavedWithTheMonth() {
        IconsFixture f;
        f.Drop(QDate(2026, 9, 15), 3);
        const QList<DayIcon> icons = f.IconsOn(QDate(2026, 9, 15));
        QCOMPARE(icons.size(), 1);
        QCOMPARE(icons.first().caption, "Dentist");
        QCOMPARE(icons.first().picturePath, f.env.path("images/3.ICO"));
        QVERIFY(f.IconsOn(QDate(2026, 9, 14)).isEmpty());
        QVERIFY(f.env.state->changes.MonthIconsChanged);

        // Leaving the month asks first; Cancel stays on the month with the icon unsaved.
        f.env.dialogs.ExpectMsgBox(kMonthIconsChangedQuestion, vb::YesNoCancel | vb::Question,
                                   kMonthIconsChangedTitle, vb::Cancel);
        f.env.state->dates.SelectDate(QDate(2026, 10, 2));
        QTRY_COMPARE(f.env.state->dates.FirstOfMonth, QDate(2026, 9, 1));
        // Yes saves the month that was changed, not the month chosen.
        f.env.dialogs.ExpectMsgBox(kMonthIconsChangedQuestion, vb::YesNoCancel | vb::Question,
                                   kMonthIconsChangedTitle, vb::Yes);
        f.env.dialogs.ExpectMsgBox(kMonthIconsSaved, vb::OKOnly, {});
        f.env.state->dates.SelectDate(QDate(2026, 10, 2));
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(f.env.read("Sep_Icons.dat"), "09/15/2026:3\r\n");
        QVERIFY(!f.env.exists("Oct_Icons.dat"));

        f.Restart();
        QCOMPARE(f.IconsOn(QDate(2026, 9, 15)).size(), 1);
    }

    void closingAsksAndYesSavesWhatWasChanged_data() {
        QTest::addColumn<bool>("inTemplate");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("month") << false << "Sep_Icons.dat" << QByteArray("09/15/2026:3\r\n");
        QTest::newRow("template") << true << "Template.dat" << QByteArray("15:3\r\n");
    }
    void closingAsksAndYesSavesWhatWasChanged() {
        QFETCH(bool, inTemplate);
        QFETCH(QString, file);
        QFETCH(QByteArray, content);
        IconsFixture f;
        if (inTemplate)
            f.menu("mnuFileCreateTemplate")->trigger();
        f.Drop(QDate(2026, 9, 15), 3);
        f.env.dialogs.ExpectMsgBox(kMonthIconsChangedQuestion, vb::YesNoCancel | vb::Question,
                                   kMonthIconsChangedTitle, vb::Yes);
        f.env.dialogs.ExpectMsgBox(inTemplate ? kTemplateSaved : kMonthIconsSaved, vb::OKOnly, {});
        QVERIFY(f.frame().close());
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(f.env.read(file), content);
    }

    void templateIconsAppearInANewMonth() {
        IconsFixture f;
        f.menu("mnuFileCreateTemplate")->trigger();
        QCOMPARE(f.Template(), kTemplateModifying);
        f.Drop(QDate(2026, 9, 5), 3);
        f.env.dialogs.ExpectMsgBox(kTemplateSaved, vb::OKOnly, {});
        f.menu("mnuFileSaveTemplate")->trigger();
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(f.env.read("Template.dat"), "05:3\r\n");
        QCOMPARE(f.Template(), kTemplateStandard);
        QVERIFY(!f.env.state->changes.MonthIconsChanged);

        f.Restart();
        f.env.state->dates.SelectDate(QDate(2027, 2, 1));
        QCOMPARE(f.IconsOn(QDate(2027, 2, 5)).size(), 1);
        QVERIFY(f.IconsOn(QDate(2027, 2, 6)).isEmpty());
    }

    void paletteDragsTheIconNumberAndEnterPlacesIt() {
        IconsFixture f;
        f.menu("mnuOptDateShowIcons")->trigger();
        QWidget* palette = f.frame().ChildWindow("frmInsertIcons");
        auto* list = FindControl<QListWidget>(palette, "lstIcons");
        QVERIFY(list->dragEnabled());
        list->setCurrentRow(0);
        const std::unique_ptr<QMimeData> dragged(
            list->model()->mimeData({list->model()->index(0, 0)}));
        QCOMPARE(dragged->data(kIconMimeType), "3");
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Return);
        QCOMPARE(f.IconsOn(QDate(2026, 9, 7)).size(), 1);
    }

    void removeAllIconsAsksAndRemovesOnlyThatMonthsIcons() {
        IconsFixture f;
        f.env.write("Sep_Icons.dat", "09/15/2026:3\r\n09/20/2026:3\r\n09/15/2027:3\r\n");
        f.Restart();
        f.menu("mnuCalOneMonth")->trigger();
        f.env.dialogs.ExpectMsgBox(kRemoveIconsQuestion, kQuestionStyle, kRemoveIconsTitle, vb::No);
        f.menu("mnuOptDateRemoveAll")->trigger();
        QCOMPARE(f.IconsOn(QDate(2026, 9, 15)).size(), 1);
        f.env.dialogs.ExpectMsgBox(kRemoveIconsQuestion, kQuestionStyle, kRemoveIconsTitle,
                                   vb::Yes);
        f.menu("mnuOptDateRemoveAll")->trigger();
        QVERIFY(f.IconsOn(QDate(2026, 9, 15)).isEmpty());
        QVERIFY(f.IconsOn(QDate(2026, 9, 20)).isEmpty());
        f.env.dialogs.ExpectMsgBox(kMonthIconsSaved, vb::OKOnly, {});
        f.menu("mnuFileSaveCalendar")->trigger();
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(f.env.read("Sep_Icons.dat"), "09/15/2027:3\r\n");
    }

    void clickedIconIsTheOneRemoved() {
        IconsFixture f;
        f.env.write("Icon Tags.dat", "3:Dentist\r\n4:Car\r\n");
        f.env.write("Sep_Icons.dat", "09/15/2026:3\r\n09/15/2026:4\r\n");
        f.Restart();
        f.menu("mnuCalOneMonth")->trigger();
        const QDate day(2026, 9, 15);
        const QList<QRect> places = f.view()->IconRects(f.view()->DayRect(day), 2);
        QTest::mouseClick(f.view(), Qt::LeftButton, {}, places.at(1).center());
        f.menu("mnuOptDateRemoveIcon")->trigger();
        const QList<DayIcon> left = f.IconsOn(day);
        QCOMPARE(left.size(), 1);
        QCOMPARE(left.first().caption, "Dentist");
        VERIFY_DIALOGS(f.env.dialogs);
    }

    void managerAddsAPictureRenamesItAndAsksBeforeRemoving() {
        IconsFixture f;
        QImage blue(100, 50, QImage::Format_ARGB32);
        blue.fill(Qt::blue);
        QVERIFY(blue.save(f.env.path("plane.png")));
        f.menu("mnuManageIcons")->trigger();
        auto* manager = qobject_cast<frmIcons*>(f.frame().ChildWindow("frmIcons"));
        QVERIFY(manager);
        f.env.dialogs.ExpectOpenFile(f.env.path("plane.png"));
        f.env.dialogs.ExpectInputBox(kNewIconCaptionPrompt, kNewIconCaptionTitle, "plane",
                                     "Flight");
        manager->Control<QPushButton>("cmdAdd")->click();
        QCOMPARE(f.env.read("Icon Tags.dat"), "3:Dentist\r\n4:Flight\r\n");
        QIcon added(f.env.path("images/4.ico"));
        QCOMPARE(added.pixmap(32, 32).toImage().pixelColor(16, 16), QColor(Qt::blue));

        manager->Control<QLineEdit>("txtCaption")->setText("Flight: Rome");
        manager->Control<QPushButton>("cmdChange")->click();
        QCOMPARE(f.env.read("Icon Tags.dat"), "3:Dentist\r\n4:Flight: Rome\r\n");

        f.env.dialogs.ExpectMsgBox(RemoveIconQuestion("Flight: Rome"), kQuestionStyle,
                                   kRemoveIconTitle, vb::Yes);
        manager->Control<QPushButton>("cmdRemove")->click();
        VERIFY_DIALOGS(f.env.dialogs);
        QCOMPARE(f.env.read("Icon Tags.dat"), "3:Dentist\r\n");
        QVERIFY(f.env.exists("images/4.ico"));
    }
};

ORVANTA_TEST_MAIN(IconsOnCalendarTest)
#include "tst_icons_on_calendar.moc"
