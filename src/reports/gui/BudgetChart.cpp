#include "reports/gui/BudgetChart.h"

#include <QLocale>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "shell/NumberFormat.h"

namespace {

const QColor kBudgetColor(0x5b, 0x8d, 0xd6);
const QColor kUnderColor(0x3c, 0xa0, 0x55);
const QColor kOverColor(0xd0, 0x3c, 0x3c);
const QColor kNoBudgetColor(0x9a, 0x9a, 0x9a);

// A round step for the scale, so that about four lines cover top.
double ScaleStep(double top) {
    const double rough = top / 4;
    const double power = std::pow(10.0, std::floor(std::log10(rough)));
    for (const double factor : {1.0, 2.0, 2.5, 5.0, 10.0})
        if (factor * power >= rough)
            return factor * power;
    return 10 * power;
}

}  // namespace

void PaintBudgetChart(QPainter& painter, const QRectF& area, const BudgetFigures& figures) {
    painter.setRenderHint(QPainter::Antialiasing, false);
    double top = 0;
    for (int m = 0; m < 12; ++m)
        top = std::max({top, figures.budget[m].value_or(0), figures.actual[m]});
    const double step = ScaleStep(top > 0 ? top : 100);
    top = step * std::ceil((top > 0 ? top : 100) / step);

    const QFontMetricsF metrics(painter.font(), painter.device());
    const qreal line = metrics.height();
    const qreal scaleWidth = metrics.horizontalAdvance(FormatThousands(top, 0)) + line / 2;
    const QRectF plot(area.left() + scaleWidth, area.top() + line * 1.8,
                      area.width() - scaleWidth - line / 2, area.height() - line * 3.2);
    const auto yOf = [&](double value) { return plot.bottom() - plot.height() * value / top; };

    // The key.
    qreal x = plot.left();
    const auto key = [&](const QColor& color, const QString& text) {
        painter.fillRect(QRectF(x, area.top() + line * 0.2, line * 0.8, line * 0.8), color);
        x += line;
        painter.setPen(Qt::black);
        painter.drawText(QPointF(x, area.top() + line * 0.2 + metrics.ascent() * 0.85), text);
        x += metrics.horizontalAdvance(text) + line;
    };
    key(kBudgetColor, QStringLiteral("Budget"));
    key(kUnderColor, QStringLiteral("Spent, within budget"));
    key(kOverColor, QStringLiteral("Spent, over budget"));
    key(kNoBudgetColor, QStringLiteral("Spent, no budget"));

    // The scale.
    for (double value = 0; value <= top + step / 2; value += step) {
        const qreal y = yOf(value);
        painter.setPen(QColor(0xd8, 0xd8, 0xd8));
        painter.drawLine(QPointF(plot.left(), y), QPointF(plot.right(), y));
        painter.setPen(Qt::black);
        const QString label = FormatThousands(value, 0);
        painter.drawText(
            QPointF(area.left() + scaleWidth - line / 4 - metrics.horizontalAdvance(label),
                    y + metrics.ascent() / 2 - 1),
            label);
    }

    // The bars, and the month letters under them.
    const qreal slot = plot.width() / 12;
    const qreal bar = slot * 0.36;
    const QLocale english(QLocale::English);
    for (int m = 0; m < 12; ++m) {
        const qreal left = plot.left() + slot * m + slot * 0.14;
        if (const auto budget = figures.budget[m])
            painter.fillRect(QRectF(left, yOf(*budget), bar, plot.bottom() - yOf(*budget)),
                             kBudgetColor);
        const double spent = figures.actual[m];
        const QColor color = !figures.budget[m]           ? kNoBudgetColor
                             : spent > *figures.budget[m] ? kOverColor
                                                          : kUnderColor;
        painter.fillRect(QRectF(left + bar, yOf(spent), bar, plot.bottom() - yOf(spent)), color);
        painter.setPen(Qt::black);
        const QString name = english.monthName(m + 1, QLocale::ShortFormat);
        painter.drawText(
            QPointF(plot.left() + slot * m + (slot - metrics.horizontalAdvance(name)) / 2,
                    plot.bottom() + metrics.ascent() + line * 0.2),
            name);
    }
    painter.setPen(Qt::black);
    painter.drawLine(plot.bottomLeft(), plot.bottomRight());
    painter.drawLine(plot.bottomLeft(), plot.topLeft());
}

BudgetChart::BudgetChart(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("picChart"));
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void BudgetChart::SetFigures(const BudgetFigures& figures) {
    figures_ = figures;
    update();
}

void BudgetChart::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    PaintBudgetChart(painter, QRectF(rect()).adjusted(6, 4, -4, -4), figures_);
}
