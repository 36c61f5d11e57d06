#include "reports/gui/frmBudget.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QVBoxLayout>
#include <cmath>

#include "reports/ReportMessages.h"
#include "reports/gui/BudgetChart.h"
#include "shell/NumberFormat.h"
#include "shell/gui/Printing.h"

namespace {

enum Column { MonthColumn, BudgetColumn, SpentColumn, DifferenceColumn };
const QStringList kHeadings{QStringLiteral("Month"), QStringLiteral("Budget"),
                            QStringLiteral("Spent"), QStringLiteral("Difference")};
const QColor kOverText(0xa8, 0x12, 0x12);
const QColor kUnderText(0x12, 0x6e, 0x2c);
const QColor kOverBack(0xfb, 0xdc, 0xdc);
const QColor kUnderBack(0xdc, 0xf3, 0xe1);
// Where each column starts on paper, in millimetres from the left margin.
const QList<qreal> kPrintStops{0, 40, 80, 120};

QString Amount(double value) {
    return FormatThousands(value, 2);
}

QString MonthName(int month) {
    return QLocale(QLocale::English).monthName(month);
}

// The table's figures of a year: per month and for the year, the budget (none when no month
// has one), the spending and the difference (budget less spending: below zero is over budget).
// The year's difference adds up the months that have a budget, so that a month nobody
// budgeted does not count as overspent.
struct BudgetLine {
    QString name;
    std::optional<double> budget;
    double spent = 0;
    std::optional<double> difference;

    QString BudgetText() const { return budget ? Amount(*budget) : QString(); }
    QString DifferenceText() const { return difference ? Amount(*difference) : QString(); }
    bool Over() const { return difference && std::round(*difference * 100) < 0; }
};

QList<BudgetLine> BudgetLines(const BudgetFigures& figures) {
    QList<BudgetLine> lines;
    BudgetLine total{QStringLiteral("Year Total"), std::nullopt, 0, std::nullopt};
    for (int m = 0; m < 12; ++m) {
        const std::optional<double> budget = figures.budget[m];
        const double spent = figures.actual[m];
        const auto difference = budget ? std::optional(*budget - spent) : std::nullopt;
        lines.append({MonthName(m + 1), budget, spent, difference});
        total.spent += spent;
        if (budget) {
            total.budget = total.budget.value_or(0) + *budget;
            total.difference = total.difference.value_or(0) + *difference;
        }
    }
    lines.append(total);
    return lines;
}

}  // namespace

frmBudget::frmBudget(ReportContext& context, modBudget& store)
    : ChildWindow(context.services, QString::fromLatin1(kName), kBudgetCaption),
      context_(context),
      store_(store),
      edits_(store.budgets()),
      spnYear_(new QSpinBox),
      grdBudget_(new QTableWidget(13, 4)),
      picChart_(new BudgetChart),
      lblLeftOut_(new QLabel),
      cmdSave_(new QPushButton(QStringLiteral("&Save"))) {
    spnYear_->setObjectName(QStringLiteral("spnYear"));
    spnYear_->setRange(1900, 9999);
    cmdSave_->setObjectName(QStringLiteral("cmdSave"));
    auto* layout = new QVBoxLayout(Body());
    auto* top = new QHBoxLayout;
    auto* yearLabel = new QLabel(QStringLiteral("&Year:"));
    yearLabel->setBuddy(spnYear_);
    top->addWidget(yearLabel);
    top->addWidget(spnYear_);
    top->addWidget(new QLabel(QStringLiteral(
        "  Type a month's budget into its Budget cell. Spent is the month's expense report "
        "total.")));
    top->addStretch();
    top->addWidget(cmdSave_);
    layout->addLayout(top);
    auto* figures = new QHBoxLayout;
    BuildTable();
    auto* table = new QVBoxLayout;
    table->addWidget(grdBudget_);
    lblLeftOut_->setObjectName(QStringLiteral("lblLeftOut"));
    lblLeftOut_->setWordWrap(true);
    lblLeftOut_->setMaximumWidth(grdBudget_->maximumWidth());
    table->addWidget(lblLeftOut_);
    table->addStretch();
    figures->addLayout(table);
    figures->addWidget(picChart_, 1);
    layout->addLayout(figures, 1);
    BuildMenus();
    On(spnYear_, &QSpinBox::valueChanged, "spnYear_Change", [this] {
        if (!filling_)
            ShowYear(spnYear_->value());
    });
    On(cmdSave_, &QPushButton::clicked, "cmdSave_Click", [this] { cmdSave_Click(); });
    connect(grdBudget_, &QTableWidget::cellChanged, this, [this](int row, int column) {
        if (!filling_)
            services_.Trap("grdBudget_CellChanged", [&] { grdBudget_CellChanged(row, column); });
    });
    setFocusProxy(grdBudget_);
}

void frmBudget::BuildTable() {
    grdBudget_->setObjectName(QStringLiteral("grdBudget"));
    grdBudget_->setHorizontalHeaderLabels(kHeadings);
    grdBudget_->verticalHeader()->hide();
    grdBudget_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    grdBudget_->verticalHeader()->setDefaultSectionSize(QFontMetrics(font()).height() + 6);
    grdBudget_->setSelectionMode(QAbstractItemView::SingleSelection);
    grdBudget_->setEditTriggers(QAbstractItemView::AllEditTriggers);
    const QFontMetrics metrics(font());
    const int amount = metrics.horizontalAdvance(QStringLiteral("-000,000,000.00")) + 12;
    grdBudget_->setColumnWidth(MonthColumn,
                               metrics.horizontalAdvance(QStringLiteral("September 0000")));
    for (int column = BudgetColumn; column <= DifferenceColumn; ++column)
        grdBudget_->setColumnWidth(column, amount);
    for (int row = 0; row <= kTotalRow; ++row)
        for (int column = 0; column < kHeadings.size(); ++column) {
            auto* item = new QTableWidgetItem;
            if (column != MonthColumn)
                item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            if (column != BudgetColumn || row == kTotalRow)
                item->setFlags(item->flags() & ~Qt::ItemIsEditable);
            if (row == kTotalRow && column == DifferenceColumn)
                item->setToolTip(
                    QStringLiteral("The differences of the months that have a "
                                   "budget, added up"));
            if (row == kTotalRow) {
                QFont bold = item->font();
                bold.setBold(true);
                item->setFont(bold);
            }
            grdBudget_->setItem(row, column, item);
        }
    int width = 2 * grdBudget_->frameWidth();
    for (int column = 0; column < kHeadings.size(); ++column)
        width += grdBudget_->columnWidth(column);
    grdBudget_->setFixedWidth(width + 2);
    grdBudget_->setFixedHeight(grdBudget_->horizontalHeader()->sizeHint().height() +
                               13 * grdBudget_->rowHeight(0) + 2 * grdBudget_->frameWidth() + 2);
    grdBudget_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void frmBudget::BuildMenus() {
    QMenu* file = AddMenu(MenuBar(), QStringLiteral("&File"), QStringLiteral("mnuFile"));
    AddCommand(
        file, QStringLiteral("&Save"), QStringLiteral("mnuFileSave"), "cmdSave_Click",
        [this] { cmdSave_Click(); }, QKeySequence(Qt::CTRL | Qt::Key_S));
    AddCommand(
        file, QStringLiteral("&Print"), QStringLiteral("mnuFilePrint"), "mnuFilePrint_Click",
        [this] { mnuFilePrint_Click(); }, QKeySequence(Qt::CTRL | Qt::Key_P));
    file->addSeparator();
    AddCommand(file, QStringLiteral("E&xit"), QStringLiteral("mnuFileExit"), "mnuFileExit_Click",
               [this] { CloseWindow(); });
}

const BudgetFigures& frmBudget::Figures() const {
    return picChart_->figures();
}

void frmBudget::ShowYear(int year) {
    year_ = year;
    spent_ = MonthlyExpenses(services_, year);
    filling_ = true;
    spnYear_->setValue(year);
    filling_ = false;
    Refill();
}

void frmBudget::SetCell(int row, int column, const QString& text, const QColor& color,
                        const QColor& background) {
    QTableWidgetItem* item = grdBudget_->item(row, column);
    item->setText(text);
    item->setForeground(color.isValid() ? QBrush(color) : QBrush());
    item->setBackground(background.isValid() ? QBrush(background) : QBrush());
}

void frmBudget::Refill() {
    BudgetFigures figures;
    for (int m = 0; m < 12; ++m) {
        const auto it = edits_.constFind(QDate(year_, m + 1, 1));
        if (it != edits_.cend())
            figures.budget[m] = double(*it) / 100;
        figures.actual[m] = spent_[m].sum;
    }
    lblLeftOut_->setText(LeftOutLines().join(u'\n'));
    lblLeftOut_->setVisible(!lblLeftOut_->text().isEmpty());
    filling_ = true;
    const QList<BudgetLine> lines = BudgetLines(figures);
    for (int row = 0; row <= kTotalRow; ++row) {
        const BudgetLine& line = lines[row];
        SetCell(row, MonthColumn, line.name);
        SetCell(row, BudgetColumn, line.BudgetText());
        SetCell(row, SpentColumn, Amount(line.spent));
        const bool shown = line.difference.has_value();
        SetCell(row, DifferenceColumn, line.DifferenceText(),
                !shown        ? QColor()
                : line.Over() ? kOverText
                              : kUnderText,
                !shown        ? QColor()
                : line.Over() ? kOverBack
                              : kUnderBack);
    }
    filling_ = false;
    picChart_->SetFigures(figures);
}

QStringList frmBudget::LeftOutLines() const {
    QStringList lines;
    for (int m = 0; m < 12; ++m)
        if (spent_[m].leftOut > 0)
            lines.append(MonthName(m + 1) + QStringLiteral(": ") +
                         LeftOutNote(ReportKind::Expenses, spent_[m].leftOut) + u'.');
    return lines;
}

void frmBudget::grdBudget_CellChanged(int row, int column) {
    if (column != BudgetColumn || row >= kTotalRow)
        return;
    std::optional<qint64> cents;
    if (!ParseBudgetText(grdBudget_->item(row, column)->text(), cents)) {
        services_.dialogs.MsgBox(kBadBudgetMessage, kWarningStyle);
        Refill();
        return;
    }
    const QDate month(year_, row + 1, 1);
    const std::optional<qint64> before =
        edits_.contains(month) ? std::optional(edits_.value(month)) : std::nullopt;
    if (cents)
        edits_.insert(month, *cents);
    else
        edits_.remove(month);
    changed_ = changed_ || before != cents;
    Refill();
}

bool frmBudget::cmdSave_Click() {
    if (!store_.SaveBudget(edits_))
        return false;
    changed_ = false;
    return true;
}

void frmBudget::PrintBudget(PageWriter& writer) const {
    writer.SetFont(PrintFont(QStringLiteral("Arial"), 10, true));
    writer.Columns(kHeadings, kPrintStops);
    writer.SetFont(PrintFont(QStringLiteral("Arial"), 10));
    const QList<BudgetLine> lines = BudgetLines(Figures());
    for (int row = 0; row <= kTotalRow; ++row) {
        const BudgetLine& line = lines[row];
        if (row == kTotalRow) {
            writer.Rule();
            writer.SetFont(PrintFont(QStringLiteral("Arial"), 10, true));
        }
        writer.Columns({line.name, line.BudgetText(), Amount(line.spent), line.DifferenceText()},
                       kPrintStops);
    }
    writer.Blank();
    writer.SetFont(PrintFont(QStringLiteral("Arial"), 10));
    for (const QString& note : LeftOutLines())
        writer.Line(note);
    const BudgetFigures figures = Figures();
    writer.SetFont(PrintFont(QStringLiteral("Arial"), 8));
    writer.Picture(95, [&figures](QPainter& painter, const QRectF& area) {
        painter.setFont(PrintFont(QStringLiteral("Arial"), 8));
        PaintBudgetChart(painter, area, figures);
    });
}

void frmBudget::mnuFilePrint_Click() {
    context_.printer.Print(windowTitle(), [this](PageWriter& writer) {
        writer.SetHeading(
            {windowTitle(), QStringLiteral("Budget and spending in ") + QString::number(year_)});
        PrintBudget(writer);
    });
}

void frmBudget::showEvent(QShowEvent* event) {
    ChildWindow::showEvent(event);
    QMdiArea* area = nullptr;
    for (QWidget* w = parentWidget(); w && !area; w = w->parentWidget())
        area = qobject_cast<QMdiArea*>(w);
    if (watchingActivation_ || !area)
        return;
    watchingActivation_ = true;
    connect(area, &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* frame) {
        if (frame && frame->isAncestorOf(this) && year_ != 0)
            services_.Trap("Form_Activate", [this] { ShowYear(year_); });
    });
}

bool frmBudget::Form_QueryUnload() {
    bool mayClose = true;
    services_.Trap("Form_QueryUnload", [&] {
        if (!changed_)
            return;
        switch (services_.dialogs.MsgBox(kBudgetChangedQuestion, vb::YesNoCancel | vb::Question,
                                         kBudgetChangedTitle)) {
            case vb::Yes:
                mayClose = cmdSave_Click();
                break;
            case vb::No:
                // The window closes without saving; the flag stays for a close of the
                // program that a later answer calls off.
                break;
            default:
                mayClose = false;
        }
    });
    return mayClose;
}
