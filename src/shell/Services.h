#pragma once

#include <QString>
#include <exception>

#include "shell/Clock.h"
#include "shell/Dialogs.h"
#include "shell/Platform.h"
#include "shell/VbError.h"

// What every store and window needs from the world around it: the data folder, the seams and
// the error logger.
class Services {
public:
    Services(const QString& dataFolder, Dialogs& dialogs, Clock& clock, Platform& platform);

    // The data folder, ending in exactly one separator.
    const QString AppFolder;
    Dialogs& dialogs;
    Clock& clock;
    Platform& platform;
    // False where nothing may be written, as on the command line: errors are then only shown.
    bool writesErrorLog = true;

    // AppFolder + relative ("\" in relative separates folders).
    QString PathOf(const QString& relative) const;

    // Reports a trapped error: shows the report in a "Program Error" box, then appends it to
    // Error.log in the data folder.
    void LogError(const QString& procedure, int number, const QString& description);

    // The report text LogError shows and logs.
    QString ErrorReport(const QString& procedure, int number, const QString& description) const;

    // Runs body as the named procedure: an error it raises is logged under that name and the
    // procedure is left; the caller goes on. Returns false when body failed.
    template <class Body>
    bool Trap(const char* procedure, Body&& body) {
        try {
            body();
            return true;
        } catch (const VbError& error) {
            LogError(QString::fromLatin1(procedure), error.number(), error.description());
        } catch (const std::exception&) {
            const VbError error = CurrentError();
            LogError(QString::fromLatin1(procedure), error.number(), error.description());
        }
        return false;
    }

private:
    void AppendToErrorLog(const QString& report);
};

// The log never grows past this: an append whose 16-bit write position would overflow fails.
constexpr qint64 kErrorLogLimit = 32767;
