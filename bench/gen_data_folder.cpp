// Writes a data folder as full as a user can make it, for the notes and planner benchmarks:
// for every day of every year a note of several lines, a planner page with every slot filled
// (all appointment lines, to-do items, expenses and mileage lines) and a date mark with a
// hover note; an alert a week, each notified up to two weeks ahead, and a to-do list of ten
// rows. The text mixes in the accented letters and the euro sign that the files keep as single
// windows-1252 bytes. The output depends only on the arguments.
//
// Lines are built with the stores' own formatting (date key, cell code, planner record, mark
// line, encoded line breaks) and each year's file is encoded once and written in one go.
//
//   build/bench/bench_gen_data_folder DIR FIRST_YEAR YEARS
#include <QDate>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTime>
#include <cstdio>
#include <cstdlib>

#include "calendar/DateModel.h"
#include "calendar/MarkerColors.h"
#include "calendar/modMarks.h"
#include "notes_planner/DatedFile.h"
#include "notes_planner/PlannerRecord.h"
#include "notes_planner/modNotes.h"
#include "notes_planner/modPlanner.h"
#include "reminders/modAlerts.h"
#include "reminders/modToDo.h"
#include "shell/DateFormats.h"
#include "shell/TextFile.h"

namespace {

// A small linear congruential generator, so that the same arguments give the same bytes on
// every machine and library.
class Random {
public:
    explicit Random(quint64 seed)
        : state_(seed * 6364136223846793005ULL + 1442695040888963407ULL) {}
    // A number from 0 to n - 1.
    int Below(int n) {
        state_ = state_ * 6364136223846793005ULL + 1442695040888963407ULL;
        return static_cast<int>((state_ >> 33) % static_cast<quint64>(n));
    }
    bool OneIn(int n) { return Below(n) == 0; }

private:
    quint64 state_;
};

// Words for the free text. Characters 210 and 213 are left out on purpose: a note keeps its
// line breaks as those two characters, so a note never holds them as letters.
const QStringList& Words() {
    static const QStringList words = {
        QStringLiteral("café"),     QStringLiteral("réunion"), QStringLiteral("über"),
        QStringLiteral("Müller"),   QStringLiteral("niño"),    QStringLiteral("señor"),
        QStringLiteral("façade"),   QStringLiteral("garçon"),  QStringLiteral("smørbrød"),
        QStringLiteral("Ørsted"),   QStringLiteral("€"),       QStringLiteral("crème"),
        QStringLiteral("brûlée"),   QStringLiteral("naïve"),   QStringLiteral("Zürich"),
        QStringLiteral("jalapeño"), QStringLiteral("déjà"),    QStringLiteral("Ålesund"),
        QStringLiteral("meeting"),  QStringLiteral("call"),    QStringLiteral("client"),
        QStringLiteral("budget"),   QStringLiteral("review"),  QStringLiteral("report"),
        QStringLiteral("lunch"),    QStringLiteral("with"),    QStringLiteral("the"),
        QStringLiteral("team"),     QStringLiteral("about"),   QStringLiteral("project"),
        QStringLiteral("invoice"),  QStringLiteral("dentist"), QStringLiteral("school"),
        QStringLiteral("pick up"),  QStringLiteral("tickets"), QStringLiteral("for"),
        QStringLiteral("Saturday"), QStringLiteral("order"),   QStringLiteral("supplies"),
        QStringLiteral("and"),      QStringLiteral("bring"),   QStringLiteral("notes"),
    };
    return words;
}

const QStringList& Places() {
    static const QStringList places = {
        QStringLiteral("Office"),
        QStringLiteral("Client site, Zürich road"),
        QStringLiteral("Warehouse"),
        QStringLiteral("Bank"),
        QStringLiteral("Café Müller"),
        QStringLiteral("Airport"),
        QStringLiteral("Señora García"),
        QStringLiteral("Post office"),
        QStringLiteral("Supplier, Ålesund"),
        QStringLiteral("Town hall"),
    };
    return places;
}

// Words picked at random, up to about maxLength characters.
QString Sentence(Random& random, int minWords, int maxWords, int maxLength) {
    const QStringList& words = Words();
    const int count = minWords + random.Below(maxWords - minWords + 1);
    QString text;
    for (int i = 0; i < count; ++i) {
        const QString& word = words[random.Below(static_cast<int>(words.size()))];
        if (text.size() + 1 + word.size() > maxLength)
            break;
        if (!text.isEmpty())
            text += QLatin1Char(' ');
        text += word;
    }
    if (!text.isEmpty())
        text[0] = text[0].toUpper();
    return text;
}

// Cents as the planner shows an amount: "12.50".
QString Money(int cents) {
    return QStringLiteral("%1.%2").arg(cents / 100).arg(cents % 100, 2, 10, QLatin1Char('0'));
}

QString NoteText(Random& random) {
    const int lines = 3 + random.Below(3);
    QString text;
    for (int i = 0; i < lines; ++i) {
        if (i > 0)
            text += QStringLiteral("\r\n");
        text += Sentence(random, 4, 10, 70);
    }
    return text;
}

PlannerPage FullPage(Random& random) {
    PlannerPage page;
    for (int line = 0; line < kAppointmentLines; ++line) {
        page.times[line] = datefmt::MediumTime(QTime(6 + line, 0));
        page.bold[line] = random.OneIn(4);
        page.slotTexts[line] = Sentence(random, 4, 16, 150);
    }
    for (int item = 0; item < kPlannerToDoItems; ++item) {
        page.slotTexts[kFirstToDoSlot + item] = Sentence(random, 2, 7, 60);
        page.done[item] = random.OneIn(3);
    }
    int totalCents = 0;
    for (int k = 0; k < kExpenseLines; ++k) {
        const int cents = 100 + random.Below(25000);
        totalCents += cents;
        page.slotTexts[kFirstExpenseSlot + k] = Sentence(random, 2, 6, 50);
        page.slotTexts[kFirstAmountSlot + k] = Money(cents);
    }
    page.slotTexts[kTotalExpendituresSlot] = Money(totalCents);
    int odometer = 20000 + random.Below(60000);
    int totalMiles = 0;
    for (int m = 0; m < kMileageLines; ++m) {
        const int miles = 1 + random.Below(120);
        const QStringList& places = Places();
        page.slotTexts[kFirstDestinationSlot + m] =
            places[random.Below(static_cast<int>(places.size()))] + QStringLiteral(" - ") +
            Sentence(random, 2, 6, 50);
        page.slotTexts[kFirstBeginSlot + m] = QString::number(odometer);
        page.slotTexts[kFirstEndSlot + m] = QString::number(odometer + miles);
        page.slotTexts[kFirstMilesSlot + m] = QString::number(miles);
        odometer += miles;
        totalMiles += miles;
    }
    page.slotTexts[kTotalMileageSlot] = QString::number(totalMiles);
    return page;
}

bool WriteBytes(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
        return false;
    }
    return true;
}

const QString kCrLfText = QStringLiteral("\r\n");

// Writes one year's notes, planner and marks; returns the bytes written, or -1.
qint64 WriteYear(const QString& dir, int year, const MarkerColors& colors) {
    Random random(static_cast<quint64>(year) * 7919u + 17u);
    DateModel dates;
    dates.SelectDate(QDate(year, 1, 1));
    QByteArray notes;
    QByteArray planner;
    QString marks;
    const int days = QDate(year, 1, 1).daysInYear();
    notes.reserve(days * 300);
    planner.reserve(days * (kPlannerRecordLength + 20));
    marks.reserve(days * 60);
    for (QDate date(year, 1, 1); date.year() == year; date = date.addDays(1)) {
        const CellIndex cell = *dates.FindDay(date);
        const QString dateKey = datefmt::MmDdYy(date);
        const QString code = cell.Code();
        notes +=
            FormatDatedLine(dateKey, code, textfile::Encode(EncodeLineBreaks(NoteText(random))));
        notes += "\r\n";
        planner +=
            FormatDatedLine(dateKey, code, textfile::Encode(BuildPlannerRecord(FullPage(random))));
        planner += "\r\n";
        const qint32 color = static_cast<qint32>(colors.Color(random.Below(12)));
        marks += FormatMarkLine({cell, color, Sentence(random, 2, 8, 60)});
        marks += kCrLfText;
    }
    const QString folder = dir + QLatin1Char('/') + YearFolderName(year);
    if (!QDir().mkpath(folder))
        return -1;
    if (!WriteBytes(folder + QLatin1Char('/') + kNotesFile, notes) ||
        !WriteBytes(folder + QLatin1Char('/') + kPlannerFile, planner) ||
        !WriteBytes(dir + QLatin1Char('/') + DateMarks::FileName(year), textfile::Encode(marks)))
        return -1;
    // One byte per character.
    return notes.size() + planner.size() + marks.size();
}

// The alerts of the years, one a week, and the to-do list; returns the bytes written, or -1.
qint64 WriteReminders(const QString& dir, int firstYear, int years) {
    Random random(static_cast<quint64>(firstYear) * 31u + static_cast<quint64>(years));
    QString alerts;
    for (QDate date(firstYear, 1, 1); date.year() < firstYear + years; date = date.addDays(7))
        if (FitsAlertFile(date))
            alerts += MakeAlertLine(date, random.Below(15), Sentence(random, 2, 8, 60)) + kCrLfText;
    ToDoRows rows;
    for (int row = 0; row < kToDoRows; ++row) {
        rows.texts[row] = Sentence(random, 2, 6, 50);
        rows.done[row] = random.OneIn(3);
    }
    const QByteArray alertBytes = textfile::Encode(alerts);
    const QByteArray toDoBytes = textfile::Encode(ToDoFileText(rows));
    if ((!alertBytes.isEmpty() && !WriteBytes(dir + QLatin1Char('/') + kAlertsFile, alertBytes)) ||
        !WriteBytes(dir + QLatin1Char('/') + kToDoFile, toDoBytes))
        return -1;
    return alertBytes.size() + toDoBytes.size();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        std::fprintf(stderr, "usage: %s DIR FIRST_YEAR YEARS\n", argv[0]);
        return 2;
    }
    const QString dir = QString::fromLocal8Bit(argv[1]);
    const int firstYear = std::atoi(argv[2]);
    const int years = std::atoi(argv[3]);
    if (firstYear < 100 || firstYear + years > 9999 || years < 1) {
        std::fprintf(stderr, "FIRST_YEAR and YEARS must give years from 100 to 9999\n");
        return 2;
    }
    if (!QDir().mkpath(dir)) {
        std::fprintf(stderr, "cannot create %s\n", qPrintable(dir));
        return 1;
    }
    QElapsedTimer timer;
    timer.start();
    const MarkerColors colors;
    qint64 total = 0;
    for (int year = firstYear; year < firstYear + years; ++year) {
        const qint64 bytes = WriteYear(dir, year, colors);
        if (bytes < 0)
            return 1;
        total += bytes;
    }
    const qint64 reminders = WriteReminders(dir, firstYear, years);
    if (reminders < 0)
        return 1;
    total += reminders;
    std::printf("wrote %d years (%d-%d) to %s: %.1f MB in %.2f s\n", years, firstYear,
                firstYear + years - 1, qPrintable(dir), total / 1e6, timer.elapsed() / 1000.0);
    return 0;
}
