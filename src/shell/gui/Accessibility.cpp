#include "shell/gui/Accessibility.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QEvent>
#include <QFormLayout>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QTextEdit>
#include <QWidget>

namespace {

QString WithoutAccessKeys(QString text) {
    text.replace(QStringLiteral("&&"), QStringLiteral("\x01"));
    text.remove(QLatin1Char('&'));
    text.replace(QLatin1Char('\x01'), QLatin1Char('&'));
    return text.simplified();
}

// The text of the label that stands for widget: a label whose buddy it is, or its row's label
// in a form.
QString LabelText(QWidget* widget) {
    QWidget* window = widget->window();
    for (QLabel* label : window->findChildren<QLabel*>())
        if (label->buddy() == widget)
            return WithoutAccessKeys(label->text());
    if (QWidget* parent = widget->parentWidget())
        if (auto* form = qobject_cast<QFormLayout*>(parent->layout()))
            if (auto* label = qobject_cast<QLabel*>(form->labelForField(widget)))
                return WithoutAccessKeys(label->text());
    return {};
}

// What a bare control array ("txt_0") holds, by its type prefix.
QString KindOf(const QString& prefix) {
    static const QHash<QString, QString> kinds{{QStringLiteral("txt"), QStringLiteral("Text")},
                                               {QStringLiteral("lst"), QStringLiteral("List")},
                                               {QStringLiteral("cmb"), QStringLiteral("Choice")},
                                               {QStringLiteral("chk"), QStringLiteral("Check box")},
                                               {QStringLiteral("opt"), QStringLiteral("Option")},
                                               {QStringLiteral("cmd"), QStringLiteral("Button")},
                                               {QStringLiteral("pic"), QStringLiteral("Picture")}};
    return kinds.value(prefix, prefix);
}

// "txtCompanyName" -> "Company Name"; "txtLine_3" -> "Line 4" and "txt_3" -> "Text 4" (arrays
// count from one for the listener); a name without a type prefix keeps its words.
QString NameInWords(const QString& objectName) {
    static const QRegularExpression prefixed(QStringLiteral("^[a-z]{2,5}(?=[A-Z0-9_])"));
    static const QRegularExpression array(QStringLiteral("_(\\d+)$"));
    static const QRegularExpression wordStart(QStringLiteral("(?<=[a-z])(?=[A-Z0-9])"));
    QString name = objectName;
    const QString prefix = prefixed.match(name).captured();
    name.remove(0, prefix.size());
    QString index;
    const QRegularExpressionMatch match = array.match(name);
    if (match.hasMatch()) {
        index = QString::number(match.captured(1).toInt() + 1);
        name.truncate(match.capturedStart());
    }
    if (name.isEmpty() && !index.isEmpty())
        name = KindOf(prefix);
    name.replace(wordStart, QStringLiteral(" "));
    name.replace(QLatin1Char('_'), QLatin1Char(' '));
    return (name + QLatin1Char(' ') + index).simplified();
}

QString NameFor(QWidget* widget) {
    QString name = LabelText(widget);
    if (name.isEmpty())
        name = widget->toolTip().section(QLatin1Char('\n'), 0, 0).simplified();
    if (auto* edit = qobject_cast<QLineEdit*>(widget); edit && name.isEmpty())
        name = edit->placeholderText();
    if (name.isEmpty())
        name = NameInWords(widget->objectName());
    if (name.isEmpty())
        name = widget->window()->windowTitle();
    return name;
}

bool TakesFocus(const QWidget* widget) {
    return (widget->focusPolicy() & Qt::TabFocus) != 0;
}

// A button says its own caption; every other control is named here unless the program named
// it already.
bool HasOwnName(QWidget* widget) {
    if (!widget->accessibleName().isEmpty())
        return true;
    auto* button = qobject_cast<QAbstractButton*>(widget);
    return button && !WithoutAccessKeys(button->text()).isEmpty();
}

void NameControl(QWidget* widget) {
    if (!TakesFocus(widget) || HasOwnName(widget))
        return;
    widget->setAccessibleName(NameFor(widget));
    if (widget->toolTip().isEmpty() && widget->accessibleDescription().isEmpty())
        widget->setAccessibleDescription(widget->accessibleName() + QStringLiteral(" in ") +
                                         widget->window()->windowTitle());
}

// Tab in a box of several lines moves on to the next control, as in the classic multi-line text
// box, instead of typing a tab: otherwise a keyboard user could never leave it, Ctrl+Tab being
// the key that changes child windows.
void LetTabLeave(QWidget* widget) {
    if (auto* plain = qobject_cast<QPlainTextEdit*>(widget))
        plain->setTabChangesFocus(true);
    else if (auto* rich = qobject_cast<QTextEdit*>(widget))
        rich->setTabChangesFocus(true);
}

}  // namespace

QString AccessibleNameOf(QWidget* widget) {
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(widget);
    return face ? face->text(QAccessible::Name).simplified() : widget->accessibleName();
}

void AccessibleNaming::Install() {
    static AccessibleNaming* naming = nullptr;
    if (!naming) {
        naming = new AccessibleNaming(qApp);
        qApp->installEventFilter(naming);
    }
}

void AccessibleNaming::NameControls(QWidget* root) {
    NameControl(root);
    for (QWidget* widget : root->findChildren<QWidget*>())
        NameControl(widget);
}

// Every widget is told when it is shown, the controls of a window one by one as the window
// opens, so each is named once, when its label and tooltip are in place.
bool AccessibleNaming::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show && watched->isWidgetType()) {
        auto* widget = static_cast<QWidget*>(watched);
        NameControl(widget);
        LetTabLeave(widget);
    }
    return false;
}
