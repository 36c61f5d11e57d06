// Every window can be used without a mouse and is announced by a screen reader: each control
// that takes the focus has a name, and Tab reaches every one of them.
#include <QAbstractButton>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSet>
#include <QTextEdit>

#include "MainWindowFixture.h"
#include "calendar/gui/CalendarView.h"
#include "shell/gui/Accessibility.h"

namespace {

QList<QWidget*> FocusableControls(QWidget* root) {
    QList<QWidget*> controls;
    for (QWidget* widget : root->findChildren<QWidget*>())
        if ((widget->focusPolicy() & Qt::TabFocus) && widget->isVisibleTo(root) &&
            widget->isEnabled() && !widget->focusProxy())
            controls.append(widget);
    return controls;
}

// Tab enters a group of option buttons at its chosen one; the arrow keys move within it.
bool Reached(const QSet<QWidget*>& reached, QWidget* control) {
    if (reached.contains(control))
        return true;
    auto* option = qobject_cast<QRadioButton*>(control);
    if (!option || !option->autoExclusive())
        return false;
    for (QWidget* sibling : reached)
        if (qobject_cast<QRadioButton*>(sibling) &&
            sibling->parentWidget() == option->parentWidget())
            return true;
    return false;
}

QString Describe(const QWidget* widget) {
    return QStringLiteral("%1 (%2)").arg(widget->objectName(), widget->metaObject()->className());
}

// A text box takes Tab as a character; Ctrl+Tab leaves it, as in every Qt editor.
void NextControl() {
    QWidget* before = QApplication::focusWidget();
    QTest::keyClick(before, Qt::Key_Tab);
    if (QApplication::focusWidget() == before)
        QTest::keyClick(before, Qt::Key_Tab, Qt::ControlModifier);
}

}  // namespace

class KeyboardAndScreenReaderTest : public QObject {
    Q_OBJECT

    std::unique_ptr<MainWindowFixture> f;

    // The window opened by the menu item: the child window in front.
    QWidget* Open(const QString& item) {
        QAction* action = f->menu(item);
        if (!action->isEnabled())
            return nullptr;
        action->trigger();
        QMdiSubWindow* front = f->frame().mdiArea()->activeSubWindow();
        return front ? front->widget() : nullptr;
    }

    void CheckNamesAndTabOrder(QWidget* window) {
        const QList<QWidget*> controls = FocusableControls(window);
        QVERIFY(!controls.isEmpty());
        for (QWidget* control : controls)
            QVERIFY2(!AccessibleNameOf(control).isEmpty(), qPrintable(Describe(control)));
        controls.first()->setFocus(Qt::TabFocusReason);
        QSet<QWidget*> reached;
        for (int press = 0; press < 4 * controls.size() + 40; ++press) {
            reached.insert(QApplication::focusWidget());
            NextControl();
        }
        for (QWidget* control : controls)
            QVERIFY2(Reached(reached, control),
                     qPrintable("Tab never reaches " + Describe(control)));
    }

private slots:
    void init() {
        f = std::make_unique<MainWindowFixture>();
        f->env.write("Holidays/2026Holidays.dat", "01/01/26:New Year's Day\r\n");
        f->Start();
        QApplication::setActiveWindow(&f->frame());
    }
    void cleanup() { f.reset(); }

    void everyWindowIsNamedAndReachedByTab_data() {
        QTest::addColumn<QString>("item");
        for (const char* item : {"mnuManageAlerts",     "mnuManageNotes",
                                 "mnuManageToDo",       "mnuManageHolidays",
                                 "mnuManageBDays",      "mnuManageEmailList",
                                 "mnuManageFUTList",    "mnuManageDisplayedMarks",
                                 "mnuManageUserColors", "mnuDateDiffSDays",
                                 "mnuNumOfDays",        "mnuToolsAlarm",
                                 "mnuOptDateOpenNotes", "mnuOptDateOpenPlanner",
                                 "mnuOptDateSetAlert",  "mnuEditFind",
                                 "mnuFileOpenExpenses", "mnuFileOpenMiles",
                                 "mnuManageIcons",      "mnuOptDateShowIcons",
                                 "mnuManageBudget",     "mnuOptionsUser",
                                 "mnuDateFind"})
            QTest::newRow(item) << QString::fromLatin1(item);
    }
    void everyWindowIsNamedAndReachedByTab() {
        QFETCH(QString, item);
        QWidget* window = Open(item);
        QVERIFY2(window, qPrintable(item + " opened no window"));
        CheckNamesAndTabOrder(window);
        VERIFY_DIALOGS(f->env.dialogs);
    }

    void mainWindowControlsAreNamed() {
        for (QWidget* control : FocusableControls(&f->frame()))
            if (!f->frame().mdiArea()->isAncestorOf(control))
                QVERIFY2(!AccessibleNameOf(control).isEmpty(), qPrintable(Describe(control)));
    }

    void calendarTellsWhatTheSelectedDayHolds() {
        CalendarView* view = f->calendar().calendarView();
        f->env.state->dates.SelectDate(QDate(2026, 1, 1));
        QCOMPARE(view->accessibleDescription(), "Thursday, January 1, 2026. New Year's Day.");
        f->env.state->dates.SelectDate(QDate(2026, 1, 2));
        QCOMPARE(view->accessibleDescription(), "Friday, January 2, 2026.");
    }

    void namesComeFromLabelsTooltipsOrControlNames_data() {
        QTest::addColumn<QString>("objectName");
        QTest::addColumn<QString>("toolTip");
        QTest::addColumn<QString>("name");
        QTest::newRow("prefix dropped, words split") << "txtCompanyName"
                                                     << ""
                                                     << "Company Name";
        QTest::newRow("array member counts from one") << "txtLine_3"
                                                      << ""
                                                      << "Line 4";
        QTest::newRow("bare array named by its kind") << "lst_0"
                                                      << ""
                                                      << "List 1";
        QTest::newRow("tooltip wins") << "lstTasks"
                                      << "Click to Open\nmore"
                                      << "Click to Open";
    }
    void namesComeFromLabelsTooltipsOrControlNames() {
        QFETCH(QString, objectName);
        QFETCH(QString, toolTip);
        QFETCH(QString, name);
        QWidget window;
        window.setWindowTitle("Options");
        auto* edit = new QPlainTextEdit(&window);
        edit->setObjectName(objectName);
        edit->setToolTip(toolTip);
        AccessibleNaming::NameControls(&window);
        QCOMPARE(edit->accessibleName(), name);
        QCOMPARE(edit->accessibleDescription().isEmpty(), !toolTip.isEmpty());
    }
};

ORVANTA_TEST_MAIN(KeyboardAndScreenReaderTest)
#include "tst_keyboard_and_screen_reader.moc"
