#include "terms/gui/TermMenus.h"

#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QTextBlock>

#include "shell/Services.h"
#include "shell/UserPreferences.h"
#include "shell/gui/frmMain.h"
#include "terms/TermText.h"
#include "terms/gui/TermBoxes.h"
#include "terms/gui/frmFUT.h"
#include "terms/modFUT.h"

TermMenus::TermMenus(frmMain& frame, Services& services, UserPreferences& prefs, modFUT& terms,
                     std::function<QWidget*()> calendar)
    : QObject(&frame),
      frame_(frame),
      services_(services),
      prefs_(prefs),
      terms_(terms),
      calendar_(std::move(calendar)),
      boxes_(new TermBoxes(services, prefs, terms, this)) {
    for (const char* name : {"mnuFileOpenFUT", "mnuManageFUTList", "mnuManageFUTPreferences"}) {
        const QString item = QString::fromLatin1(name);
        Handle(frame_.MenuItem(item), this, [this, item] {
            services_.Trap(qPrintable(item + QStringLiteral("_Click")),
                           [this] { ShowTermWindow(); });
        });
    }
}

frmFUT* TermMenus::termWindow() const {
    return static_cast<frmFUT*>(frame_.ChildWindow(QString::fromLatin1(frmFUT::kName)));
}

frmFUT* TermMenus::ShowTermWindow() {
    bool created = false;
    auto* window = static_cast<frmFUT*>(frame_.ShowChild(QString::fromLatin1(frmFUT::kName), [&] {
        created = true;
        return new frmFUT(services_, {frame_, prefs_, terms_, *boxes_, calendar_});
    }));
    if (created)
        window->Form_Load();
    return window;
}

void TermMenus::ShowAtStart() {
    if (prefs_.Value(prefkey::ShowFut) != u"True")
        return;
    frmFUT* window = ShowTermWindow();
    if (prefs_.Value(prefkey::MinimizeFut) != u"True")
        return;
    if (auto* sub = qobject_cast<QMdiSubWindow*>(window->parentWidget()))
        sub->showMinimized();
}

void TermMenus::PreferencesChanged(const QStringList& keys) {
    frmFUT* window = termWindow();
    if (window &&
        (keys.contains(prefkey::FrequentTermsFile) || keys.contains(prefkey::AutoCompleteWord)))
        window->PreferencesChanged();
    else if (keys.contains(prefkey::FrequentTermsFile))
        terms_.ReadFrequentlyUsedTerms();
}

void TermMenus::TermKey(QWidget* box, int key) {
    if (key == Qt::Key_F2) {
        frmFUT* window = termWindow();
        const QString term = window ? window->SelectedTerm() : QString();
        if (term.isNull()) {
            // Nothing picked yet: the list comes up to pick from.
            ShowTermWindow();
            return;
        }
        TermBoxes::InsertTerm(box, term);
        return;
    }
    QString text;
    if (auto* line = qobject_cast<QLineEdit*>(box))
        text = line->hasSelectedText() ? line->selectedText()
                                       : WordBeforeCaret(line->text().left(line->cursorPosition()));
    else if (auto* edit = qobject_cast<QPlainTextEdit*>(box)) {
        const QTextCursor cursor = edit->textCursor();
        text = cursor.hasSelection()
                   ? cursor.selectedText()
                   : WordBeforeCaret(cursor.block().text().left(cursor.positionInBlock()));
    }
    text.replace(QChar::ParagraphSeparator, u' ');
    ShowTermWindow()->AddTerm(text.trimmed());
}
