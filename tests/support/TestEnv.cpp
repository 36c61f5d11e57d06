#include "TestEnv.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

TestEnv::TestEnv(const QDateTime& now) : clock(now) {
    state = std::make_unique<ProgramState>(dir.path(), dialogs, clock, platform);
}

QString TestEnv::folder() const {
    return state->services.AppFolder;
}

QString TestEnv::path(const QString& name) const {
    return state->services.PathOf(name);
}

void TestEnv::write(const QString& name, const QByteArray& bytes) const {
    const QString file = path(name);
    QDir().mkpath(QFileInfo(file).absolutePath());
    QFile out(file);
    if (!out.open(QIODevice::WriteOnly) || out.write(bytes) != bytes.size())
        qFatal("cannot write test file %s", qPrintable(file));
}

QByteArray TestEnv::read(const QString& name) const {
    QFile in(path(name));
    if (!in.open(QIODevice::ReadOnly))
        return QByteArray("<missing>");
    return in.readAll();
}

bool TestEnv::exists(const QString& name) const {
    return QFileInfo::exists(path(name));
}

void TestEnv::select(const QDate& date) {
    state->dates.SelectDate(date);
}

void TestEnv::expectProgramError(const QString& procedure, int number, const QString& description) {
    dialogs.ExpectMsgBox(state->services.ErrorReport(procedure, number, description), vb::OKOnly,
                         QStringLiteral("Program Error"));
}
