#include "shell/InstanceLock.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include "shell/ShellMessages.h"

InstanceLock::InstanceLock(const QString& appFolder)
    : lock_(std::make_unique<QLockFile>(LockPathFor(appFolder))) {
    // A lock is never taken over for its age alone (0 turns the age test off): a running copy
    // may hold it for weeks. A lock whose owner process has died is still recognised as stale
    // and taken over, since that test does not depend on the age.
    lock_->setStaleLockTime(0);
}

bool InstanceLock::TryAcquire() {
    return lock_->tryLock(0);
}

QString InstanceLock::LockPathFor(const QString& appFolder) {
    QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty())
        folder = QDir::tempPath();
    const QString canonical = QFileInfo(appFolder).canonicalFilePath();
    const QByteArray key = (canonical.isEmpty() ? appFolder : canonical).toUtf8();
    const QByteArray hash = QCryptographicHash::hash(key, QCryptographicHash::Sha1).toHex();
    return folder + QStringLiteral("/orvanta-") + QString::fromLatin1(hash.left(16)) +
           QStringLiteral(".lock");
}

bool RefuseSecondInstance(InstanceLock& lock, Dialogs& dialogs) {
    if (lock.TryAcquire())
        return false;
    dialogs.MsgBox(kSecondInstanceMessage, vb::OKOnly | vb::Exclamation, {});
    return true;
}
