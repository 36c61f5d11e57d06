#include "calendar/DayDescription.h"

#include <QStringList>

#include "calendar/DayLook.h"
#include "shell/DateFormats.h"

QString DayDescription(const QDate& date, const DayLook& look, const QString& markCaption) {
    QStringList parts{datefmt::LongDate(date)};
    if (look.markColor && !markCaption.isEmpty())
        parts << QStringLiteral("Marked ") + markCaption;
    parts << look.captions;
    if (!look.hoverText.isEmpty())
        parts << look.hoverText;
    for (const DayIcon& icon : look.icons)
        parts << QStringLiteral("Icon ") + icon.caption;
    if (look.hasNotes)
        parts << QStringLiteral("Has notes");
    if (look.hasPlanner)
        parts << QStringLiteral("Has a planner");
    for (QString& part : parts)
        if (!part.endsWith(QLatin1Char('.')))
            part += QLatin1Char('.');
    return parts.join(QLatin1Char(' '));
}
