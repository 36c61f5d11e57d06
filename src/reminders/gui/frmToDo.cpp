#include "reminders/gui/frmToDo.h"

#include <QFileInfo>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include "reminders/RemindersMessages.h"
#include "shell/DateFormats.h"
#include "shell/Prompts.h"
#include "shell/Services.h"
#include "shell/gui/Icons.h"
#include "shell/gui/Printing.h"

namespace {

const QString kCheckTip = QStringLiteral("Mark as Done or Not Done");

// The printed page: the heading, then each row under the one before it, as on the sheet, with
// its done mark.
Printer::Document ToDoDocument(const QString& heading, const ToDoRows& rows) {
    return [heading, rows](PageWriter& writer) {
        writer.SetHeading({heading}, PrintFont(QStringLiteral("Arial"), 14, true));
        writer.SetFont(PrintFont(QStringLiteral("Arial"), 11));
        for (int row = 0; row < kToDoRows; ++row) {
            writer.Hanging(rows.done[row] ? QStringLiteral("[x]") : QStringLiteral("[  ]"), 10,
                           rows.texts[row]);
            writer.Blank();
        }
    };
}

}  // namespace

frmToDo::frmToDo(Services& services, ToDoStore& store, Printer& printer)
    : ChildWindow(services, QString::fromLatin1(kName), kToDoCaption),
      store_(store),
      printer_(printer) {
    auto* column = new QVBoxLayout(Body());
    auto* lblTop = new QLabel(QStringLiteral(
        "Enter To Do information in the boxes provided below. Mark items as done in the boxes on "
        "the left or Remove them altogether with the option on the right hand side."));
    lblTop->setObjectName(QStringLiteral("lblTop"));
    lblTop->setWordWrap(true);
    column->addWidget(lblTop);
    auto* sheet = new QWidget;
    BuildRows(sheet);
    column->addWidget(sheet);
    column->addStretch(1);
    BuildMenus();
    setFocusProxy(txt_.first());
    // Form_Load: the default list as the program holds it.
    ShowRows(store_.rows());
}

void frmToDo::BuildRows(QWidget* sheet) {
    // The two pictures a done box shows, kept out of sight.
    for (const bool done : {true, false}) {
        auto* picture = new QLabel(sheet);
        picture->setObjectName(done ? QStringLiteral("imgChkBoxChecked")
                                    : QStringLiteral("imgChkBoxUnChecked"));
        picture->setPixmap(icons::CheckBox(done));
        picture->hide();
    }
    auto* grid = new QGridLayout(sheet);
    grid->setVerticalSpacing(3);
    for (int row = 0; row < kToDoRows; ++row) {
        auto* check = new QToolButton;
        check->setObjectName(ArrayName(QStringLiteral("imgChkBox"), row));
        check->setToolTip(kCheckTip);
        check->setAccessibleName(kCheckTip);
        check->setAutoRaise(true);
        check->setFocusPolicy(Qt::ClickFocus);
        On(check, &QToolButton::clicked, "imgChkBox_Click", [this, row] { imgChkBox_Click(row); });
        auto* text = new QLineEdit;
        text->setObjectName(ArrayName(QStringLiteral("txt"), row));
        text->setMinimumWidth(380);
        text->installEventFilter(this);
        On(text, &QLineEdit::textEdited, "txt_Change", [this] { changed_ = true; });
        auto* remove = new QPushButton(QStringLiteral("Remove"));
        remove->setObjectName(ArrayName(QStringLiteral("cmdDelete"), row));
        remove->setFocusPolicy(Qt::ClickFocus);
        On(remove, &QPushButton::clicked, "cmdDelete_Click", [this, row] { cmdDelete_Click(row); });
        grid->addWidget(check, row, 0);
        grid->addWidget(text, row, 1);
        grid->addWidget(remove, row, 2);
        imgChkBox_.append(check);
        txt_.append(text);
    }
}

void frmToDo::BuildMenus() {
    QMenu* file = AddMenu(MenuBar(), QStringLiteral("&File"), QStringLiteral("mnuFile"));
    AddCommand(
        file, QStringLiteral("&New"), QStringLiteral("mnuFileNew"), "mnuFileNew_Click",
        [this] { mnuFileNew_Click(); }, QKeySequence::New);
    AddCommand(
        file, QStringLiteral("Open"), QStringLiteral("mnuFileOpen"), "mnuFileOpen_Click",
        [this] { mnuFileOpen_Click(); }, QKeySequence::Open);
    AddCommand(
        file, QStringLiteral("Save"), QStringLiteral("mnuFileSave"), "mnuFileSave_Click",
        [this] { mnuFileSave_Click(); }, QKeySequence::Save);
    AddCommand(
        file, QStringLiteral("Save &As"), QStringLiteral("mnuFileSaveAs"), "mnuFileSaveAs_Click",
        [this] { mnuFileSaveAs_Click(); }, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    AddCommand(
        file, QStringLiteral("&Print"), QStringLiteral("mnuFilePrint"), "mnuFilePrint_Click",
        [this] { mnuFilePrint_Click(); }, QKeySequence::Print);
    QMenu* options = AddMenu(MenuBar(), QStringLiteral("&Options"), QStringLiteral("mnuOpt"));
    AddCommand(
        options, QStringLiteral("Move Contents Up One Line"), QStringLiteral("mnuOptMoveUp"),
        "mnuOptMoveUp_Click", [this] { mnuOptMoveUp_Click(); },
        QKeySequence(Qt::CTRL | Qt::Key_Up));
    AddCommand(
        options, QStringLiteral("Move Contents Down One Line"), QStringLiteral("mnuOptMoveDown"),
        "mnuOptMoveDown_Click", [this] { mnuOptMoveDown_Click(); },
        QKeySequence(Qt::CTRL | Qt::Key_Down));
}

bool frmToDo::eventFilter(QObject* watched, QEvent* event) {
    const int row = int(txt_.indexOf(static_cast<QLineEdit*>(watched)));
    if (row >= 0 && event->type() == QEvent::FocusIn)
        txt_GotFocus(row);
    if (row >= 0 && event->type() == QEvent::KeyPress) {
        bool handled = false;
        services_.Trap("txt_KeyDown",
                       [&] { handled = txt_KeyDown(row, *static_cast<QKeyEvent*>(event)); });
        if (handled)
            return true;
    }
    return ChildWindow::eventFilter(watched, event);
}

// The row in the keyboard is the one Move Up and Move Down move.
void frmToDo::txt_GotFocus(int row) {
    focusedRow_ = row;
}

// Up, Down and Enter go from row to row, Ctrl+Space marks the row done or not done. Returns
// whether the key was taken.
bool frmToDo::txt_KeyDown(int row, const QKeyEvent& key) {
    const bool plain = key.modifiers() == Qt::NoModifier;
    if (plain && key.key() == Qt::Key_Up && row > 0) {
        txt_[row - 1]->setFocus();
        return true;
    }
    if (plain &&
        (key.key() == Qt::Key_Down || key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter)) {
        txt_[(row + 1) % kToDoRows]->setFocus();
        return true;
    }
    if (key.key() == Qt::Key_Space && key.modifiers() == Qt::ControlModifier) {
        imgChkBox_Click(row);
        return true;
    }
    return false;
}

ToDoRows frmToDo::Rows() const {
    ToDoRows rows;
    for (int row = 0; row < kToDoRows; ++row) {
        rows.texts[row] = txt_[row]->text();
        rows.done[row] = done_[row];
    }
    return rows;
}

void frmToDo::ShowRows(const ToDoRows& rows) {
    for (int row = 0; row < kToDoRows; ++row) {
        txt_[row]->setText(rows.texts[row]);
        txt_[row]->setCursorPosition(0);
        SetDone(row, rows.done[row]);
    }
    changed_ = false;
}

void frmToDo::SetDone(int row, bool done) {
    done_[row] = done;
    const auto* picture = Control<QLabel>(done ? QStringLiteral("imgChkBoxChecked")
                                               : QStringLiteral("imgChkBoxUnChecked"));
    imgChkBox_[row]->setIcon(QIcon(picture->pixmap()));
    imgChkBox_[row]->setAccessibleDescription(done ? QStringLiteral("Done")
                                                   : QStringLiteral("Not Done"));
}

void frmToDo::imgChkBox_Click(int row) {
    SetDone(row, !done_[row]);
    changed_ = true;
}

void frmToDo::cmdDelete_Click(int row) {
    txt_[row]->clear();
    SetDone(row, false);
    changed_ = true;
}

void frmToDo::MoveRow(int step) {
    const int from = focusedRow_, to = focusedRow_ + step;
    if (to < 0 || to >= kToDoRows)
        return;
    const QString text = txt_[to]->text();
    const bool done = done_[to];
    txt_[to]->setText(txt_[from]->text());
    SetDone(to, done_[from]);
    txt_[from]->setText(text);
    SetDone(from, done);
    txt_[to]->setFocus();
    focusedRow_ = to;
    changed_ = true;
}

bool frmToDo::AskToSave() {
    if (!changed_)
        return true;
    switch (services_.dialogs.MsgBox(kToDoChangedQuestion, vb::YesNoCancel | vb::Question,
                                     kToDoChangedTitle)) {
        case vb::Yes:
            return mnuFileSave_Click();
        case vb::No:
            // The flag stays: what follows replaces or closes the rows anyway, and when it
            // does not (no list picked, the program's close called off), the changes are
            // still there to be asked about.
            return true;
        default:
            return false;
    }
}

bool frmToDo::Form_QueryUnload() {
    bool mayClose = true;
    services_.Trap("Form_QueryUnload", [&] { mayClose = AskToSave(); });
    return mayClose;
}

void frmToDo::mnuFileNew_Click() {
    if (AskToSave())
        ShowRows({});
}

void frmToDo::mnuFileOpen_Click() {
    if (!AskToSave())
        return;
    const QString path = services_.dialogs.OpenFileName(QStringLiteral("Open To Do List"),
                                                        services_.AppFolder, kToDoFilter);
    if (path.isEmpty())
        return;
    ToDoRows rows;
    store_.OpenToDoList(path, rows);
    ShowRows(rows);
    file_ = store_.IsDefaultList(path) ? QString() : path;
}

bool frmToDo::mnuFileSave_Click() {
    if (!store_.SaveToDoList(Rows(), file_))
        return false;
    changed_ = false;
    return true;
}

void frmToDo::mnuFileSaveAs_Click() {
    QString path = services_.dialogs.SaveFileName(QStringLiteral("Save To Do List As"),
                                                  services_.AppFolder, kToDoFilter);
    if (path.isEmpty() || IllegalFileName(services_.dialogs, QFileInfo(path).fileName()))
        return;
    if (QFileInfo(path).suffix().isEmpty())
        path += QStringLiteral(".dat");
    if (!store_.SaveToDoList(Rows(), path))
        return;
    file_ = store_.IsDefaultList(path) ? QString() : path;
    changed_ = false;
}

void frmToDo::mnuFilePrint_Click() {
    const QString heading = datefmt::MmmDdYyyy(services_.clock.today()) + kToDoPrintSuffix;
    printer_.Print(kToDoCaption, ToDoDocument(heading, Rows()));
}
