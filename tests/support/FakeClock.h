#pragma once

#include "shell/Clock.h"

// A clock that stands still until the test moves it.
class FakeClock final : public Clock {
public:
    explicit FakeClock(QDateTime now = QDateTime(QDate(2026, 9, 7), QTime(10, 30, 0)))
        : now_(std::move(now)) {}
    QDateTime now() const override { return now_; }
    void Set(const QDateTime& now) { now_ = now; }

private:
    QDateTime now_;
};
