#include "notes_planner/PlannerRecord.h"

#include <QTime>

#include "shell/DateFormats.h"
#include "shell/Records.h"

namespace {

constexpr qsizetype kLineLength = 160;
constexpr Field kTimeField{0, 10};
constexpr qsizetype kLineTextWidth = 150;
constexpr qsizetype kFirstSlotFieldAt = kAppointmentLines * kLineLength;  // 2560
constexpr qsizetype kDoneMarksAt = 4090;

// The field of slot in a record. Lines hold their slot after the time field; slots 16-59
// follow one another from position 2561 on.
Field SlotField(int slot) {
    if (slot < kAppointmentLines)
        return {slot * kLineLength + kTimeField.width, kLineTextWidth};
    qsizetype offset = kFirstSlotFieldAt;
    for (int s = kAppointmentLines; s < slot; ++s)
        offset += SlotWidth(s);
    return {offset, SlotWidth(slot)};
}

const std::array<Field, kPlannerSlots>& SlotFields() {
    static const std::array<Field, kPlannerSlots> fields = [] {
        std::array<Field, kPlannerSlots> all;
        for (int slot = 0; slot < kPlannerSlots; ++slot)
            all[slot] = SlotField(slot);
        return all;
    }();
    return fields;
}

Field TimeField(int line) {
    return {line * kLineLength, kTimeField.width};
}

}  // namespace

int SlotWidth(int slot) {
    if (slot < kFirstToDoSlot)
        return 150;
    if (slot < kFirstExpenseSlot)
        return 60;
    if (slot < kFirstAmountSlot)
        return 50;
    if (slot < kFirstDestinationSlot)
        return 10;
    if (slot < kFirstBeginSlot)
        return 80;
    return 10;
}

QString SlotTag(int slot, LineKind kind) {
    const char* name = nullptr;
    if (slot < kFirstToDoSlot)
        name = kind == LineKind::Push ? "Push" : "Stop";
    else if (slot < kFirstExpenseSlot)
        name = "ToDo";
    else if (slot < kFirstAmountSlot)
        name = "Expense";
    else if (slot < kTotalExpendituresSlot)
        name = "ExpAmt";
    else if (slot == kTotalExpendituresSlot || slot == kTotalMileageSlot)
        return {};
    else if (slot < kFirstBeginSlot)
        name = "Dest";
    else if (slot < kFirstEndSlot)
        name = "Begin";
    else if (slot < kFirstMilesSlot)
        name = "End";
    else
        name = "Total";
    return QStringLiteral("%1.%2").arg(SlotWidth(slot), 3, 10, QLatin1Char('0')).arg(name);
}

QString BuildPlannerRecord(const PlannerPage& page) {
    // Every field is kept on one line, which the record is in the file.
    QString record(kPlannerRecordLength, QLatin1Char(' '));
    const auto& fields = SlotFields();
    for (int line = 0; line < kAppointmentLines; ++line) {
        const QString time = OnOneLine(page.times[line]);
        TimeField(line).Write(record, page.bold[line] ? QLatin1Char('B') + time + QLatin1Char(' ')
                                                      : time + QStringLiteral("  "));
    }
    for (int slot = 0; slot < kPlannerSlots; ++slot)
        fields[slot].Write(record, OnOneLine(page.slotTexts[slot]));
    for (int item = 0; item < kPlannerToDoItems; ++item)
        record[kDoneMarksAt + item] = QChar(page.done[item] ? kDoneMark : kNotDoneMark);
    return record;
}

PlannerPage ParsePlannerRecord(QStringView record) {
    PlannerPage page;
    const auto& fields = SlotFields();
    for (int line = 0; line < kAppointmentLines; ++line) {
        const QStringView time = TimeField(line).Raw(record);
        page.bold[line] = time.startsWith(QLatin1Char('B'));
        page.times[line] = TrimBlanks(page.bold[line] ? time.mid(1) : time).toString();
    }
    for (int slot = 0; slot < kPlannerSlots; ++slot)
        page.slotTexts[slot] = fields[slot].Read(record);
    for (int item = 0; item < kPlannerToDoItems; ++item) {
        const qsizetype at = kDoneMarksAt + item;
        page.done[item] = at < record.size() && record[at] == QChar(kDoneMark);
    }
    return page;
}

namespace {

// A record as text or as its bytes: the blanks and the done mark are the same character in
// both.
char16_t CharAt(QStringView record, qsizetype at) {
    return record[at].unicode();
}
char16_t CharAt(QByteArrayView record, qsizetype at) {
    return static_cast<unsigned char>(record[at]);
}

template <class View>
bool BlankRecord(View record) {
    for (const Field& field : SlotFields())
        if (!IsBlank(field.Raw(record)))
            return false;
    for (qsizetype at = kDoneMarksAt; at < record.size(); ++at)
        if (CharAt(record, at) == kDoneMark)
            return false;
    return true;
}

}  // namespace

bool IsBlankRecord(QStringView record) {
    return BlankRecord(record);
}

bool IsBlankRecord(QByteArrayView record) {
    return BlankRecord(record);
}

QString DefaultTime(int line) {
    return datefmt::MediumTime(QTime(kFirstLineHour + line, 0));
}

PlannerPage NewPlannerPage() {
    PlannerPage page;
    for (int line = 0; line < kAppointmentLines; ++line)
        page.times[line] = DefaultTime(line);
    return page;
}
