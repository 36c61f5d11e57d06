#pragma once

#include <QDate>
#include <QDateTime>

// Today's date and the time of day, behind a seam so that tests run on a fixed date.
class Clock {
public:
    virtual ~Clock() = default;
    virtual QDateTime now() const = 0;
    QDate today() const { return now().date(); }
    // How long a timer set to wait ms milliseconds really waits: just that on the desk, far
    // less in a test, which moves the time of day itself.
    virtual int Interval(int ms) const { return ms; }
};

class SystemClock final : public Clock {
public:
    QDateTime now() const override { return QDateTime::currentDateTime(); }
};
