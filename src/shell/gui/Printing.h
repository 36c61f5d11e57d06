#pragma once

#include <QFont>
#include <QList>
#include <QPageLayout>
#include <QPainter>
#include <QPointF>
#include <QString>
#include <QStringList>
#include <QWidget>
#include <functional>
#include <memory>

class Dialogs;
class Platform;
class QPagedPaintDevice;
class QPrintPreviewWidget;
class QPrinter;

// The printed fonts are named by their classic faces ("MS Sans Serif", "Arial", "Times New
// Roman"); each resolves to the first installed family of a like shape (metric-compatible faces
// first), ending with whatever the system offers for sans or serif. Any other name is used as
// it is.
QFont PrintFont(const QString& classicName, qreal pointSize, bool bold = false);

// Lays a document out on the pages of a printer or PDF, top to bottom: an optional heading
// repeated at the top of every page, then lines, rows of columns and rules; a page ends by
// itself when the next line does not fit. Positions are in millimetres from the top-left corner
// of the printable area (inside the margins).
//
// A page begins when something is written on it, so a page break with nothing after it adds
// no empty page; a document that writes nothing still prints its heading on one page.
class PageWriter {
public:
    static constexpr qreal kMarginMm = 15;

    // Sets the device's margins and starts painting on it; check IsActive().
    explicit PageWriter(QPagedPaintDevice& device);
    ~PageWriter();
    PageWriter(const PageWriter&) = delete;
    PageWriter& operator=(const PageWriter&) = delete;

    bool IsActive() const { return painter_.isActive(); }
    // Ends the last page; true when the device took every page. Called by the printers once
    // the document is done.
    bool Finish();

    // The heading printed at the top of each page from the next one begun (or this one, while
    // nothing is on it yet).
    void SetHeading(const QStringList& lines, const QFont& font = PrintFont("Arial", 12, true));
    // The font of the lines, rows and text that follow (default: Arial 10).
    void SetFont(const QFont& font) { font_ = font; }
    // "Page n" centred under each page from now on.
    void SetPageNumbers(bool on) { pageNumbers_ = on; }

    // One paragraph, wrapped at word boundaries to the page width; a line break in the text
    // starts a new line.
    void Line(const QString& text);
    // A label at the left margin with text beside it from indentMm on, wrapped within the room
    // right of the indent (a hanging indent).
    void Hanging(const QString& label, qreal indentMm, const QString& text);
    // One row: cell i starts stopsMm[i] from the left margin and is cut, with an ellipsis, where
    // the next cell starts (the last one at the right margin). Cells without a stop are left out.
    void Columns(const QStringList& cells, const QList<qreal>& stopsMm);
    // Text placed by coordinates (its top-left corner); the flow of lines does not move.
    void TextAt(QPointF positionMm, const QString& text);
    // An empty line; at the foot of a page it ends the page instead.
    void Blank();
    // A thin line across the page.
    void Rule();
    // A drawing heightMm tall across the page: paint draws it inside the rectangle given, in
    // device pixels (moved to a new page first when it does not fit).
    void Picture(qreal heightMm, const std::function<void(QPainter&, const QRectF&)>& paint);
    // Ends the current page; the next thing written goes on a new one.
    void NewPage();

    // Pages begun so far (at least 1).
    int PageCount() const { return page_; }

    // For a document that draws rather than writes lines (a calendar sheet): begins the page
    // if needed and returns the room left on it under what is written so far, in device
    // pixels, to be painted with Painter(). Drawing there does not move the flow of lines.
    QRectF FreeArea();
    QPainter& Painter() { return painter_; }
    // A length in millimetres as device pixels.
    qreal Px(qreal mm) const;

private:
    qreal LineHeight(const QFont& font) const;
    // The bottom of the space lines may use: above the page number when there is one.
    qreal Bottom() const;
    // Begins the page (new page on the device when the last one ended, heading) if needed.
    void Begin();
    void EndPage();
    // Begins the page and makes room for height, ending the page first when it does not fit.
    void Reserve(qreal height);
    void DrawLine(const QString& text, qreal leftPx = 0);
    // text cut into lines no wider than widthPx, at word boundaries where it can.
    QStringList Wrap(const QString& text, qreal widthPx);

    QPagedPaintDevice& device_;
    QPainter painter_;
    QStringList heading_;
    QFont headingFont_;
    QFont font_;
    QFont footerFont_;
    bool pageNumbers_ = false;
    int page_ = 1;
    bool begun_ = false;      // the current page has its heading and may hold more
    bool pageEnded_ = false;  // the current page is finished; a new one starts on next output
    qreal y_ = 0;             // where the next line goes, in device pixels
    qreal bodyTop_ = 0;       // y_ just under the heading
};

// Where the program's printouts go. A document is a function that writes on a PageWriter, so
// a preview can lay it out again whenever it repaints.
// A document prints upright unless it asks for its pages to lie on their side.
class Printer {
public:
    using Document = std::function<void(PageWriter&)>;
    using Orientation = QPageLayout::Orientation;

    virtual ~Printer() = default;
    // Prints the document titled title; false when nothing was printed (cancelled or failed).
    bool Print(const QString& title, const Document& document,
               Orientation orientation = QPageLayout::Portrait) {
        return PrintPages(title, document, orientation);
    }
    // Shows the document before printing it.
    bool Preview(const QString& title, const Document& document,
                 Orientation orientation = QPageLayout::Portrait) {
        return PreviewPages(title, document, orientation);
    }

protected:
    virtual bool PrintPages(const QString& title, const Document& document,
                            Orientation orientation) = 0;
    virtual bool PreviewPages(const QString& title, const Document& document,
                              Orientation orientation) = 0;
};

// Prints to the default printer through the print and preview dialogs. Without any printer it
// says so and offers to save the printout as a PDF.
class DesktopPrinter final : public Printer {
public:
    DesktopPrinter(Dialogs& dialogs, Platform& platform, QWidget* parent = nullptr)
        : dialogs_(dialogs), platform_(platform), parent_(parent) {}

    // The printer the user chose as the program's own default, asked at each printout (an
    // empty name, or one the desktop no longer offers, is the system's default).
    void SetChosenPrinter(std::function<QString()> chosen) { chosen_ = std::move(chosen); }

private:
    bool PrintPages(const QString& title, const Document& document,
                    Orientation orientation) override;
    bool PreviewPages(const QString& title, const Document& document,
                      Orientation orientation) override;
    bool SaveAsPdf(const QString& title, const Document& document, Orientation orientation);
    void SelectChosenPrinter(QPrinter& printer) const;

    Dialogs& dialogs_;
    Platform& platform_;
    QWidget* parent_;
    std::function<QString()> chosen_;
};

// Writes every printout to a PDF in a folder, named after its title (characters a file name
// cannot hold become "_"; a name already taken gets " (2)", " (3)" ...). A preview is a
// printout too.
class PdfPrinter final : public Printer {
public:
    explicit PdfPrinter(const QString& folder) : folder_(folder) {}

    // The files written so far, in order.
    const QStringList& files() const { return files_; }

    // Writes document to the PDF file at path (replacing it).
    static bool Write(const QString& path, const QString& title, const Document& document,
                      Orientation orientation = QPageLayout::Portrait);

private:
    bool PrintPages(const QString& title, const Document& document,
                    Orientation orientation) override;
    bool PreviewPages(const QString& title, const Document& document,
                      Orientation orientation) override {
        return PrintPages(title, document, orientation);
    }

    QString folder_;
    QStringList files_;
};

// A printout shown as its pages inside a window, laid out exactly as Print lays it out on
// paper. Refresh() lays the document out again after what it prints has changed.
class PagePreview : public QWidget {
    Q_OBJECT
public:
    PagePreview(const QString& title, Printer::Document document, QWidget* parent = nullptr);
    ~PagePreview() override;

    void Refresh();

private:
    QString title_;
    Printer::Document document_;
    std::unique_ptr<QPrinter> printer_;
    QPrintPreviewWidget* view_;
};
