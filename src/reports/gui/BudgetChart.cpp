#include "reports/gui/BudgetChart.h"

#include <QLocale>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

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

    // The key, on as many lines as the width needs.
    const std::pair<QColor, QString> keys[] = {
        {kBudgetColor, QStringLiteral("Budget")},
        {kUnderColor, QStringLiteral("Spent within budget")},
        {kOverColor, QStringLiteral("Spent over budget")},
        {kNoBudgetColor, QStringLiteral("Spent, no budget")}};
    qreal x = area.left() + scaleWidth;
    qreal y = area.top() + line * 0.2;
    for (const auto& [color, text] : keys) {
        const qreal width = line + metrics.horizontalAdvance(text);
        if (x + width > area.right() && x > area.left() + scaleWidth) {
            x = area.left() + scaleWidth;
            y += line * 1.2;
        }
        painter.fillRect(QRectF(x, y + line * 0.1, line * 0.8, line * 0.8), color);
        painter.setPen(Qt::black);
        painter.drawText(QPointF(x + line, y + metrics.ascent()), text);
        x += width + line;
    }
    const qreal plotTop = y + line * 1.8;
    const QRectF plot(area.left() + scaleWidth, plotTop, area.width() - scaleWidth - line / 2,
                      area.bottom() - plotTop - line * 1.4);
    const auto yOf = [&](double value) { return plot.bottom() - plot.height() * value / top; };

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
        const QColor color = !figures.budget[m]                                   ? kNoBudgetColor
                             : std::round((*figures.budget[m] - spent) * 100) < 0 ? kOverColor
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
