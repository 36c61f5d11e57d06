// Topmost windows stay where they are and as large as they are.
#include <QMdiArea>
#include <QMdiSubWindow>

#include "TestEnv.h"
#include "shell/gui/Topmost.h"

class TopmostTest : public QObject {
    Q_OBJECT

    // Puts the window of widget on top and back, checking it keeps its place, size and
    // visibility; frame is the window that carries the flag.
    static void RoundTrip(QWidget* widget, QWidget* frame) {
        const QRect before = frame->geometry();
        const bool visible = frame->isVisible();
        MakeMeTopmost(widget);
        QVERIFY(frame->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        QCOMPARE(frame->geometry(), before);
        QCOMPARE(frame->isVisible(), visible);
        MakeMeNoTopmost(widget);
        QVERIFY(!frame->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        QCOMPARE(frame->geometry(), before);
        QCOMPARE(frame->isVisible(), visible);
    }

private slots:
    void freeWindowKeepsItsPlaceAndSize() {
        QWidget window;
        window.setGeometry(140, 120, 420, 260);
        RoundTrip(&window, &window);  // hidden, it stays hidden
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        RoundTrip(&window, &window);
    }

    void childWindowStaysAboveItsSiblingsOnly() {
        QMdiArea area;
        area.resize(800, 600);
        auto* editor = new QWidget;
        QMdiSubWindow* frame = area.addSubWindow(editor);
        area.show();
        frame->setGeometry(30, 40, 300, 200);
        frame->show();
        RoundTrip(editor, frame);
        QVERIFY(!area.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    }
};

ORVANTA_TEST_MAIN(TopmostTest)
#include "tst_topmost.moc"
