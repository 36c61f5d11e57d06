#include "notes_planner/PlannerFigures.h"

#include <QRegularExpression>

#include "shell/FixedWidth.h"
#include "shell/NumberFormat.h"

namespace {

bool IsNumber(const QString& text) {
    static const QRegularExpression number(QStringLiteral("^\\s*[+-]?(\\d+\\.?\\d*|\\.\\d+)\\s*$"));
    return number.match(text).hasMatch();
}

QString Formatted(const QString& typed, int decimals) {
    return IsNumber(typed) ? FormatHashes(Val(typed), decimals) : typed;
}

}  // namespace

QString FormatAmount(const QString& typed) {
    return Formatted(typed, 2);
}

QString FormatMileage(const QString& typed) {
    return Formatted(typed, 0);
}

void AddTheAmounts(PlannerPage& page) {
    double sum = 0;
    bool any = false;
    for (int k = 0; k < kExpenseLines; ++k) {
        const QString& amount = page.slotTexts[kFirstAmountSlot + k];
        any = any || !IsBlank(amount);
        sum += Val(amount);
    }
    page.slotTexts[kTotalExpendituresSlot] = any ? FormatHashes(sum, 2) : QString();
}

void AddTheMiles(PlannerPage& page) {
    double total = 0;
    for (int m = 0; m < kMileageLines; ++m) {
        const QString& begin = page.slotTexts[kFirstBeginSlot + m];
        const QString& end = page.slotTexts[kFirstEndSlot + m];
        QString& miles = page.slotTexts[kFirstMilesSlot + m];
        if (!IsBlank(begin) && !IsBlank(end))
            miles = FormatHashes(Val(end) - Val(begin), 0);
        total += Val(miles);
    }
    page.slotTexts[kTotalMileageSlot] = FormatHashes(total, 0);
}
