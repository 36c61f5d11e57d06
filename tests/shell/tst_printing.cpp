// Printouts read back from their PDFs: headings and page breaks, wrapped lines, columns, the
// way out when there is no printer, file names and the fonts that stand in for classic faces.
#include <QFontDatabase>
#include <QFontInfo>
#include <QProcess>
#include <QRegularExpression>
#include <numeric>

#include "PdfTool.h"
#include "TestEnv.h"
#include "shell/ShellMessages.h"
#include "shell/gui/Printing.h"

namespace {

// The text of each page as laid out on paper; ligatures read as their letters ("fi", not
// U+FB01) and the ellipsis as three dots.
QStringList PdfPages(const QString& path) {
    QStringList pages = RunPdfTool("pdftotext", {"-layout", path, "-"})
                            .normalized(QString::NormalizationForm_KC)
                            .split(QLatin1Char('\f'));
    if (pages.size() > 1 && pages.last().trimmed().isEmpty())
        pages.removeLast();
    return pages;
}

QList<int> Captures(const QString& text, const QString& pattern) {
    QList<int> numbers;
    for (const auto& match : QRegularExpression(pattern).globalMatch(text))
        numbers.append(match.captured(1).toInt());
    return numbers;
}

}  // namespace

class PrintingTest : public QObject {
    Q_OBJECT

    QTemporaryDir out;

    // Prints one document to a new PDF and returns the file.
    QString Print(const Printer::Document& document) {
        PdfPrinter printer(out.path());
        return printer.Print("Printout", document) ? printer.files().value(0) : QString();
    }

private slots:
    void headingAndPageBreaks_data() {
        QTest::addColumn<int>("entries");
        QTest::addColumn<bool>("numbered");
        QTest::newRow("nothing but the heading") << 0 << false;
        QTest::newRow("several pages, numbered") << 150 << true;
    }
    void headingAndPageBreaks() {
        QFETCH(int, entries);
        QFETCH(bool, numbered);
        int pagesBegun = 0;
        const QString file = Print([&](PageWriter& page) {
            page.SetHeading({"Expense Report", "May 2026"});
            page.SetPageNumbers(numbered);
            for (int entry = 1; entry <= entries; ++entry)
                page.Line(QStringLiteral("Entry %1").arg(entry));
            page.NewPage();  // ends the last page: must not add an empty one
            pagesBegun = page.PageCount();
        });
        const QStringList pages = PdfPages(file);
        QCOMPARE(pages.size(), pagesBegun);
        QList<int> printed;
        for (int number = 1; number <= pages.size(); ++number) {
            const QString& page = pages[number - 1];
            QVERIFY2(page.trimmed().startsWith("Expense Report"), qPrintable(page));
            QVERIFY(page.contains("May 2026"));
            QCOMPARE(Captures(page, "Page (\\d+)"), numbered ? QList<int>{number} : QList<int>{});
            printed += Captures(page, "Entry (\\d+)");
        }
        QList<int> all(entries);
        std::iota(all.begin(), all.end(), 1);
        QCOMPARE(printed, all);  // every entry once, in order, none lost at a break
        // Every page but the last is full, and full is a plausible page of 10-point lines.
        const int perPage = qMax(1, int(Captures(pages[0], "Entry (\\d+)").size()));
        QVERIFY2(entries == 0 || (perPage >= 40 && perPage <= 80), qPrintable(pages[0]));
        QCOMPARE(pages.size(), qMax(1, (entries + perPage - 1) / perPage));
    }

    void linesWrapInsideMargins_data() {
        QTest::addColumn<QString>("text");
        QTest::newRow("words") << QStringLiteral("Pay the rent, call the bank. ").repeated(20);
        QTest::newRow("one unbroken token") << QString(400, QLatin1Char('x'));
    }
    void linesWrapInsideMargins() {
        QFETCH(QString, text);
        const QString file = Print([&](PageWriter& page) { page.Line(text); });
        QString printed = PdfPages(file).join("");
        QVERIFY2(printed.trimmed().count('\n') >= 1, qPrintable(printed));
        static const QRegularExpression blanks("\\s+");
        QCOMPARE(printed.remove(blanks), QString(text).remove(blanks));  // nothing cut
    }

    // Rows cut to their columns, a rule and text placed by coordinates, in order on the page.
    void columnsRulesAndPlacedText() {
        const QString file = Print([](PageWriter& page) {
            page.Columns({"05/13/26", "Taxi from the airport to the harbour hotel", "18.00"},
                         {0, 30, 60});
            page.Rule();
            page.TextAt({0, 40}, "Placed below");
        });
        const QString text = PdfPages(file).join("").simplified();
        QVERIFY2(text.startsWith("05/13/26 Taxi") && text.contains("... 18.00 Placed below") &&
                     !text.contains("harbour"),
                 qPrintable(text));
    }

    void noPrinterOffersPdf_data() {
        QTest::addColumn<bool>("preview");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("written");
        QTest::newRow("cancelled") << false << QString() << QString();
        QTest::newRow("preview, name without extension")
            << true << "mileage" << QString("mileage.pdf");
    }
    void noPrinterOffersPdf() {
        QFETCH(bool, preview);
        QFETCH(QString, answer);
        QFETCH(QString, written);
        TestEnv env;
        QTemporaryDir chosen;
        env.platform.printer = false;
        env.dialogs.ExpectMsgBox(kNoPrinterMessage, kWarningStyle, "");
        env.dialogs.ExpectSaveFile(answer.isEmpty() ? answer : chosen.filePath(answer));
        DesktopPrinter printer(env.dialogs, env.platform);
        const auto document = [](PageWriter& page) { page.Line("Drove to Springfield 42 miles"); };
        const bool printed = preview ? printer.Preview("Mileage Report", document)
                                     : printer.Print("Mileage Report", document);
        VERIFY_DIALOGS(env.dialogs);
        QCOMPARE(printed, !written.isEmpty());
        const QStringList files = QDir(chosen.path()).entryList(QDir::Files);
        QCOMPARE(files, written.isEmpty() ? QStringList{} : QStringList{written});
        if (printed)
            QCOMPARE(PdfPages(chosen.filePath(written)).join("").simplified(),
                     QStringLiteral("Drove to Springfield 42 miles"));
    }

    void classicFontsResolveToInstalledFaces() {
        for (const char* name : {"Arial", "MS Sans Serif", "times new roman"}) {
            const QFont font = PrintFont(name, 11.5, true);
            QCOMPARE(font.pointSizeF(), 11.5);
            QVERIFY(font.bold());
            QCOMPARE(font.family(), QFontInfo(font).family());  // asked for is what gets used
            QVERIFY(QFontDatabase::families().contains(font.family()));
        }
        // A serif face stands in for Times New Roman, not the sans one.
        QVERIFY(PrintFont("Times New Roman", 10).family() != PrintFont("Arial", 10).family());
    }
};

ORVANTA_TEST_MAIN(PrintingTest)
#include "tst_printing.moc"
