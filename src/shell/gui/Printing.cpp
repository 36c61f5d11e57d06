#include "shell/gui/Printing.h"

#include <QDir>
#include <QFileInfo>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QTextLayout>
#include <QVBoxLayout>

#include "shell/Platform.h"
#include "shell/ShellMessages.h"

QFont PrintFont(const QString& classicName, qreal pointSize, bool bold) {
    // Each classic face, then the faces that stand in for it on Linux: the metric-compatible
    // ones keep a printed page's line breaks where they were. Last comes the generic shape,
    // which the system's font configuration turns into one of its own families.
    struct Face {
        QString classic;
        QStringList standIns;
        QString shape;
    };
    static const QList<Face> faces = {
        {"Arial", {"Liberation Sans", "Arimo", "DejaVu Sans"}, "sans-serif"},
        {"Times New Roman", {"Liberation Serif", "Tinos", "DejaVu Serif"}, "serif"},
        {"MS Sans Serif", {"DejaVu Sans", "Liberation Sans"}, "sans-serif"},
    };

    QFont font(classicName);
    font.setPointSizeF(pointSize);
    font.setBold(bold);
    for (const Face& face : faces) {
        if (face.classic.compare(classicName, Qt::CaseInsensitive) != 0)
            continue;
        for (const QString& family : QStringList{face.classic} + face.standIns) {
            if (QFontDatabase::hasFamily(family)) {
                font.setFamily(family);
                return font;
            }
        }
        font.setFamily(QFontInfo(QFont(face.shape)).family());
        return font;
    }
    return font;
}

PageWriter::PageWriter(QPagedPaintDevice& device)
    : device_(device),
      headingFont_(PrintFont("Arial", 12, true)),
      font_(PrintFont("Arial", 10)),
      footerFont_(PrintFont("Arial", 9)) {
    device_.setPageMargins(QMarginsF(kMarginMm, kMarginMm, kMarginMm, kMarginMm),
                           QPageLayout::Millimeter);
    painter_.begin(&device_);
}

PageWriter::~PageWriter() {
    Finish();
}

bool PageWriter::Finish() {
    if (!painter_.isActive())
        return false;
    if (page_ == 1 && !begun_ && !pageEnded_)
        Begin();
    EndPage();
    return painter_.end();
}

void PageWriter::SetHeading(const QStringList& lines, const QFont& font) {
    heading_ = lines;
    headingFont_ = font;
}

qreal PageWriter::Px(qreal mm) const {
    return mm * device_.logicalDpiY() / 25.4;
}

qreal PageWriter::LineHeight(const QFont& font) const {
    return QFontMetricsF(font, &device_).lineSpacing();
}

qreal PageWriter::Bottom() const {
    return device_.height() - (pageNumbers_ ? LineHeight(footerFont_) + Px(2) : 0);
}

void PageWriter::Begin() {
    if (begun_)
        return;
    if (pageEnded_) {
        device_.newPage();
        ++page_;
        pageEnded_ = false;
    }
    begun_ = true;
    y_ = 0;
    if (!heading_.isEmpty()) {
        const qreal height = LineHeight(headingFont_);
        painter_.setFont(headingFont_);
        for (const QString& line : heading_) {
            painter_.drawText(QRectF(0, y_, device_.width(), height),
                              Qt::AlignHCenter | Qt::AlignTop, line);
            y_ += height;
        }
        y_ += height / 2;
    }
    bodyTop_ = y_;
}

void PageWriter::EndPage() {
    if (!begun_)
        return;
    if (pageNumbers_) {
        const qreal height = LineHeight(footerFont_);
        painter_.setFont(footerFont_);
        painter_.drawText(QRectF(0, device_.height() - height, device_.width(), height),
                          Qt::AlignHCenter | Qt::AlignTop, QStringLiteral("Page %1").arg(page_));
    }
    begun_ = false;
    pageEnded_ = true;
}

void PageWriter::NewPage() {
    EndPage();
}

void PageWriter::Reserve(qreal height) {
    Begin();
    // A page that holds nothing under its heading takes the line whatever its height, so that
    // an oversized line cannot turn into endless empty pages.
    if (y_ + height > Bottom() && y_ > bodyTop_) {
        EndPage();
        Begin();
    }
}

void PageWriter::DrawLine(const QString& text, qreal leftPx) {
    const qreal height = LineHeight(font_);
    Reserve(height);
    painter_.setFont(font_);
    painter_.drawText(QPointF(leftPx, y_ + QFontMetricsF(font_, &device_).ascent()), text);
    y_ += height;
}

QStringList PageWriter::Wrap(const QString& text, qreal widthPx) {
    QTextOption wrapping;
    wrapping.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QString paragraphs = text;
    paragraphs.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    QStringList pieces;
    for (const QString& paragraph : paragraphs.split(QLatin1Char('\n'))) {
        QTextLayout layout(paragraph, font_, &device_);
        layout.setTextOption(wrapping);
        const qsizetype before = pieces.size();
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(widthPx);
            pieces.append(paragraph.mid(line.textStart(), line.textLength()));
        }
        layout.endLayout();
        if (pieces.size() == before)
            pieces.append(QString());
    }
    return pieces;
}

void PageWriter::Line(const QString& text) {
    for (const QString& piece : Wrap(text, device_.width()))
        DrawLine(piece);
}

void PageWriter::Hanging(const QString& label, qreal indentMm, const QString& text) {
    const qreal indent = Px(indentMm);
    const QStringList pieces = Wrap(text, device_.width() - indent);
    for (qsizetype i = 0; i < pieces.size(); ++i) {
        if (i == 0) {
            // The label goes on the same line as the text's first piece, on whichever page
            // that line lands.
            Reserve(LineHeight(font_));
            painter_.setFont(font_);
            painter_.drawText(QPointF(0, y_ + QFontMetricsF(font_, &device_).ascent()), label);
        }
        DrawLine(pieces[i], indent);
    }
}

void PageWriter::Columns(const QStringList& cells, const QList<qreal>& stopsMm) {
    const qreal height = LineHeight(font_);
    Reserve(height);
    painter_.setFont(font_);
    const QFontMetricsF metrics(font_, &device_);
    const qsizetype count = qMin(cells.size(), stopsMm.size());
    for (qsizetype i = 0; i < count; ++i) {
        const qreal left = Px(stopsMm[i]);
        const qreal right = i + 1 < count ? Px(stopsMm[i + 1]) : device_.width();
        // A small gap keeps a cut cell from running into its neighbour.
        const qreal width = right - left - Px(1);
        painter_.drawText(QPointF(left, y_ + metrics.ascent()),
                          metrics.elidedText(cells[i], Qt::ElideRight, qMax<qreal>(width, 0)));
    }
    y_ += height;
}

void PageWriter::TextAt(QPointF positionMm, const QString& text) {
    Begin();
    painter_.setFont(font_);
    painter_.drawText(
        QPointF(Px(positionMm.x()), Px(positionMm.y()) + QFontMetricsF(font_, &device_).ascent()),
        text);
}

QRectF PageWriter::FreeArea() {
    Begin();
    return QRectF(0, y_, device_.width(), Bottom() - y_);
}

void PageWriter::Blank() {
    Begin();
    const qreal height = LineHeight(font_);
    if (y_ + height > Bottom())
        EndPage();
    else
        y_ += height;
}

void PageWriter::Rule() {
    const qreal height = LineHeight(font_) / 2;
    Reserve(height);
    painter_.setPen(QPen(Qt::black, Px(0.2)));
    painter_.drawLine(QPointF(0, y_ + height / 2), QPointF(device_.width(), y_ + height / 2));
    y_ += height;
}

void PageWriter::Picture(qreal heightMm,
                         const std::function<void(QPainter&, const QRectF&)>& paint) {
    const qreal height = Px(heightMm);
    Reserve(height);
    painter_.save();
    paint(painter_, QRectF(0, y_, device_.width(), height));
    painter_.restore();
    y_ += height;
}

namespace {

// A title as a file name: no folder separators, wildcards or control characters, and no
// leading or trailing dots or blanks (a leading dot would hide the file).
QString SafeFileName(const QString& title) {
    static const QString kUnsafe = QStringLiteral("/\\:*?\"<>|");
    QString name;
    for (const QChar c : title)
        name += c.unicode() < 0x20 || kUnsafe.contains(c) ? QLatin1Char('_') : c;
    while (!name.isEmpty() && (name.front() == '.' || name.front().isSpace()))
        name.remove(0, 1);
    while (!name.isEmpty() && (name.back() == '.' || name.back().isSpace()))
        name.chop(1);
    return name.isEmpty() ? QStringLiteral("Printout") : name;
}

bool PrintOn(QPrinter& printer, const QString& title, const Printer::Document& document) {
    printer.setDocName(title);
    PageWriter writer(printer);
    if (!writer.IsActive())
        return false;
    document(writer);
    return writer.Finish();
}

}  // namespace

bool PdfPrinter::Write(const QString& path, const QString& title, const Document& document,
                       Orientation orientation) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageOrientation(orientation);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path);
    return PrintOn(printer, title, document);
}

bool PdfPrinter::PrintPages(const QString& title, const Document& document,
                            Orientation orientation) {
    const QString name = SafeFileName(title);
    QString path = QDir(folder_).filePath(name + QStringLiteral(".pdf"));
    for (int number = 2; QFileInfo::exists(path); ++number)
        path = QDir(folder_).filePath(QStringLiteral("%1 (%2).pdf").arg(name).arg(number));
    if (!Write(path, title, document, orientation))
        return false;
    files_.append(path);
    return true;
}

bool DesktopPrinter::SaveAsPdf(const QString& title, const Document& document,
                               Orientation orientation) {
    dialogs_.MsgBox(kNoPrinterMessage, kWarningStyle);
    QString path = dialogs_.SaveFileName(kSaveAsPdfCaption, QDir::homePath(), kPdfFilter);
    if (path.isEmpty())
        return false;
    if (!path.endsWith(QStringLiteral(".pdf"), Qt::CaseInsensitive))
        path += QStringLiteral(".pdf");
    return PdfPrinter::Write(path, title, document, orientation);
}

void DesktopPrinter::SelectChosenPrinter(QPrinter& printer) const {
    const QString name = chosen_ ? chosen_().trimmed() : QString();
    if (!name.isEmpty() && platform_.PrinterNames().contains(name))
        printer.setPrinterName(name);
}

bool DesktopPrinter::PrintPages(const QString& title, const Document& document,
                                Orientation orientation) {
    if (!platform_.PrinterPresent())
        return SaveAsPdf(title, document, orientation);
    QPrinter printer(QPrinter::HighResolution);
    SelectChosenPrinter(printer);
    printer.setDocName(title);
    printer.setPageOrientation(orientation);
    QPrintDialog dialog(&printer, parent_);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    return PrintOn(printer, title, document);
}

bool DesktopPrinter::PreviewPages(const QString& title, const Document& document,
                                  Orientation orientation) {
    if (!platform_.PrinterPresent())
        return SaveAsPdf(title, document, orientation);
    QPrinter printer(QPrinter::HighResolution);
    SelectChosenPrinter(printer);
    printer.setDocName(title);
    printer.setPageOrientation(orientation);
    QPrintPreviewDialog preview(&printer, parent_);
    preview.setWindowTitle(title);
    QObject::connect(&preview, &QPrintPreviewDialog::paintRequested, &preview,
                     [&](QPrinter* target) { PrintOn(*target, title, document); });
    return preview.exec() == QDialog::Accepted;
}

PagePreview::PagePreview(const QString& title, Printer::Document document, QWidget* parent)
    : QWidget(parent),
      title_(title),
      document_(std::move(document)),
      printer_(std::make_unique<QPrinter>(QPrinter::HighResolution)) {
    view_ = new QPrintPreviewWidget(printer_.get(), this);
    view_->setZoomMode(QPrintPreviewWidget::FitToWidth);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view_);
    connect(view_, &QPrintPreviewWidget::paintRequested, this,
            [this](QPrinter* target) { PrintOn(*target, title_, document_); });
}

PagePreview::~PagePreview() = default;

void PagePreview::Refresh() {
    view_->updatePreview();
}
