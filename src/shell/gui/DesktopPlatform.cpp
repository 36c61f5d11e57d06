#include "shell/gui/DesktopPlatform.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QPrinterInfo>
#include <QSaveFile>
#include <QStandardPaths>
#include <QUrl>

#include "shell/VbError.h"

bool DesktopPlatform::OpenUrl(const QString& url) {
    // Taken as it is: read as plain text, a "%" that escapes nothing would make QUrl write
    // every "%" of the address anew, and a "#" would start a fragment.
    return QDesktopServices::openUrl(QUrl::fromEncoded(url.toUtf8(), QUrl::StrictMode));
}

void DesktopPlatform::Beep() {
    QApplication::beep();
}

bool DesktopPlatform::PrinterPresent() {
    return !QPrinterInfo::availablePrinterNames().isEmpty();
}

QStringList DesktopPlatform::PrinterNames() {
    return QPrinterInfo::availablePrinterNames();
}

void DesktopPlatform::SetClipboardText(const QString& text) {
    QGuiApplication::clipboard()->setText(text);
}

QString DesktopExecArgument(const QString& argument) {
    QString quoted;
    for (const QChar c : argument) {
        if (c == QLatin1Char('"') || c == QLatin1Char('`') || c == QLatin1Char('$') ||
            c == QLatin1Char('\\'))
            quoted += QLatin1Char('\\');
        quoted += c;
        if (c == QLatin1Char('%'))
            quoted += c;  // a lone % would be taken for a field code
    }
    return QLatin1Char('"') + quoted + QLatin1Char('"');
}

void DesktopPlatform::CreateShortcut(const QString& name, const QString& program,
                                     const QStringList& arguments) {
    QStringList command{DesktopExecArgument(program)};
    for (const QString& argument : arguments)
        command.append(DesktopExecArgument(argument));
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::ApplicationsLocation);
    if (folder.isEmpty() || !QDir().mkpath(folder))
        Raise(err::PathNotFound);
    QSaveFile file(folder + QLatin1Char('/') + name + QStringLiteral(".desktop"));
    if (!file.open(QIODevice::WriteOnly))
        Raise(err::PermissionDenied);
    const QByteArray entry = QByteArrayLiteral("[Desktop Entry]\nType=Application\nName=") +
                             name.toUtf8() + QByteArrayLiteral("\nExec=") +
                             command.join(QLatin1Char(' ')).toUtf8() +
                             QByteArrayLiteral("\nTerminal=false\nCategories=Office;Calendar;\n");
    if (file.write(entry) != entry.size() || !file.flush() || !file.commit())
        Raise(err::PathFileAccessError, file.errorString());
}
