#include "calendar/MarkerColors.h"

#include "calendar/CalendarMessages.h"
#include "shell/Files.h"
#include "shell/SavePath.h"
#include "shell/Services.h"
#include "shell/TextFile.h"

namespace {

constexpr quint32 Rgb(quint32 red, quint32 green, quint32 blue) {
    return red | green << 8 | blue << 16;
}

constexpr quint32 kLargestColor = 0xFFFFFF;

// "caption:colour", with a trailing "*" when the category is hidden. The caption ends at the
// last ":", so that a caption may itself hold one.
MarkerColor ParseLine(QString line) {
    MarkerColor entry;
    entry.hidden = line.endsWith(QLatin1Char('*'));
    if (entry.hidden)
        line.chop(1);
    const qsizetype colon = line.lastIndexOf(QLatin1Char(':'));
    entry.caption = colon < 0 ? line : line.left(colon);
    // A line without ":" has an empty colour field, which is not a number either.
    const qint64 color = ToInt64(colon < 0 ? QStringView() : QStringView(line).mid(colon + 1));
    if (color < 0 || color > kLargestColor)
        Raise(err::Overflow);
    entry.color = static_cast<quint32>(color);
    return entry;
}

}  // namespace

const MarkerColors::Entries& MarkerColors::Defaults() {
    // Light colours, far enough apart to be told from one another, behind black day numbers.
    static const Entries defaults = {{
        {QStringLiteral("Account Payable"), Rgb(255, 170, 170), false},
        {QStringLiteral("Account Receivable"), Rgb(170, 230, 170), false},
        {QStringLiteral("Anniversary"), Rgb(255, 190, 230), false},
        {QStringLiteral("Appointment"), Rgb(170, 190, 255), false},
        {QStringLiteral("Birthday"), Rgb(255, 215, 160), false},
        {QStringLiteral("Celebration"), Rgb(240, 240, 150), false},
        {QStringLiteral("Dining"), Rgb(210, 185, 150), false},
        {QStringLiteral("Event"), Rgb(210, 170, 255), false},
        {QStringLiteral("Holiday"), Rgb(150, 230, 220), false},
        {QStringLiteral("Meeting"), Rgb(205, 205, 205), false},
        {QStringLiteral("Travel"), Rgb(200, 240, 120), false},
        {QStringLiteral("Vacation"), Rgb(150, 220, 255), false},
        {QStringLiteral("Quick Marks"), Rgb(255, 160, 90), false},
        {QStringLiteral("Today's Date"), Rgb(255, 255, 0), false},
    }};
    return defaults;
}

MarkerColors::MarkerColors() : entries_(Defaults()), file_(kMarkerColorsFile) {}

const RecordLayout& MarkerColors::Layout() {
    // A caption may hold ":" (the colour follows the last one), so a line is one field; the
    // lines are named by their place.
    static const RecordLayout layout = [] {
        RecordLayout colors;
        colors.separator = QChar();
        colors.key = RecordLayout::Key::Position;
        colors.whenEmpty = RecordLayout::WhenEmpty::EmptyFile;
        return colors;
    }();
    return layout;
}

void MarkerColors::ReadMarkerColors(Services& services) {
    entries_ = Defaults();
    int count = 0;
    if (!ReadDataFile(services, "ReadMarkerColors", file_, [&](QByteArrayView line, int) {
            if (count < kCount)
                entries_[count] = ParseLine(LineText(line));
            ++count;
        }))
        return;
    // A file that stops before the last category is read only in part.
    if (file_.Stamp().exists && count < kCount) {
        const VbError error = file_.Fault(count + 1, VbError(err::InputPastEndOfFile));
        services.LogError(QStringLiteral("ReadMarkerColors"), error.number(), error.description());
    }
}

void MarkerColors::SaveMarkerColors(Services& services) {
    Records records(Layout());
    for (const MarkerColor& entry : entries_) {
        records.Add({entry.caption + QLatin1Char(':') + QString::number(entry.color) +
                     (entry.hidden ? QStringLiteral("*") : QString())});
    }
    SaveDataFile(services, "SaveMarkerColors", file_, records);
}

int MarkerColors::IndexOfColor(quint32 color) const {
    for (int i = 0; i < kCount; ++i) {
        if (entries_[i].color == color)
            return i;
    }
    return -1;
}

bool MarkerColors::IsHiddenColor(quint32 color) const {
    const int i = IndexOfColor(color);
    return i >= 0 && entries_[i].hidden;
}

void MarkerColors::ShowAll() {
    for (MarkerColor& entry : entries_)
        entry.hidden = false;
}

void MarkerColors::HideAll() {
    for (MarkerColor& entry : entries_)
        entry.hidden = true;
}

namespace {

// Why a caption cannot be a category's caption, if it cannot.
std::optional<QString> CaptionProblem(const QString& caption) {
    if (caption.isEmpty())
        return kEmptyCaptionMessage;
    if (caption.contains(QLatin1Char('\r')) || caption.contains(QLatin1Char('\n')))
        return kCaptionLineBreakMessage;
    return FieldProblem(MarkerColors::Layout(), caption, true);
}

}  // namespace

std::optional<QString> MarkerColors::SetCategory(int i, const QString& caption, quint32 color) {
    if (const auto problem = CaptionProblem(caption))
        return problem;
    const quint32 rgb = color & kLargestColor;
    for (int other = 0; other < kCount; ++other) {
        if (other != i && entries_[other].color == rgb)
            return DuplicateColorMessage(entries_[other].caption);
    }
    entries_.at(i).caption = caption;
    entries_.at(i).color = rgb;
    return std::nullopt;
}

std::optional<QString> MarkerColors::SetCategories(const Entries& entries) {
    Entries masked = entries;
    for (MarkerColor& entry : masked)
        entry.color &= kLargestColor;
    for (int i = 0; i < kCount; ++i) {
        if (const auto problem = CaptionProblem(masked[i].caption))
            return problem;
        for (int other = 0; other < i; ++other) {
            if (masked[other].color == masked[i].color)
                return DuplicateColorMessage(masked[other].caption);
        }
    }
    entries_ = masked;
    return std::nullopt;
}
