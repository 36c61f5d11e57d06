#include <QFile>
#include <QStringEncoder>

#include "shell/DateFormats.h"
#include "shell/Files.h"
#include "shell/Services.h"
#include "shell/ShellMessages.h"
#include "shell/TextFile.h"

Services::Services(const QString& dataFolder, Dialogs& dialogs_, Clock& clock_, Platform& platform_)
    : AppFolder(MakeAppFolder(dataFolder)), dialogs(dialogs_), clock(clock_), platform(platform_) {}

QString Services::PathOf(const QString& relative) const {
    return JoinPath(AppFolder, relative);
}

QString Services::ErrorReport(const QString& procedure, int number,
                              const QString& description) const {
    return datefmt::GeneralDate(clock.now()) + kCrLf + QStringLiteral("An error occurred in ") +
           procedure + QStringLiteral(".") + kCrLf + QStringLiteral("Error Number: ") +
           QString::number(number) + kCrLf + QStringLiteral("Error Description: ") + description +
           kCrLf + kCrLf;
}

void Services::LogError(const QString& procedure, int number, const QString& description) {
    const QString report = ErrorReport(procedure, number, description);
    dialogs.MsgBox(report, vb::OKOnly, kProgramErrorTitle);
    if (writesErrorLog)
        AppendToErrorLog(report);
}

void Services::AppendToErrorLog(const QString& report) {
    const QString path = PathForWriting(AppFolder, kErrorLogFile);
    bool ok = true;
    if (!QFile::exists(path)) {
        QFile create(path);
        ok = create.open(QIODevice::WriteOnly);
    }
    QFile log(path);
    // The write position is kept in 16 bits: one past a log of 32,767 bytes overflows.
    const qint64 position = log.size() + 1;
    ok = ok && position <= kErrorLogLimit;
    if (ok) {
        ClearAttributes(path);
        QStringEncoder encoder("windows-1252");
        const QByteArray bytes = encoder.encode(report);
        ok = log.open(QIODevice::ReadWrite) && log.seek(position - 1) &&
             log.write(bytes) == bytes.size() && log.flush();
    }
    if (!ok)
        dialogs.MsgBox(kErrorLogWriteFailed);
}
