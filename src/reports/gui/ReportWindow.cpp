#include "reports/gui/ReportWindow.h"

#include <QClipboard>
#include <QDir>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "reports/ReportMessages.h"
#include "reports/ReportText.h"
#include "shell/DateInput.h"
#include "shell/NumberFormat.h"
#include "shell/SafeSave.h"
#include "shell/gui/Printing.h"

namespace {

const QString kCsvCaption = QStringLiteral("Export CSV");
const QString kCsvFilter = QStringLiteral("CSV files (*.csv)");

// How wide each column's labels are: room for a text as wide as this one.
QString ColumnRoom(ReportKind kind, int column) {
    if (column == 0)
        return QStringLiteral("00/00/0000");
    if (column == 1)
        return QString(kind == ReportKind::Expenses ? 40 : 32, u'n');
    return QStringLiteral("0,000,000.00");
}

// Where each column starts on paper, in millimetres from the left margin; the last is the
// reimbursement of a paid mileage report.
QList<qreal> PrintStops(ReportKind kind) {
    if (kind == ReportKind::Expenses)
        return {0, 26, 140};
    return {0, 26, 96, 118, 140, 158};
}

QByteArray HandlerName(const QString& prefix, const QString& column, const char* suffix) {
    return (prefix + column).toLatin1() + suffix;
}

}  // namespace

ReportWindow::ReportWindow(ReportContext& context, const char* name, const QString& caption,
                           ReportKind kind)
    : ChildWindow(context.services, QString::fromLatin1(name), caption),
      context_(context),
      kind_(kind),
      columns_(ColumnNames(kind)) {
    report_.kind = kind;
    for (const QString& column : columns_) {
        labelHandlers_.append(HandlerName(QStringLiteral("lbl"), column, "_MouseDown"));
        editorHandlers_.append(HandlerName(QStringLiteral("txt"), column, "_KeyDown"));
    }
}

void ReportWindow::Form_Load() {
    auto* layout = new QVBoxLayout(Body());
    lblTitle_ = new QLabel;
    lblTitle_->setObjectName(QStringLiteral("lblTitle"));
    QFont bold = lblTitle_->font();
    bold.setBold(true);
    lblTitle_->setFont(bold);
    layout->addWidget(lblTitle_);
    layout->addWidget(BuildRows());
    layout->addWidget(BuildFooter());
    layout->addStretch();
    BuildMenus();
    // The page keys work wherever the focus is in the window.
    const auto pageKey = [this](QKeySequence keys, const char* handler,
                                void (ReportWindow::*go)()) {
        auto* shortcut = new QShortcut(keys, this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        On(shortcut, &QShortcut::activated, handler, [this, go] { (this->*go)(); });
    };
    pageKey(QKeySequence(Qt::Key_PageDown), "Form_KeyDown", &ReportWindow::cmdNext_Click);
    pageKey(QKeySequence(Qt::Key_PageUp), "Form_KeyDown", &ReportWindow::cmdPrev_Click);
    // The keyboard starts on the heading, so that the page is shown from its top.
    lblTitle_->setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(lblTitle_);
    ShowReport(report_);
}

QWidget* ReportWindow::BuildRows() {
    rowsArea_ = new QWidget;
    auto* grid = new QGridLayout(rowsArea_);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(0);
    grid->setVerticalSpacing(0);
    const QStringList headings = ColumnHeadings(kind_);
    for (int column = 0; column <= headings.size(); ++column) {
        const bool paid = column == headings.size();
        auto* heading = new QLabel(paid ? QStringLiteral("Reimbursement") : headings[column]);
        QFont font = heading->font();
        font.setBold(true);
        heading->setFont(font);
        heading->setContentsMargins(3, 0, 3, 2);
        if (column > 1)
            heading->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(heading, 0, column);
        if (paid)
            paidHeading_ = heading;
    }
    LoadMyLabels(grid);
    // Room to spare goes to the description or destination.
    grid->setColumnStretch(1, 1);
    for (int column = 0; column < columns_.size(); ++column) {
        auto* editor = new QLineEdit(rowsArea_);
        editor->setObjectName(QStringLiteral("txt") + columns_[column]);
        editor->hide();
        editor->installEventFilter(this);
        editors_.append(editor);
    }
    return rowsArea_;
}

void ReportWindow::LoadMyLabels(QGridLayout* grid) {
    const QFontMetrics metrics(font());
    const auto makeLabel = [&](const QString& array, int line, int column, const QString& room) {
        auto* label = new QLabel;
        label->setObjectName(ArrayName(array, line));
        label->setAutoFillBackground(true);
        label->setContentsMargins(3, 0, 3, 0);
        label->setMinimumWidth(metrics.horizontalAdvance(room) + 6);
        if (column > 1)
            label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(label, line + 1, column);
        return label;
    };
    for (int column = 0; column < columns_.size(); ++column) {
        labels_.append(QList<QLabel*>());
        for (int line = 0; line < kRowsPerPage; ++line) {
            QLabel* label = makeLabel(QStringLiteral("lbl") + columns_[column], line, column,
                                      ColumnRoom(kind_, column));
            label->installEventFilter(this);
            labelPlace_.insert(label, {column, line});
            labels_[column].append(label);
        }
    }
    for (int line = 0; line < kRowsPerPage; ++line)
        paidLabels_.append(makeLabel(QStringLiteral("lblPaid"), line, int(columns_.size()),
                                     QStringLiteral("Reimbursement")));
}

QWidget* ReportWindow::BuildFooter() {
    auto* footer = new QWidget;
    auto* layout = new QVBoxLayout(footer);
    layout->setContentsMargins(0, 6, 0, 0);
    auto* paging = new QHBoxLayout;
    cmdPrev_ = new QPushButton(QStringLiteral("<< &Previous Page"));
    cmdPrev_->setObjectName(QStringLiteral("cmdPrev"));
    cmdNext_ = new QPushButton(QStringLiteral("&Next Page >>"));
    cmdNext_->setObjectName(QStringLiteral("cmdNext"));
    lblPage_ = new QLabel;
    lblPage_->setObjectName(QStringLiteral("lblPage"));
    lblPage_->setAlignment(Qt::AlignCenter);
    lblPage_->setMinimumWidth(
        QFontMetrics(font()).horizontalAdvance(QStringLiteral("Page 999 of 999")));
    paging->addWidget(cmdPrev_);
    paging->addWidget(lblPage_);
    paging->addWidget(cmdNext_);
    paging->addStretch();
    layout->addLayout(paging);
    On(cmdNext_, &QPushButton::clicked, "cmdNext_Click", [this] { cmdNext_Click(); });
    On(cmdPrev_, &QPushButton::clicked, "cmdPrev_Click", [this] { cmdPrev_Click(); });

    footer_ = new QGridLayout;
    const auto figure = [&](const QString& name, int row, int column) {
        auto* label = new QLabel;
        label->setObjectName(name);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        label->setMinimumWidth(
            QFontMetrics(font()).horizontalAdvance(QStringLiteral("9,999,999.00")));
        footer_->addWidget(label, row, column);
        return label;
    };
    footer_->addWidget(new QLabel(QStringLiteral("Page Total:")), 0, 0);
    lblPageTotal_ = figure(QStringLiteral("lblPageTotal"), 0, 1);
    footer_->addWidget(new QLabel(QStringLiteral("Report Total:")), 1, 0);
    lblReportTotal_ = figure(QStringLiteral("lblReportTotal"), 1, 1);
    lblPagePaid_ = figure(QStringLiteral("lblPagePaid"), 0, 3);
    lblReportPaid_ = figure(QStringLiteral("lblReportPaid"), 1, 3);
    for (int row = 0; row < 2; ++row) {
        auto* caption = new QLabel(QStringLiteral("    Reimbursement:"));
        caption->setObjectName(ArrayName(QStringLiteral("lblPaidCaption"), row));
        footer_->addWidget(caption, row, 2);
    }
    footer_->setColumnStretch(4, 1);
    layout->addLayout(footer_);
    return footer;
}

void ReportWindow::BuildMenus() {
    QMenu* file = AddMenu(MenuBar(), QStringLiteral("&File"), QStringLiteral("mnuFile"));
    AddCommand(
        file, QStringLiteral("&Print This Page"), QStringLiteral("mnuFilePrint"),
        "mnuFilePrint_Click", [this] { mnuFilePrint_Click(); }, QKeySequence(Qt::CTRL | Qt::Key_P));
    AddCommand(
        file, QStringLiteral("Print &All Pages..."), QStringLiteral("mnuFilePrintAll"),
        "mnuFilePrintAll_Click", [this] { mnuFilePrintAll_Click(); },
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_P));
    AddCommand(
        file, QStringLiteral("&Export CSV..."), QStringLiteral("mnuFileExportCsv"),
        "mnuFileExportCsv_Click", [this] { mnuFileExportCsv_Click(); },
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    file->addSeparator();
    AddCommand(file, QStringLiteral("E&xit"), QStringLiteral("mnuFileExit"), "mnuFileExit_Click",
               [this] { CloseWindow(); });
    QMenu* options = AddMenu(MenuBar(), QStringLiteral("&Options"), QStringLiteral("mnuOpt"));
    AddCommand(
        options, QStringLiteral("&Copy Marked Rows"), QStringLiteral("mnuOptCopy"),
        "mnuOptCopy_Click", [this] { mnuOptCopy_Click(); }, QKeySequence(Qt::CTRL | Qt::Key_C));
    AddCommand(
        options, QStringLiteral("Select &All"), QStringLiteral("mnuOptSelectAll"),
        "mnuOptSelectAll_Click", [this] { mnuOptSelectAll_Click(); },
        QKeySequence(Qt::CTRL | Qt::Key_A));
    AddCommand(
        options, QStringLiteral("&Invert Selection"), QStringLiteral("mnuOptInvert"),
        "mnuOptInvert_Click", [this] { mnuOptInvert_Click(); }, QKeySequence(Qt::CTRL | Qt::Key_I));
}

void ReportWindow::ShowReport(Report report) {
    CloseEditor();
    report_ = std::move(report);
    lblTitle_->setText(report_.Heading());
    ShowPaidColumn();
    ShowPage(1);
}

void ReportWindow::ShowPaidColumn() {
    const bool pays = report_.Pays();
    paidHeading_->setVisible(pays);
    for (QWidget* widget : paidLabels_)
        widget->setVisible(pays);
    for (QWidget* widget :
         {static_cast<QWidget*>(lblPagePaid_), static_cast<QWidget*>(lblReportPaid_),
          Control<QWidget>(QStringLiteral("lblPaidCaption"), 0),
          Control<QWidget>(QStringLiteral("lblPaidCaption"), 1)})
        widget->setVisible(pays);
}

void ReportWindow::SetRate(double rate) {
    report_.rate = rate;
    ShowPaidColumn();
    ShowPage(page_);
}

qsizetype ReportWindow::RowAt(int line) const {
    const qsizetype row = report_.PageBegin(page_) + line;
    return row < report_.PageEnd(page_) ? row : -1;
}

void ReportWindow::ShowPage(int page) {
    page_ = page;
    firstPage_ = page <= 1;
    lastPage_ = page >= report_.Pages();
    ClearReportLabels();
    for (int line = 0; line < kRowsPerPage; ++line)
        FillLine(line);
    lblPage_->setText(PageLabel(page_, report_.Pages()));
    GreyReportLabels();
    AdjustTheColors();
    AdjustTheTotals();
}

void ReportWindow::ClearReportLabels() {
    for (const QList<QLabel*>& column : labels_)
        for (QLabel* label : column)
            label->clear();
    for (QLabel* label : paidLabels_)
        label->clear();
}

void ReportWindow::FillLine(int line) {
    const qsizetype index = RowAt(line);
    if (index < 0)
        return;
    const ReportRow& row = report_.rows[index];
    labels_[0][line]->setText(RowDateText(row.date));
    for (int column = 1; column < columns_.size(); ++column)
        labels_[column][line]->setText(row.fields[column - 1]);
    const std::optional<double> paid = report_.Reimbursement(row);
    paidLabels_[line]->setText(paid ? FormatThousands(*paid, 2) : QString());
}

void ReportWindow::GreyReportLabels() {
    // The lines of the page that hold no row are greyed out.
    for (int line = 0; line < kRowsPerPage; ++line) {
        const bool used = RowAt(line) >= 0;
        for (const QList<QLabel*>& column : labels_)
            column[line]->setEnabled(used);
        paidLabels_[line]->setEnabled(used);
    }
}

void ReportWindow::AdjustTheColors() {
    // Marked rows in the selection's colours; the others striped, every other line shaded.
    for (int line = 0; line < kRowsPerPage; ++line) {
        const qsizetype row = RowAt(line);
        const bool marked = row >= 0 && report_.rows[row].marked;
        const QPalette::ColorRole background = marked     ? QPalette::Highlight
                                               : line % 2 ? QPalette::AlternateBase
                                                          : QPalette::Base;
        const QPalette::ColorRole text = marked ? QPalette::HighlightedText : QPalette::Text;
        QList<QLabel*> labels{paidLabels_[line]};
        for (const QList<QLabel*>& column : labels_)
            labels.append(column[line]);
        for (QLabel* label : labels) {
            label->setBackgroundRole(background);
            label->setForegroundRole(text);
        }
    }
}

void ReportWindow::AdjustTheTotals() {
    const qsizetype begin = report_.PageBegin(page_), end = report_.PageEnd(page_);
    const qsizetype count = report_.rows.size();
    lblPageTotal_->setText(report_.TotalText(begin, end));
    lblReportTotal_->setText(report_.TotalText(0, count));
    lblPagePaid_->setText(FormatThousands(report_.Reimbursement(begin, end), 2));
    lblReportPaid_->setText(FormatThousands(report_.Reimbursement(0, count), 2));
}

bool ReportWindow::RefuseWhileEditing() {
    if (editColumn_ < 0)
        return false;
    services_.dialogs.MsgBox(EditOpenRefusal());
    editors_[editColumn_]->setFocus();
    return true;
}

void ReportWindow::cmdNext_Click() {
    if (RefuseWhileEditing())
        return;
    if (lastPage_) {
        services_.dialogs.MsgBox(kEndOfReportMessage);
        return;
    }
    ShowPage(page_ + 1);
}

void ReportWindow::cmdPrev_Click() {
    if (RefuseWhileEditing())
        return;
    if (firstPage_) {
        services_.dialogs.MsgBox(kBeginningOfReportMessage);
        return;
    }
    ShowPage(page_ - 1);
}

void ReportWindow::Label_MouseDown(int column, int line, Qt::MouseButton button) {
    const qsizetype row = RowAt(line);
    if (row < 0)
        return;
    if (button == Qt::RightButton) {
        report_.rows[row].marked = !report_.rows[row].marked;
        AdjustTheColors();
        return;
    }
    if (button == Qt::LeftButton && !RefuseWhileEditing())
        OpenEditor(column, line);
}

void ReportWindow::OpenEditor(int column, int line) {
    QLabel* label = labels_[column][line];
    QLineEdit* editor = editors_[column];
    editor->setText(label->text());
    const int height = std::max(label->height(), editor->sizeHint().height());
    editor->setGeometry(label->x(), label->y() + (label->height() - height) / 2,
                        std::max(label->width(), editor->sizeHint().width()), height);
    editor->show();
    editor->raise();
    editor->setFocus();
    editor->selectAll();
    editColumn_ = column;
    editRow_ = RowAt(line);
}

void ReportWindow::txt_KeyDown(int column, QKeyEvent* event) {
    if (column != editColumn_)
        return;
    if (event->key() == Qt::Key_Escape)
        CloseEditor();
    else
        CommitEdit();
}

void ReportWindow::CommitEdit() {
    const int column = editColumn_;
    const qsizetype index = editRow_;
    const QString text = editors_[column]->text().trimmed();
    ReportRow& row = report_.rows[index];
    if (column == 0) {
        const QDate date = ParseDateInput(text, row.date.year());
        if (!date.isValid()) {
            services_.dialogs.MsgBox(kInvalidDateMessage);
            editors_[column]->setFocus();
            return;
        }
        row.date = date;
    } else {
        // The description or destination as typed; a figure in the report's format.
        row.fields[column - 1] = column == 1 ? text : ShownFigure(kind_, text);
    }
    CloseEditor();
    FillLine(int(index - report_.PageBegin(page_)));
    AfterEdit(index, column);
    AdjustTheTotals();
}

void ReportWindow::CloseEditor() {
    if (editColumn_ >= 0) {
        // The keyboard stays on the row's label, which is in view, so the page does not
        // scroll away from it.
        const qsizetype line = editRow_ - report_.PageBegin(page_);
        if (line >= 0 && line < kRowsPerPage)
            labels_[editColumn_][line]->setFocus();
        editors_[editColumn_]->hide();
    }
    editColumn_ = -1;
    editRow_ = -1;
}

bool ReportWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress) {
        if (const auto place = labelPlace_.constFind(watched); place != labelPlace_.cend()) {
            const auto [column, line] = *place;
            const Qt::MouseButton button = static_cast<QMouseEvent*>(event)->button();
            services_.Trap(labelHandlers_[column].constData(),
                           [&] { Label_MouseDown(column, line, button); });
            return true;
        }
    }
    const int column = int(editors_.indexOf(watched));
    if (column < 0 ||
        (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride))
        return ChildWindow::eventFilter(watched, event);
    auto* key = static_cast<QKeyEvent*>(event);
    const bool ends =
        key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter || key->key() == Qt::Key_Escape;
    if (event->type() == QEvent::ShortcutOverride) {
        // Esc ends the edit instead of closing the window.
        if (key->key() == Qt::Key_Escape)
            event->accept();
        return false;
    }
    if (ends) {
        services_.Trap(editorHandlers_[column].constData(), [&] { txt_KeyDown(column, key); });
        return true;
    }
    return EditorKeyPress(column, key);
}

void ReportWindow::PrintThisPage(PageWriter& writer, int page) const {
    const QList<qreal> stops = PrintStops(kind_);
    QStringList headings = ColumnHeadings(kind_);
    if (report_.Pays())
        headings.append(QStringLiteral("Reimbursement"));
    writer.SetFont(PrintFont(QStringLiteral("Arial"), 9, true));
    writer.Columns(headings, stops);
    writer.SetFont(PrintFont(QStringLiteral("Arial"), 9));
    const qsizetype begin = report_.PageBegin(page), end = report_.PageEnd(page);
    for (qsizetype i = begin; i < end; ++i) {
        const ReportRow& row = report_.rows[i];
        QStringList cells{RowDateText(row.date)};
        cells += row.fields;
        if (const std::optional<double> paid = report_.Reimbursement(row))
            cells.append(FormatThousands(*paid, 2));
        writer.Columns(cells, stops);
    }
    writer.Rule();
    const auto total = [&](const QString& caption, qsizetype from, qsizetype to) {
        QString text = caption + report_.TotalText(from, to);
        if (report_.Pays())
            text += QStringLiteral("    Reimbursement: ") +
                    FormatThousands(report_.Reimbursement(from, to), 2);
        writer.Line(text);
    };
    total(QStringLiteral("Page Total: "), begin, end);
    total(QStringLiteral("Report Total: "), 0, report_.rows.size());
    writer.Blank();
    writer.Line(PageLabel(page, report_.Pages()));
}

void ReportWindow::mnuFilePrint_Click() {
    const int page = page_;
    context_.printer.Print(windowTitle(), [this, page](PageWriter& writer) {
        writer.SetHeading({windowTitle(), report_.Heading()});
        PrintThisPage(writer, page);
    });
}

void ReportWindow::mnuFilePrintAll_Click() {
    context_.printer.Preview(windowTitle(), [this](PageWriter& writer) {
        writer.SetHeading({windowTitle(), report_.Heading()});
        for (int page = 1; page <= std::max(1, report_.Pages()); ++page) {
            if (page > 1)
                writer.NewPage();
            PrintThisPage(writer, page);
        }
    });
}

void ReportWindow::mnuFileExportCsv_Click() {
    const QString name =
        (kind_ == ReportKind::Expenses ? QStringLiteral("Expenses ") : QStringLiteral("Mileage ")) +
        report_.period.start.toString(Qt::ISODate) + QStringLiteral(" to ") +
        report_.period.end.toString(Qt::ISODate) + QStringLiteral(".csv");
    QString path =
        services_.dialogs.SaveFileName(kCsvCaption, QDir::home().filePath(name), kCsvFilter);
    if (path.isEmpty())
        return;
    if (!path.endsWith(QStringLiteral(".csv"), Qt::CaseInsensitive))
        path += QStringLiteral(".csv");
    safesave::Replace(path, CsvText(report_).toUtf8());
    QString saved = CsvSavedMessage(QDir::toNativeSeparators(path));
    if (const qsizetype leftOut = report_.Total(0, report_.rows.size()).leftOut)
        saved += u' ' + LeftOutNote(kind_, leftOut) + u'.';
    services_.dialogs.MsgBox(saved, kInformationStyle);
}

void ReportWindow::mnuOptCopy_Click() {
    QGuiApplication::clipboard()->setText(CopyText(report_));
    services_.dialogs.MsgBox(kDataCopiedMessage);
}

void ReportWindow::mnuOptSelectAll_Click() {
    for (ReportRow& row : report_.rows)
        row.marked = true;
    AdjustTheColors();
}

void ReportWindow::mnuOptInvert_Click() {
    for (ReportRow& row : report_.rows)
        row.marked = !row.marked;
    AdjustTheColors();
}
