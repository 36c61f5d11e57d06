#include "notes_planner/PlannerFigures.h"

#include "shell/FixedWidth.h"
#include "shell/NumberFormat.h"

namespace {

QString Formatted(const QString& typed, int decimals) {
    const std::optional<double> value = ParseAmount(typed);
    return value ? FormatHashes(*value, decimals) : typed;
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
        sum += ParseAmount(amount).value_or(0);
    }
    page.slotTexts[kTotalExpendituresSlot] = any ? FormatHashes(sum, 2) : QString();
}

void AddTheMiles(PlannerPage& page) {
    double total = 0;
    for (int m = 0; m < kMileageLines; ++m) {
        const std::optional<double> begin = ParseAmount(page.slotTexts[kFirstBeginSlot + m]);
        const std::optional<double> end = ParseAmount(page.slotTexts[kFirstEndSlot + m]);
        QString& miles = page.slotTexts[kFirstMilesSlot + m];
        if (begin && end)
            miles = FormatHashes(*end - *begin, 0);
        total += ParseAmount(miles).value_or(0);
    }
    page.slotTexts[kTotalMileageSlot] = FormatHashes(total, 0);
}
