#include "shell/ShellCommands.h"

#include <QRegularExpression>

#include "shell/Files.h"
#include "shell/Services.h"
#include "shell/ShellMessages.h"
#include "shell/TextFile.h"
#include "shell/UserPreferences.h"

ShellCommands::ShellCommands(Services& services, UserPreferences& prefs)
    : services_(services), prefs_(prefs) {}

bool ShellCommands::IsDriveLetter(const QString& answer) {
    static const QRegularExpression letter(QStringLiteral("^[A-Z]$"),
                                           QRegularExpression::CaseInsensitiveOption);
    return letter.match(answer).hasMatch();
}

void ShellCommands::mnuOptNetworkShare_Click() {
    services_.Trap("mnuOptNetworkShare_Click", [&] {
        const QString answer = services_.dialogs.InputBox(kShareDrivePrompt, kShareDriveTitle);
        if (answer.isEmpty())
            return;
        if (!IsDriveLetter(answer)) {
            services_.dialogs.MsgBox(kBadDriveLetterMessage, kWarningStyle);
            return;
        }
        prefs_.SetValue(prefkey::NetworkShareDrive, answer);
        prefs_.SaveUserPreferences(services_);
    });
}

void ShellCommands::mnuOptCreateShortcut_Click(const QString& programFile) {
    services_.Trap("mnuOptCreateShortcut_Click", [&] {
        try {
            services_.platform.CreateShortcut(kShortcutName, programFile,
                                              {QStringLiteral("--data-dir"), services_.AppFolder});
        } catch (const VbError& error) {
            services_.dialogs.MsgBox(kShortcutFailedPrefix + QString::number(error.number()) +
                                         QStringLiteral(" : ") + error.description(),
                                     kWarningStyle);
            return;
        }
        services_.dialogs.MsgBox(kShortcutAddedMessage, kInformationStyle);
    });
}

void ShellCommands::mnuSupportReportProblem_Click() {
    services_.Trap("mnuSupportReportProblem_Click", [&] {
        services_.dialogs.MsgBox(kReportProblemMessage, kInformationStyle);
        services_.platform.OpenUrl(kMakerSite + kBugReportPage);
    });
}

void ShellCommands::mnuSupportSendErrorLog_Click() {
    services_.Trap("mnuSupportSendErrorLog_Click", [&] {
        services_.dialogs.MsgBox(kSendErrorLogMessage, kInformationStyle);
        QString path;
        if (!FileExists(services_.AppFolder, kErrorLogFile, &path)) {
            services_.dialogs.MsgBox(kLogFileNotFoundMessage, kWarningStyle);
            return;
        }
        services_.platform.SetClipboardText(textfile::ReadAll(path));
        services_.platform.OpenUrl(kMakerSite + kErrorLogPage);
    });
}
