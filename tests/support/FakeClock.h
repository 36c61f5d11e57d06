#pragma once

#include "shell/Clock.h"

// A clock that stands still until the test moves it. Its timers run a thousand times faster:
// a second is a millisecond.
class FakeClock final : public Clock {
public:
    explicit FakeClock(QDateTime now = QDateTime(QDate(2026, 9, 7), QTime(10, 30, 0)))
        : now_(std::move(now)) {}
    QDateTime now() const override { return now_; }
    int Interval(int ms) const override { return ms < 1000 ? 1 : ms / 1000; }
    void Set(const QDateTime& now) { now_ = now; }

private:
    QDateTime now_;
};
