#pragma once

#include <QFont>
#include <QHash>
#include <QStaticText>

class QPainter;
class QRect;

// Short texts in one font, each laid out once and from then on only placed. A year's calendar
// draws 365 day numbers, 84 weekday names and 12 titles at every paint; laying each out anew
// through the text shaper cost more than everything else on the sheets.
class StaticTexts {
public:
    // Draws text in font within box, placed as QPainter::drawText places a single line.
    void Draw(QPainter& painter, const QRect& box, Qt::Alignment alignment, const QString& text,
              const QFont& font);

private:
    QFont font_;
    QHash<QString, QStaticText> laidOut_;
};
