#include "calendar/DayGrid.h"

QString CellIndex::Code() const {
    QString code;
    code.reserve(6);
    AppendTwoDigits(code, month);
    AppendTwoDigits(code, weekday);
    AppendTwoDigits(code, week);
    return code;
}

std::optional<CellIndex> CellIndex::FromCode(QStringView code) {
    if (code.size() != 6)
        return std::nullopt;
    // Six plain digits: no sign or blank may stand in for a leading zero.
    for (const QChar c : code)
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            return std::nullopt;
    bool ok[3] = {};
    const CellIndex cell{code.mid(0, 2).toInt(&ok[0]), code.mid(2, 2).toInt(&ok[1]),
                         code.mid(4, 2).toInt(&ok[2])};
    if (!ok[0] || !ok[1] || !ok[2] || cell.month < 0 || cell.month >= kMonths || cell.weekday < 0 ||
        cell.weekday >= kWeekdays || cell.week < 0 || cell.week >= kWeekRows)
        return std::nullopt;
    return cell;
}
