#include "shell/gui/QtDialogs.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPointer>

#include "shell/gui/Colors.h"

namespace {

QMessageBox::StandardButtons ButtonsFor(int style) {
    switch (vb::ButtonsOf(style)) {
        case vb::OKCancel:
            return QMessageBox::Ok | QMessageBox::Cancel;
        case vb::AbortRetryIgnore:
            return QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore;
        case vb::YesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        case vb::YesNo:
            return QMessageBox::Yes | QMessageBox::No;
        case vb::RetryCancel:
            return QMessageBox::Retry | QMessageBox::Cancel;
        default:
            return QMessageBox::Ok;
    }
}

QMessageBox::Icon IconFor(int style) {
    switch (vb::IconOf(style)) {
        case vb::Critical:
            return QMessageBox::Critical;
        case vb::Question:
            return QMessageBox::Question;
        case vb::Exclamation:
            return QMessageBox::Warning;
        case vb::Information:
            return QMessageBox::Information;
        default:
            return QMessageBox::NoIcon;
    }
}

int AnswerFor(int button) {
    switch (button) {
        case QMessageBox::Ok:
            return vb::OK;
        case QMessageBox::Abort:
            return vb::Abort;
        case QMessageBox::Retry:
            return vb::Retry;
        case QMessageBox::Ignore:
            return vb::Ignore;
        case QMessageBox::Yes:
            return vb::Yes;
        case QMessageBox::No:
            return vb::No;
        default:
            return vb::Cancel;
    }
}

QString Shown(const QString& text) {
    QString shown = text;
    return shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

// While a box is open it holds the keyboard; when it closes, the window and the control the
// user was typing in get it back, so that the window's own keys work at once. Without this a
// desktop that does not hand activation back leaves the window without an active state and
// every key that belongs to it (Ctrl+P, Ctrl+S, Esc) does nothing until it is clicked.
class ReturnFocusAfter {
public:
    // parent: the window the box belongs to, which gets the keyboard back even when the box
    // opened straight after another one, before the window was active again.
    explicit ReturnFocusAfter(QWidget* parent)
        : window_(parent ? parent->window() : QApplication::activeWindow()),
          control_(QApplication::focusWidget()) {}
    ~ReturnFocusAfter() {
        if (!window_)
            return;
        window_->activateWindow();
        if (control_ && control_->window() == window_)
            control_->setFocus(Qt::ActiveWindowFocusReason);
    }
    ReturnFocusAfter(const ReturnFocusAfter&) = delete;
    ReturnFocusAfter& operator=(const ReturnFocusAfter&) = delete;

private:
    QPointer<QWidget> window_;
    QPointer<QWidget> control_;
};

}  // namespace

int QtDialogs::MsgBox(const QString& text, int style, const QString& title) {
    QMessageBox box(IconFor(style), title.isEmpty() ? kProgramName : title, Shown(text),
                    ButtonsFor(style), parent_);
    box.setTextFormat(Qt::PlainText);
    const ReturnFocusAfter returnFocus(parent_);
    return AnswerFor(box.exec());
}

QString QtDialogs::InputBox(const QString& prompt, const QString& title,
                            const QString& defaultText) {
    bool ok = false;
    const ReturnFocusAfter returnFocus(parent_);
    const QString answer =
        QInputDialog::getText(parent_, title.isEmpty() ? kProgramName : title, Shown(prompt),
                              QLineEdit::Normal, defaultText, &ok);
    return ok ? answer : QString();
}

QString QtDialogs::OpenFileName(const QString& caption, const QString& folder,
                                const QString& filter) {
    const ReturnFocusAfter returnFocus(parent_);
    return QFileDialog::getOpenFileName(parent_, caption, folder, filter);
}

QString QtDialogs::SaveFileName(const QString& caption, const QString& folder,
                                const QString& filter) {
    const ReturnFocusAfter returnFocus(parent_);
    return QFileDialog::getSaveFileName(parent_, caption, folder, filter);
}

QString QtDialogs::FolderName(const QString& caption, const QString& folder) {
    const ReturnFocusAfter returnFocus(parent_);
    return QFileDialog::getExistingDirectory(parent_, caption, folder);
}

std::optional<quint32> QtDialogs::PickColor(quint32 initial, const QString& title) {
    const ReturnFocusAfter returnFocus(parent_);
    const QColor chosen = QColorDialog::getColor(ToQColor(initial), parent_, title);
    if (!chosen.isValid())
        return std::nullopt;
    return FromQColor(chosen);
}
