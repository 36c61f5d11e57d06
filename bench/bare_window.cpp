// The least a Qt Widgets program does to show a main window: the baseline for start-up time.
#include <QApplication>
#include <QMainWindow>
#include <QTimer>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QMainWindow window;
    window.resize(1024, 720);
    window.show();
    if (app.arguments().contains(QStringLiteral("--exit-when-shown")))
        QTimer::singleShot(0, &app, &QCoreApplication::quit);
    return app.exec();
}
