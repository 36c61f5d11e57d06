// Printed calendars read back from their PDFs: the month's title, holiday names, the legend of
// the shown mark categories, the marked day's colour and the day's pictures, on a landscape
// page; the year's twelve months on one page.
#include <QImage>
#include <QProcess>

#include "MainWindowFixture.h"
#include "PdfTool.h"

namespace {

const QDate kToday(2026, 9, 7);

// Plain colours: Doctor pure green, Meeting (hidden) pure red.
const QByteArray kMarkerFile =
    "Bills:1001\r\nIncome:1002\r\nAnniversary:1003\r\nDoctor:65280\r\nBirthday:1005\r\n"
    "Party:1006\r\nDining:1007\r\nEvent:1008\r\nHoliday:1009\r\nMeeting:255*\r\n"
    "Travel:16711680\r\nVacation:1012\r\nQuick Marks:1013\r\nToday's Date:8421504\r\n";

// Page 1 of the PDF as a picture, 40 pixels to the inch.
QImage Rendered(const QString& pdf) {
    const QString prefix = pdf + QStringLiteral("-page");
    RunPdfTool("pdftoppm", {"-png", "-r", "40", "-f", "1", "-l", "1", "-singlefile", pdf, prefix});
    return QImage(prefix + QStringLiteral(".png"));
}

int PixelsOf(const QImage& image, const QColor& color) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            count += std::abs(pixel.red() - color.red()) < 12 &&
                     std::abs(pixel.green() - color.green()) < 12 &&
                     std::abs(pixel.blue() - color.blue()) < 12;
        }
    return count;
}

}  // namespace

class CalendarPrintoutsTest : public QObject {
    Q_OBJECT

    std::unique_ptr<MainWindowFixture> f;

    QString PrintFrom(const QString& item) {
        f->menu(item)->trigger();
        return f->printer.files().value(0);
    }

private slots:
    void init() {
        f = std::make_unique<MainWindowFixture>(QDateTime(kToday, QTime(9, 0)));
        f->env.write("Marker Colors.dat", kMarkerFile);
        f->Start();
        // A holiday name and a magenta picture on the 14th, from a decorator as the holiday
        // store and the month's icons give them.
        QImage picture(32, 32, QImage::Format_RGB32);
        picture.fill(Qt::magenta);
        QVERIFY(picture.save(f->env.path("star.png")));
        f->calendar().AddDayDecorator([this](const QDate& date, DayLook& look) {
            if (date == QDate(2026, 9, 14)) {
                look.captions.append(QStringLiteral("Founders Day"));
                look.icons.append({f->env.path("star.png"), QStringLiteral("Star")});
            }
        });
    }
    void cleanup() {
        VERIFY_DIALOGS(f->env.dialogs);
        f.reset();
    }

    void monthPrintout_data() {
        QTest::addColumn<QString>("item");
        QTest::addColumn<bool>("pictures");
        QTest::newRow("with icons") << "mnuFilePrintCalendar" << true;
        QTest::newRow("without icons") << "mnuFilePrintCalendarHideIcons" << false;
    }
    void monthPrintout() {
        QFETCH(QString, item);
        QFETCH(bool, pictures);
        f->env.state->dates.SelectDate(QDate(2026, 9, 21));
        f->menu("mnuOptDateMarkAs_3")->trigger();  // Doctor: pure green
        const QString pdf = PrintFrom(item);
        const QString text = RunPdfTool("pdftotext", {"-layout", pdf, "-"});
        QVERIFY2(text.contains("September 2026"), qPrintable(text));
        QVERIFY2(text.contains("Founders Day"), qPrintable(text));
        QVERIFY2(text.contains("Doctor"), qPrintable(text));
        QVERIFY2(!text.contains("Bills") && !text.contains("Meeting"), qPrintable(text));

        const QImage page = Rendered(pdf);
        QVERIFY(page.width() > page.height());
        // The marked day's cell, not only its swatch in the legend.
        QVERIFY2(PixelsOf(page, Qt::green) > 400,
                 qPrintable(QString::number(PixelsOf(page, Qt::green))));
        QCOMPARE(PixelsOf(page, Qt::magenta) > 50, pictures);
    }

    void yearPrintoutHoldsTwelveMonthsOnOnePage() {
        const QString pdf = PrintFrom("mnuFilePrintYear");
        const QString text = RunPdfTool("pdftotext", {"-layout", pdf, "-"});
        QCOMPARE(text.count('\f'), 1);
        for (int month = 1; month <= 12; ++month)
            QVERIFY2(text.contains(QDate(2026, month, 1).toString("MMMM")), qPrintable(text));
        QVERIFY(text.contains("2026"));
        const QImage page = Rendered(pdf);
        QVERIFY(page.width() > page.height());
    }
};

ORVANTA_TEST_MAIN(CalendarPrintoutsTest)
#include "tst_calendar_printouts.moc"
