#pragma once

#include <QApplication>
#include <QByteArray>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

#include "FakeClock.h"
#include "FakeDialogs.h"
#include "FakePlatform.h"
#include "app/ProgramState.h"

// A fresh program state on an empty temporary data folder, with scripted dialogs, a clock
// standing at `now` and a recording platform. Nothing is shared between tests.
struct TestEnv {
    explicit TestEnv(const QDateTime& now = QDateTime(QDate(2026, 9, 7), QTime(10, 30, 0)));

    QTemporaryDir dir;
    // Outlives the program's state, so that a box shown while the program closes is seen too;
    // when it goes it fails the running test on any box not as scripted.
    FakeDialogs dialogs;
    FakeClock clock;
    FakePlatform platform;
    std::unique_ptr<ProgramState> state;

    // The data folder, ending in "/".
    QString folder() const;
    QString path(const QString& name) const;
    void write(const QString& name, const QByteArray& bytes) const;
    QByteArray read(const QString& name) const;
    bool exists(const QString& name) const;
    // Selects a date the way the main window does (filling the date holders).
    void select(const QDate& date);
    // The "Program Error" box LogError shows for these values at the clock's time.
    void expectProgramError(const QString& procedure, int number, const QString& description);
};

// main() of a test: offscreen, English, standard paths redirected away from the user's home.
#define ORVANTA_TEST_MAIN(TestClass)              \
    int main(int argc, char** argv) {             \
        qputenv("QT_QPA_PLATFORM", "offscreen");  \
        QStandardPaths::setTestModeEnabled(true); \
        QApplication app(argc, argv);             \
        app.setAttribute(Qt::AA_Use96Dpi, true);  \
        TestClass test;                           \
        return QTest::qExec(&test, argc, argv);   \
    }
