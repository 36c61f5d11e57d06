#pragma once

#include <QWidget>
#include <array>
#include <optional>

class QPainter;
class QRectF;

// A year's budget and what was spent, month by month (January first).
struct BudgetFigures {
    std::array<std::optional<double>, 12> budget;
    std::array<double, 12> actual{};
};

// Draws the figures as a bar chart inside area: per month a budget bar beside a spent bar, the
// spent bar red over the month's budget, green within it, grey without one; a scale at the left,
// the month letters under the bars and a key at the top. The same drawing goes on the screen and on
// paper.
void PaintBudgetChart(QPainter& painter, const QRectF& area, const BudgetFigures& figures);

// The chart as a control of the budget window.
class BudgetChart : public QWidget {
    Q_OBJECT
public:
    explicit BudgetChart(QWidget* parent = nullptr);

    void SetFigures(const BudgetFigures& figures);
    const BudgetFigures& figures() const { return figures_; }

    QSize sizeHint() const override { return {460, 320}; }
    QSize minimumSizeHint() const override { return {320, 220}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    BudgetFigures figures_;
};
