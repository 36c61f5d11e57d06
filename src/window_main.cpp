// The windowed program, started by orvanta: the display check, one copy per data folder, the
// data folder, then the main window.
#include <QApplication>
#include <QDir>
#include <QTimer>
#include <cstdio>
#include <cstdlib>

#include "Version.h"
#include "app/CommandLine.h"
#include "app/FirstStart.h"
#include "app/ProgramState.h"
#include "app/gui/MainWindow.h"
#include "shell/InstanceLock.h"
#include "shell/gui/DesktopPlatform.h"
#include "shell/gui/Icons.h"
#include "shell/gui/Printing.h"
#include "shell/gui/QtDialogs.h"

namespace {

bool HasDisplay() {
    return qEnvironmentVariableIsSet("QT_QPA_PLATFORM") ||
           !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
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
    const auto parsed = ParseCommandLine(arguments);
    if (const int* status = std::get_if<int>(&parsed))
        return *status;
    const CommandLine& options = std::get<CommandLine>(parsed);
    if (!options.command.isEmpty())
        return RunCommand(options);
    const QString folder = options.dataDir.isEmpty() ? DefaultDataFolder() : options.dataDir;
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
    // Ties the window to the installed menu entry (the task bar shows its name and icon).
    QGuiApplication::setDesktopFileName(QStringLiteral("org.orvanta.Orvanta"));
    QApplication::setWindowIcon(icons::Orvanta());
    QtDialogs dialogs;
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
    DesktopPrinter printer(dialogs, platform);
    printer.SetChosenPrinter([&state] { return state.prefs.Value(prefkey::DefaultPrinter); });
    MainWindow window = CreateMainWindow(state, printer);
    dialogs.SetParent(window.frame.get());
    QuitWhenShown quitWhenShown;
    if (options.exitWhenShown)
        window.frame->installEventFilter(&quitWhenShown);
    // The window is on the screen before anything is read, so that a message about a data
    // file has a window to stand on.
    window.frame->show();
    window.frame->Form_Load();
    const int status = app.exec();
    if (options.exitWhenShown) {
        // Start-up timing ends with the drawn window: the program leaves at once, without the
        // steps of a user's close (saving the window's place) and without taking the window
        // apart, as the bare window it is timed against does.
        lock.Release();
        std::fflush(nullptr);
        std::_Exit(status);
    }
    return status;
}
