#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

// Runs one of poppler-utils' programs (pdftotext, pdftoppm) and gives what it printed; a
// failure gives a text no check expects, naming the program.
inline QString RunPdfTool(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(30000) || process.exitCode() != 0)
        return QStringLiteral("<%1 failed: poppler-utils reads the PDFs>").arg(program);
    return QString::fromUtf8(process.readAllStandardOutput());
}
