// Topmost windows stay where they are and as large as they are.
#include <QMdiArea>
#include <QMdiSubWindow>

#include "TestEnv.h"
#include "shell/gui/Topmost.h"

class TopmostTest : public QObject {
    Q_OBJECT

private slots:
    void freeWindowKeepsItsPlaceAndSize() {
        QWidget window;
        window.setGeometry(140, 120, 420, 260);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const QRect before = window.geometry();
        MakeMeTopmost(&window);
        QVERIFY(window.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        QVERIFY(window.isVisible());
        QCOMPARE(window.geometry(), before);
        MakeMeNoTopmost(&window);
        QVERIFY(!window.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        QVERIFY(window.isVisible());
        QCOMPARE(window.geometry(), before);
    }

    void hiddenWindowStaysHidden() {
        QWidget window;
        MakeMeTopmost(&window);
        QVERIFY(window.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        QVERIFY(!window.isVisible());
    }

    void childWindowStaysAboveItsSiblings() {
        QMdiArea area;
        area.resize(800, 600);
        auto* editor = new QWidget;
        QMdiSubWindow* frame = area.addSubWindow(editor);
        area.show();
        frame->setGeometry(30, 40, 300, 200);
        frame->show();
        MakeMeTopmost(editor);
        QVERIFY(frame->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        QVERIFY(!area.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        QCOMPARE(frame->geometry(), QRect(30, 40, 300, 200));
        QVERIFY(frame->isVisible());
        MakeMeNoTopmost(editor);
        QVERIFY(!frame->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        QCOMPARE(frame->geometry(), QRect(30, 40, 300, 200));
    }
};

ORVANTA_TEST_MAIN(TopmostTest)
#include "tst_topmost.moc"
