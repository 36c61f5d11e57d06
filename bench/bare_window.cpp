// The least a Qt Widgets program does to show a main window: the baseline for start-up time.
// Like Orvanta's --exit-when-shown, it quits once the window has been painted.
#include <QApplication>
#include <QMainWindow>
#include <QTimer>

namespace {

class QuitWhenShown : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            watched->removeEventFilter(this);
            QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        }
        return false;
    }
};

}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QMainWindow window;
    window.resize(1180, 800);
    QuitWhenShown quit;
    if (app.arguments().contains(QStringLiteral("--exit-when-shown")))
        window.installEventFilter(&quit);
    window.show();
    return app.exec();
}
