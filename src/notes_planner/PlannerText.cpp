#include "notes_planner/PlannerText.h"

#include <QStringList>

#include "shell/FixedWidth.h"

namespace {

const QString kTab = QStringLiteral("\t");

bool AnyText(std::initializer_list<QString> texts) {
    for (const QString& text : texts)
        if (!IsBlank(text))
            return true;
    return false;
}

QStringList Appointments(const PlannerPage& page) {
    QStringList lines;
    for (int line = 0; line < kAppointmentLines; ++line)
        if (AnyText({page.slotTexts[line]}))
            lines.append(page.times[line] + kTab + page.slotTexts[line]);
    return lines;
}

QStringList ToDoItems(const PlannerPage& page) {
    QStringList lines;
    for (int item = 0; item < kPlannerToDoItems; ++item) {
        const QString& text = page.slotTexts[kFirstToDoSlot + item];
        if (AnyText({text}))
            lines.append(text + (page.done[item] ? QStringLiteral(" (x)") : QString()));
    }
    return lines;
}

QStringList Expenses(const PlannerPage& page) {
    QStringList lines;
    for (int k = 0; k < kExpenseLines; ++k) {
        const QString& description = page.slotTexts[kFirstExpenseSlot + k];
        const QString& amount = page.slotTexts[kFirstAmountSlot + k];
        if (AnyText({description, amount}))
            lines.append(QStringLiteral("Desc:") + kTab + description + kTab +
                         QStringLiteral("Amt:") + kTab + amount);
    }
    if (AnyText({page.slotTexts[kTotalExpendituresSlot]}))
        lines.append(QStringLiteral("Total:") + kTab + page.slotTexts[kTotalExpendituresSlot]);
    return lines;
}

QStringList Mileage(const PlannerPage& page) {
    QStringList lines;
    for (int m = 0; m < kMileageLines; ++m) {
        const QString& destination = page.slotTexts[kFirstDestinationSlot + m];
        const QString& miles = page.slotTexts[kFirstMilesSlot + m];
        if (AnyText({destination, miles}))
            lines.append(QStringLiteral("Dest:") + kTab + destination + kTab +
                         QStringLiteral("Miles:") + kTab + miles);
    }
    if (AnyText({page.slotTexts[kTotalMileageSlot]}))
        lines.append(QStringLiteral("Total:") + kTab + page.slotTexts[kTotalMileageSlot]);
    return lines;
}

}  // namespace

QString PlannerClipboardText(const PlannerPage& page) {
    const std::pair<QString, QStringList> sections[] = {
        {QStringLiteral("Appointments - Events - Meetings - Tasks"), Appointments(page)},
        {QStringLiteral("To Do List"), ToDoItems(page)},
        {QStringLiteral("Expenses"), Expenses(page)},
        {QStringLiteral("Mileage"), Mileage(page)},
    };
    QString text;
    for (const auto& [heading, lines] : sections) {
        text += heading + QStringLiteral("\r\n");
        for (const QString& line : lines)
            text += line + QStringLiteral("\r\n");
        text += QStringLiteral("\r\n");
    }
    return text;
}
