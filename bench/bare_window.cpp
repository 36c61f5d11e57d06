// The least a Qt Widgets program does to show a main window: the baseline for start-up time.
// With --text the window shows one line of text, the floor of any window that draws text
// (the fonts are loaded and a line laid out).
// Like Orvanta's --exit-when-shown, it quits once the window has been painted, and leaves at
// once without taking the window apart.
#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QTimer>
#include <cstdio>
#include <cstdlib>

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
    if (app.arguments().contains(QStringLiteral("--text")))
        window.setCentralWidget(new QLabel(QStringLiteral("Today is Monday, November 23, 2026")));
    QuitWhenShown quit;
    const bool exitWhenShown = app.arguments().contains(QStringLiteral("--exit-when-shown"));
    if (exitWhenShown)
        window.installEventFilter(&quit);
    window.show();
    const int status = app.exec();
    if (exitWhenShown) {
        std::fflush(nullptr);
        std::_Exit(status);
    }
    return status;
}
