#include "shell/gui/OneLineBoxes.h"

#include <QApplication>
#include <QEvent>
#include <QLineEdit>
#include <QPointer>
#include <QValidator>

#include "shell/Records.h"

namespace {

bool HasLineBreakOrTab(const QString& text) {
    for (const QChar c : text)
        if (c == QLatin1Char('\r') || c == QLatin1Char('\n') || c == QLatin1Char('\t'))
            return true;
    return false;
}

// The text on one line, tabs as blanks too: a tab pasted from a spreadsheet would only jump
// the text along in the box and in the printouts.
QString ForOneLineBox(QStringView text) {
    QString line = OnOneLine(text);
    line.replace(QLatin1Char('\t'), QLatin1Char(' '));
    return line;
}

// Puts the text on one line before the box's own check (if it has one) sees it; the cursor
// stays after what was typed or pasted.
class OneLineValidator final : public QValidator {
public:
    OneLineValidator(const QValidator* own, QObject* parent) : QValidator(parent), own_(own) {}

    State validate(QString& input, int& pos) const override {
        if (HasLineBreakOrTab(input)) {
            pos = int(ForOneLineBox(QStringView(input).left(pos)).size());
            input = ForOneLineBox(input);
        }
        return own_ ? own_->validate(input, pos) : Acceptable;
    }
    void fixup(QString& input) const override {
        if (own_)
            own_->fixup(input);
    }

private:
    QPointer<const QValidator> own_;
};

// Gives the rule to each one-line box as it is first shown.
class OneLineRule final : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Polish)
            if (auto* box = qobject_cast<QLineEdit*>(watched))
                KeepOnOneLine(box);
        return false;
    }
};

}  // namespace

void KeepOnOneLine(QLineEdit* box) {
    if (dynamic_cast<const OneLineValidator*>(box->validator()))
        return;
    box->setValidator(new OneLineValidator(box->validator(), box));
    // Text already in the box follows the rule as well.
    if (HasLineBreakOrTab(box->text()))
        box->setText(ForOneLineBox(box->text()));
}

void KeepEveryBoxOnOneLine() {
    static QPointer<OneLineRule> rule;
    if (rule || !qApp)
        return;
    rule = new OneLineRule(qApp);
    qApp->installEventFilter(rule);
}
