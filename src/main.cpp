// Start-up: the command line, the display check, one copy per data folder, the data folder,
// then the main window.
#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QStandardPaths>
#include <QTimer>
#include <cstdio>

#include "Version.h"
#include "app/FirstStart.h"
#include "app/ProgramState.h"
#include "app/gui/MainWindow.h"
#include "shell/InstanceLock.h"
#include "shell/gui/DesktopPlatform.h"
#include "shell/gui/Icons.h"
#include "shell/gui/QtDialogs.h"

namespace {

struct Options {
    QString dataDir;
    bool exitWhenShown = false;
};

// Handles --help and --version itself (they need no display) and returns the other options.
std::optional<Options> ParseCommandLine(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Orvanta - Planner and Date Management: calendar, notes, daily planner, "
                       "expenses and mileage."));
    const QCommandLineOption help(QStringList{QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Show this help and exit."));
    const QCommandLineOption version(QStringLiteral("version"),
                                     QStringLiteral("Show the program's version and exit."));
    const QCommandLineOption dataDir(
        QStringLiteral("data-dir"),
        QStringLiteral("Keep the data files in DIR (default: the per-user data folder, "
                       "~/.local/share/Orvanta on Linux)."),
        QStringLiteral("DIR"));
    const QCommandLineOption exitWhenShown(
        QStringLiteral("exit-when-shown"),
        QStringLiteral("Quit as soon as the main window has been drawn (start-up timing)."));
    parser.addOptions({help, version, dataDir, exitWhenShown});
    if (!parser.parse(arguments)) {
        std::fprintf(stderr, "orvanta: %s\n%s", qPrintable(parser.errorText()),
                     qPrintable(parser.helpText()));
        return std::nullopt;
    }
    if (parser.isSet(help)) {
        std::fputs(qPrintable(parser.helpText()), stdout);
        return std::nullopt;
    }
    if (parser.isSet(version)) {
        std::puts("Orvanta " ORVANTA_VERSION);
        return std::nullopt;
    }
    Options options;
    options.dataDir = parser.value(dataDir);
    options.exitWhenShown = parser.isSet(exitWhenShown);
    return options;
}

bool HasDisplay() {
    return qEnvironmentVariableIsSet("QT_QPA_PLATFORM") ||
           !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

QString DefaultDataFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/Orvanta");
}

// Quits the program once the window it watches has been painted.
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
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const std::optional<Options> options = ParseCommandLine(arguments);
    if (!options)
        return arguments.contains(QStringLiteral("--help")) ||
                       arguments.contains(QStringLiteral("-h")) ||
                       arguments.contains(QStringLiteral("--version"))
                   ? 0
                   : 2;
    if (!HasDisplay()) {
        std::fputs(
            "Orvanta is a windowed program and no display was found (DISPLAY is not set).\n"
            "To run it without a screen, start it under a virtual display:\n"
            "    xvfb-run -a orvanta\n",
            stderr);
        return 1;
    }

    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Orvanta"));
    QApplication::setApplicationVersion(QStringLiteral(ORVANTA_VERSION));
    QApplication::setWindowIcon(icons::Orvanta());
    QtDialogs dialogs;
    const QString folder = options->dataDir.isEmpty() ? DefaultDataFolder() : options->dataDir;
    if (!QDir().mkpath(folder)) {
        dialogs.MsgBox(QStringLiteral("The data folder %1 cannot be created.").arg(folder),
                       vb::OKOnly | vb::Critical, {});
        return 1;
    }
    InstanceLock lock(folder);
    if (RefuseSecondInstance(lock, dialogs))
        return 1;

    SystemClock clock;
    DesktopPlatform platform;
    ProgramState state(folder, dialogs, clock, platform);
    InstallDefaultFiles(state.services);
    MainWindow window = CreateMainWindow(state);
    dialogs.SetParent(window.frame.get());
    QuitWhenShown quitWhenShown;
    if (options->exitWhenShown)
        window.frame->installEventFilter(&quitWhenShown);
    // The window is on the screen before anything is read, so that a message about a data
    // file has a window to stand on.
    window.frame->show();
    window.frame->Form_Load();
    return app.exec();
}
