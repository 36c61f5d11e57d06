// "Budget.dat" on any bytes: the reader never crashes, stops only with error 13, and a file read
// whole is written back to text that reads as the same budgets.
#include "FuzzSupport.h"
#include "reports/modBudget.h"
#include "shell/TextFile.h"
#include "shell/VbError.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzz::WriteInput(kBudgetFile, data, size);
    const QString path = fuzz::services().PathOf(kBudgetFile);
    Budgets budgets;
    bool whole = true;
    try {
        ReadBudgetFile(path, budgets);
    } catch (const VbError& error) {
        fuzz::Check(error.number() == err::TypeMismatch, "only a faulty line is refused");
        whole = false;
    }
    for (auto it = budgets.cbegin(); it != budgets.cend(); ++it)
        fuzz::Check(it.key().day() == 1 && it.value() >= 0 && it.value() <= kMaxBudgetCents,
                    "a budget is a month's and within range");
    if (whole) {
        const QByteArray saved = textfile::Encode(BudgetFileText(budgets));
        fuzz::WriteInput(kBudgetFile, reinterpret_cast<const uint8_t*>(saved.constData()),
                         size_t(saved.size()));
        Budgets again;
        ReadBudgetFile(path, again);
        fuzz::Check(again == budgets, "budgets saved read back the same");
    }
    return 0;
}
