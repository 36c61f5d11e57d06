#include "terms/gui/frmFUT.h"

#include <QApplication>
#include <QDrag>
#include <QFileInfo>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpression>
#include <QTimer>

#include "shell/Files.h"
#include "shell/UserPreferences.h"
#include "shell/gui/frmMain.h"
#include "terms/TermMessages.h"
#include "terms/TermText.h"
#include "terms/gui/TermBoxes.h"
#include "terms/gui/frmEditFUT.h"
#include "terms/modFUT.h"

QString FutPositionValue(const QRect& g) {
    return QStringLiteral("Left=%1:Top=%2:Width=%3:Height=%4")
        .arg(g.x())
        .arg(g.y())
        .arg(g.width())
        .arg(g.height());
}

QRect FutPositionGeometry(const QString& value) {
    static const QRegularExpression kLayout(
        QStringLiteral("^Left=(-?\\d+):Top=(-?\\d+):Width=(\\d+):Height=(\\d+)$"));
    const auto match = kLayout.match(value.trimmed());
    if (!match.hasMatch())
        return {};
    return QRect(match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt(),
                 match.captured(4).toInt());
}

frmFUT::frmFUT(Services& services, Context context)
    : ChildWindow(services, QString::fromLatin1(kName), QStringLiteral("Frequently Used Terms")),
      context_(std::move(context)),
      lblFile_(new QLabel),
      lstFUT_(new QListWidget),
      lstMoreFUT_(new QListWidget),
      cmdCase_(new QPushButton(QStringLiteral("Change Case"))) {
    BuildMenus();
    BuildControls();
}

void frmFUT::BuildMenus() {
    QMenu* file = AddMenu(MenuBar(), QStringLiteral("&File"), QStringLiteral("mnuFile"));
    AddCommand(file, QStringLiteral("&New List..."), QStringLiteral("mnuFileNewFUT"),
               "mnuFileNewFUT_Click", [this] { mnuFileNewFUT_Click(); });
    AddCommand(file, QStringLiteral("&Open List..."), QStringLiteral("mnuFileOpenFUT"),
               "mnuFileOpenFUT_Click", [this] { mnuFileOpenFUT_Click(); });
    AddCommand(file, QStringLiteral("Show &All Lists"), QStringLiteral("mnuFileShowAll"),
               "mnuFileShowAll_Click", [this] { mnuFileShowAll_Click(); });
    AddCommand(file, QStringLiteral("&Default List"), QStringLiteral("mnuFileDefaultFUT"),
               "mnuFileDefaultFUT_Click", [this] { mnuFileDefaultFUT_Click(); });
    AddCommand(file, QStringLiteral("&Save List"), QStringLiteral("mnuFileSave"),
               "mnuFileSave_Click", [this] { mnuFileSave_Click(); });
    AddCommand(file, QStringLiteral("De&lete This List"), QStringLiteral("mnuFileDelete"),
               "mnuFileDelete_Click", [this] { mnuFileDelete_Click(); });
    QMenu* edit = AddMenu(MenuBar(), QStringLiteral("&Edit"), QStringLiteral("mnuEdit"));
    AddCommand(edit, QStringLiteral("&Clear List"), QStringLiteral("mnuEditClear"),
               "mnuEditClear_Click", [this] { mnuEditClear_Click(); });
    QMenu* window = AddMenu(MenuBar(), QStringLiteral("&Window"), QStringLiteral("mnuWindow"));
    AddCommand(window, QStringLiteral("&Dock Beside Calendar"), QStringLiteral("mnuWindowDock"),
               "DockThisWindow", [this] { DockThisWindow(); });
    AddCommand(window, QStringLiteral("&Save Position"), QStringLiteral("mnuWindowSavePosition"),
               "mnuWindowSavePosition_Click", [this] { mnuWindowSavePosition_Click(); });
    // The preferences of the window, each kept as "True" or "False".
    const struct {
        const char* caption;
        const char* name;
        const QString& key;
    } choices[] = {
        {"Open at Saved &Position", "mnuWindowLoadPosition", prefkey::LoadFutPosition},
        {"Show at &Start", "mnuWindowShowAtStart", prefkey::ShowFut},
        {"&Minimized at Start", "mnuWindowMinimize", prefkey::MinimizeFut},
    };
    for (const auto& choice : choices) {
        const QString key = choice.key;
        QAction* item = AddCommand(
            window, QString::fromLatin1(choice.caption), QString::fromLatin1(choice.name),
            "mnuWindowPreference_Click", [this, key] {
                const bool on = context_.prefs.Value(key) != u"True";
                context_.prefs.SetValue(key, on ? QStringLiteral("True") : QStringLiteral("False"));
                context_.prefs.SaveUserPreferences(services_);
            });
        item->setCheckable(true);
        // The marks follow the preferences as they are now, which the User Options window
        // may have changed while this window was open.
        const auto mark = [this, item, key] {
            item->setChecked(context_.prefs.Value(key) == u"True");
        };
        mark();
        connect(window, &QMenu::aboutToShow, item, mark);
    }
}

void frmFUT::BuildControls() {
    lblFile_->setObjectName(QStringLiteral("lblFile"));
    lstFUT_->setObjectName(QStringLiteral("lstFUT"));
    lstMoreFUT_->setObjectName(QStringLiteral("lstMoreFUT"));
    cmdCase_->setObjectName(QStringLiteral("cmdCase"));
    lstFUT_->viewport()->installEventFilter(this);
    lstFUT_->installEventFilter(this);
    lstMoreFUT_->installEventFilter(this);
    Body()->installEventFilter(this);
    lstFUT_->setToolTip(
        QStringLiteral("Drag a term into the notes or a planner line, or press F2 "
                       "there to put in the picked term"));
    auto* layout = new QGridLayout(Body());
    layout->addWidget(lblFile_, 0, 0, 1, 2);
    layout->addWidget(lstFUT_, 1, 0, 1, 2);
    const QStringList captions{QStringLiteral("Add"), QStringLiteral("Edit"),
                               QStringLiteral("Remove"), kDisableAutoComplete};
    cmdOpt_ = MakeControlArray<QPushButton>(QStringLiteral("cmdOpt"), 4, [&](int i) {
        auto* button = new QPushButton(captions[i]);
        On(button, &QPushButton::clicked, "cmdOpt_Click", [this, i] { cmdOpt_Click(i); });
        return button;
    });
    layout->addWidget(cmdOpt_[0], 2, 0);
    layout->addWidget(cmdOpt_[1], 2, 1);
    layout->addWidget(cmdOpt_[2], 3, 0);
    layout->addWidget(cmdCase_, 3, 1);
    layout->addWidget(cmdOpt_[3], 4, 0, 1, 2);
    layout->addWidget(lstMoreFUT_, 5, 0, 1, 2);
    layout->setRowStretch(1, 3);
    layout->setRowStretch(5, 1);
    On(cmdCase_, &QPushButton::clicked, "cmdCase_Click", [this] { cmdCase_Click(); });
    On(lstMoreFUT_, &QListWidget::itemClicked, "lstMoreFUT_Click", [this] { lstMoreFUT_Click(); });
    connect(lstFUT_, &QListWidget::itemDoubleClicked, this,
            [this] { services_.Trap("cmdOpt_Click", [this] { cmdOpt_Click(1); }); });
    Body()->setMinimumSize(kMinWidth - 20, kMinHeight - 60);
}

QSize frmFUT::sizeHint() const {
    return QSize(240, 420);
}

void frmFUT::Form_Load() {
    services_.Trap("Form_Load", [this] {
        ReadFrequentlyUsedTerms();
        ShowAutoCompleteCaption();
        LoadPosition();
    });
}

void frmFUT::ReadFrequentlyUsedTerms() {
    lstFUT_->clear();
    lblFile_->setText(kTermFileCaption + u' ' + context_.terms.CurrentFile());
    if (context_.terms.ReadFrequentlyUsedTerms())
        lstFUT_->addItems(context_.terms.Terms());
}

QString frmFUT::SelectedTerm() const {
    const QListWidgetItem* item = lstFUT_->currentItem();
    return item && item->isSelected() ? item->text() : QString();
}

QStringList frmFUT::ListedTerms() const {
    QStringList list;
    for (int row = 0; row < lstFUT_->count(); ++row)
        list.append(lstFUT_->item(row)->text());
    return list;
}

// The list on show only ever changes after its file took the change: a term with a character
// the file cannot hold, or a write that failed, leaves the list as the file has it (and the
// term in the editor), so that the next change is saved as usual.
bool frmFUT::SaveTerms(const QStringList& list) {
    // The last term removed empties the file: the user asked for the list to be empty.
    if (list.isEmpty())
        return context_.terms.ClearFrequentlyUsedTerms();
    return context_.terms.SaveFrequentlyUsedTerms(list);
}

void frmFUT::mnuFileSave_Click() {
    context_.terms.SaveFrequentlyUsedTerms(ListedTerms());
}

bool frmFUT::SaveEditedTerm(const QString& term) {
    QStringList list = ListedTerms();
    const bool editing = editRow_ >= 0 && editRow_ < list.size();
    const int row = editing ? editRow_ : int(list.size());
    if (editing)
        list[row] = term;
    else
        list.append(term);
    if (!SaveTerms(list))
        return false;
    if (editing)
        lstFUT_->item(row)->setText(term);
    else
        lstFUT_->addItem(term);
    lstFUT_->setCurrentRow(row);
    // "Save and Continue" goes on with new terms.
    editRow_ = -1;
    return true;
}

void frmFUT::OpenEditor(const QString& term) {
    auto save = [this](const QString& t) { return SaveEditedTerm(t); };
    auto* editor = static_cast<frmEditFUT*>(context_.frame.ShowChild(
        QString::fromLatin1(frmEditFUT::kName), [&] { return new frmEditFUT(services_, save); }));
    editor->Start(term, save);
}

void frmFUT::AddTerm(const QString& term) {
    editRow_ = -1;
    OpenEditor(term);
}

void frmFUT::cmdOpt_Click(int index) {
    if (index == 0) {
        AddTerm({});
        return;
    }
    if (index == 3) {
        context_.boxes.SetAutoComplete(!context_.boxes.AutoComplete());
        ShowAutoCompleteCaption();
        return;
    }
    const int row = SelectedTerm().isNull() ? -1 : lstFUT_->currentRow();
    if (row < 0) {
        services_.dialogs.MsgBox(index == 1 ? kNothingToEdit : kNothingToRemove);
        return;
    }
    if (index == 1) {
        editRow_ = row;
        OpenEditor(lstFUT_->item(row)->text());
        return;
    }
    QStringList list = ListedTerms();
    list.removeAt(row);
    if (SaveTerms(list))
        delete lstFUT_->takeItem(row);
}

void frmFUT::PreferencesChanged() {
    ReadFrequentlyUsedTerms();
    ShowAutoCompleteCaption();
}

void frmFUT::ShowAutoCompleteCaption() {
    cmdOpt_[3]->setText(context_.boxes.AutoComplete() ? kDisableAutoComplete : kEnableAutoComplete);
}

void frmFUT::cmdCase_Click() {
    const int row = SelectedTerm().isNull() ? -1 : lstFUT_->currentRow();
    if (row < 0) {
        services_.dialogs.MsgBox(kNothingToEdit);
        return;
    }
    QStringList list = ListedTerms();
    list[row] = NextLetterCase(list[row]);
    if (SaveTerms(list))
        lstFUT_->item(row)->setText(list[row]);
}

void frmFUT::mnuEditClear_Click() {
    if (lstFUT_->count() == 0) {
        services_.dialogs.MsgBox(kNothingToClear);
        return;
    }
    if (services_.dialogs.MsgBox(kClearQuestion, kQuestionStyle, kClearTitle) != vb::Yes)
        return;
    if (context_.terms.ClearFrequentlyUsedTerms())
        lstFUT_->clear();
}

void frmFUT::SwitchTo(const QString& name) {
    context_.terms.SetCurrentFile(name);
    ReadFrequentlyUsedTerms();
}

void frmFUT::mnuFileDefaultFUT_Click() {
    SwitchTo(kDefaultTermFile);
}

void frmFUT::mnuFileDelete_Click() {
    const QString name = context_.terms.CurrentFile();
    if (context_.terms.IsDefault()) {
        services_.dialogs.MsgBox(kCannotDeleteDefault);
        return;
    }
    if (name.isEmpty()) {
        services_.dialogs.MsgBox(kNoFileToDelete);
        return;
    }
    QString path;
    if (!FileExists(services_.AppFolder, name, &path)) {
        services_.dialogs.MsgBox(kDeleteFileNotFound);
        return;
    }
    if (services_.dialogs.MsgBox(DeleteTermFileQuestion(name), kQuestionStyle, kDeleteFileTitle) !=
        vb::Yes)
        return;
    ClearAttributes(path);
    if (!QFile::remove(path))
        Raise(err::PermissionDenied);
    SwitchTo(kDefaultTermFile);
    if (lstMoreFUT_->count() > 0)
        mnuFileShowAll_Click();
}

void frmFUT::mnuFileNewFUT_Click() {
    if (context_.terms.CreateNewFUTFile())
        ReadFrequentlyUsedTerms();
}

void frmFUT::mnuFileOpenFUT_Click() {
    const QString path = services_.dialogs.OpenFileName(
        kOpenTermFileTitle, services_.AppFolder,
        QStringLiteral("Frequent Terms Files (*") + kTermFileExtension + u')');
    if (path.isEmpty())
        return;
    if (QFileInfo(path).absolutePath() != QFileInfo(services_.AppFolder).absolutePath() ||
        !path.endsWith(kTermFileExtension, Qt::CaseInsensitive)) {
        services_.dialogs.MsgBox(kTermFileNotFound);
        return;
    }
    SwitchTo(QFileInfo(path).fileName());
}

void frmFUT::mnuFileShowAll_Click() {
    lstMoreFUT_->clear();
    const QStringList files = context_.terms.TermFiles();
    if (files.isEmpty()) {
        services_.dialogs.MsgBox(kNoTermFiles);
        return;
    }
    lstMoreFUT_->addItems(files);
}

void frmFUT::lstMoreFUT_Click() {
    const QListWidgetItem* item = lstMoreFUT_->currentItem();
    if (!item || !item->isSelected()) {
        services_.dialogs.MsgBox(kNoListSelected);
        return;
    }
    SwitchTo(item->text());
}

// ---- the window's place ------------------------------------------------------------------

QWidget* frmFUT::Frame() const {
    auto* sub = qobject_cast<QMdiSubWindow*>(parentWidget());
    return sub ? static_cast<QWidget*>(sub) : const_cast<frmFUT*>(this);
}

void frmFUT::DockThisWindow() {
    QWidget* frame = Frame();
    QWidget* area = frame->parentWidget();
    const QSize room = area ? area->size() : frame->size();
    const int width = std::max(kMinWidth, std::min(frame->width(), room.width() / 3));
    QRect place(room.width() - width, 0, width, std::max(kMinHeight, room.height()));
    // Beside a calendar window that leaves room at its right, as tall as the calendar; over the
    // right edge of a calendar that fills the main window.
    QWidget* calendar = context_.calendar ? context_.calendar() : nullptr;
    auto* calendarFrame =
        calendar ? qobject_cast<QMdiSubWindow*>(calendar->parentWidget()) : nullptr;
    if (calendarFrame && calendarFrame->parentWidget() == area && !calendarFrame->isMaximized() &&
        !calendarFrame->isMinimized()) {
        const QRect beside = calendarFrame->geometry();
        if (beside.right() + 1 + width <= room.width())
            place = QRect(beside.right() + 1, beside.top(), width,
                          std::max(kMinHeight, beside.height()));
    }
    positioning_ = true;
    frame->setGeometry(place);
    positioning_ = false;
}

void frmFUT::LoadPosition() {
    const QRect saved = FutPositionGeometry(context_.prefs.Value(prefkey::FutPosition));
    if (context_.prefs.Value(prefkey::LoadFutPosition) == u"True" && saved.isValid() &&
        saved.width() >= kMinWidth && saved.height() >= kMinHeight) {
        positioning_ = true;
        Frame()->setGeometry(saved);
        positioning_ = false;
        return;
    }
    DockThisWindow();
}

void frmFUT::mnuWindowSavePosition_Click() {
    context_.prefs.SetValue(prefkey::FutPosition, FutPositionValue(Frame()->geometry()));
    context_.prefs.SaveUserPreferences(services_);
}

void frmFUT::Form_DblClick() {
    const QRect g = Frame()->geometry();
    services_.dialogs.MsgBox(QStringLiteral("Left = %1: Top = %2: Width = %3: Height = %4")
                                 .arg(g.x())
                                 .arg(g.y())
                                 .arg(g.width())
                                 .arg(g.height()));
}

void frmFUT::PositionControls() {
    // The grid lays the lists out to fill the window; the term list takes most of the height.
    Body()->layout()->activate();
}

void frmFUT::resizeEvent(QResizeEvent* event) {
    ChildWindow::resizeEvent(event);
    QWidget* frame = Frame();
    const bool userResize = !positioning_ && isVisible() && !frame->isMinimized();
    if (userResize && (frame->width() < kMinWidth || frame->height() < kMinHeight)) {
        positioning_ = true;
        frame->resize(std::max(kMinWidth, frame->width()), std::max(kMinHeight, frame->height()));
        positioning_ = false;
        services_.Trap("Form_Resize", [this] { services_.dialogs.MsgBox(kResizeTooSmall); });
        return;
    }
    PositionControls();
}

// ---- the term list: keys and dragging ----------------------------------------------------

void frmFUT::lstFUT_KeyDown(int key) {
    if (key == Qt::Key_Delete)
        cmdOpt_Click(2);
    else if (key == Qt::Key_Insert)
        cmdOpt_Click(0);
}

void frmFUT::lstFUT_MouseDown(const QPoint& at) {
    const QListWidgetItem* item = lstFUT_->itemAt(at);
    dragFrom_ = item ? lstFUT_->row(item) : -1;
    dragStart_ = at;
}

void frmFUT::lstFUT_MouseMove(const QPoint& at, Qt::MouseButtons buttons) {
    if (dragFrom_ < 0 || !(buttons & Qt::LeftButton) ||
        (at - dragStart_).manhattanLength() < QApplication::startDragDistance())
        return;
    const QString term = lstFUT_->item(dragFrom_)->text();
    dragFrom_ = -1;
    auto* drag = new QDrag(lstFUT_);
    drag->setMimeData(TermBoxes::DragData(term));
    drag->exec(Qt::CopyAction);
}

bool frmFUT::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (watched == lstFUT_->viewport()) {
        auto* mouse = static_cast<QMouseEvent*>(event);
        if (type == QEvent::MouseButtonPress && mouse->button() == Qt::LeftButton)
            services_.Trap("lstFUT_MouseDown",
                           [&] { lstFUT_MouseDown(mouse->position().toPoint()); });
        else if (type == QEvent::MouseMove)
            services_.Trap("lstFUT_MouseMove", [&] {
                lstFUT_MouseMove(mouse->position().toPoint(), mouse->buttons());
            });
        else if (type == QEvent::MouseButtonRelease)
            lstFUT_MouseUp();
    } else if (type == QEvent::KeyPress && watched == lstFUT_) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        services_.Trap("lstFUT_KeyDown", [&] { lstFUT_KeyDown(key); });
    } else if (type == QEvent::KeyPress && watched == lstMoreFUT_) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            services_.Trap("lstMoreFUT_KeyDown", [this] { lstMoreFUT_Click(); });
            return true;
        }
    } else if (type == QEvent::MouseButtonDblClick && watched == Body()) {
        services_.Trap("Form_DblClick", [this] { Form_DblClick(); });
        return true;
    }
    return ChildWindow::eventFilter(watched, event);
}
