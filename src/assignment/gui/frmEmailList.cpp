#include "assignment/gui/frmEmailList.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "assignment/AssignmentMessages.h"
#include "assignment/modEmployeeInfo.h"
#include "shell/Prompts.h"
#include "shell/TextFile.h"
#include "shell/UserPreferences.h"

namespace {

enum Box { kNameBox = 0, kAddressBox = 1, kNoteBox = 2 };
constexpr const char* kFieldLabels[] = {"Name", "E-mail Address", "Note (such as Department)"};

QPushButton* Button(const QString& caption, const QString& name) {
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    return button;
}

// The message text box keeps line breaks as "\n"; an e-mail body and the planner copied to memory
// have CR LF.
QString WithCrLf(QString text) {
    return text.replace(QLatin1Char('\n'), kCrLf);
}

}  // namespace

frmEmailList::frmEmailList(Services& services, ContactList& contacts, const UserPreferences& prefs,
                           const QString& plannerMemory)
    : ChildWindow(services, QString::fromLatin1(kName), kEmailListCaption),
      contacts_(contacts),
      prefs_(prefs),
      plannerMemory_(plannerMemory) {
    QMenuBar* bar = MenuBar();
    QMenu* file = AddMenu(bar, QStringLiteral("&File"), QStringLiteral("mnuFile"));
    AddCommand(
        file, QStringLiteral("&New Contact"), QStringLiteral("mnuFileNew"), "mnuFileNew_Click",
        [this] { cmdNew_Click(); }, QKeySequence::New);
    QMenu* options = AddMenu(bar, QStringLiteral("&Options"), QStringLiteral("mnuOpt"));
    AddCommand(options, QStringLiteral("&Paste Planner"), QStringLiteral("mnuOptPastePlanner"),
               "mnuOptPastePlanner_Click", [this] { mnuOptPastePlanner_Click(); });
    QMenu* help = AddMenu(bar, QStringLiteral("&Help"), QStringLiteral("mnuHelp"));
    AddCommand(help, QStringLiteral("Assigning a File"), QStringLiteral("mnuHelpAssign"),
               "mnuHelpAssign_Click", [this] {
                   services_.dialogs.MsgBox(kAssignHelp, kInformationStyle, kEmailListCaption);
               });
    AddCommand(help, QStringLiteral("Assigning by E-mail"), QStringLiteral("mnuHelpAssignEmail"),
               "mnuHelpAssignEmail_Click", [this] {
                   services_.dialogs.MsgBox(kAssignEmailHelp, kInformationStyle, kEmailListCaption);
               });

    lstNames_ = new QListWidget;
    lstNames_->setObjectName(QStringLiteral("lstNames"));
    lstNames_->setFixedWidth(200);
    auto* fields = new QGridLayout;
    txt_ = MakeControlArray<QLineEdit>(QStringLiteral("txt"), 3, [&](int field) {
        auto* box = new QLineEdit;
        fields->addWidget(new QLabel(QString::fromLatin1(kFieldLabels[field])), field, 0);
        fields->addWidget(box, field, 1);
        box->installEventFilter(this);
        On(box, &QLineEdit::textChanged, "txt_Change",
           [this] { changed_ = changed_ || !showing_; });
        On(box, &QLineEdit::returnPressed, "txt_KeyDown", [this] { cmdSave_Click(); });
        return box;
    });
    auto* contactButtons = new QHBoxLayout;
    auto* cmdNew = Button(QStringLiteral("New"), QStringLiteral("cmdNew"));
    auto* cmdSave = Button(QStringLiteral("Save"), QStringLiteral("cmdSave"));
    auto* cmdDelete = Button(QStringLiteral("Delete"), QStringLiteral("cmdDelete"));
    for (QPushButton* button : {cmdNew, cmdSave, cmdDelete})
        contactButtons->addWidget(button);

    lblFile_ = new QLabel;
    lblFile_->setObjectName(QStringLiteral("lblFile"));
    lblFile_->setWordWrap(true);
    cmdAssign_ = Button(QStringLiteral("Assign"), QStringLiteral("cmdAssign"));
    txtSubject_ = new QLineEdit;
    txtSubject_->setObjectName(QStringLiteral("txtSubject"));
    txtSubject_->setPlaceholderText(kDefaultSubject);
    txtMessage_ = new QPlainTextEdit;
    txtMessage_->setObjectName(QStringLiteral("txtMessage"));
    // The message takes the height left over, so that the whole window fits the frame.
    txtMessage_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    txtMessage_->setMinimumHeight(60);
    auto* cmdOpenEmail = Button(QStringLiteral("Open E-mail"), QStringLiteral("cmdOpenEmail"));
    auto* cmdExit = Button(QStringLiteral("Exit"), QStringLiteral("cmdExit"));

    auto* right = new QVBoxLayout;
    right->addLayout(fields);
    right->addLayout(contactButtons);
    right->addWidget(lblFile_);
    right->addWidget(cmdAssign_);
    right->addWidget(new QLabel(QStringLiteral("Subject")));
    right->addWidget(txtSubject_);
    right->addWidget(new QLabel(QStringLiteral("Message")));
    right->addWidget(txtMessage_, 1);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(cmdOpenEmail);
    bottom->addStretch();
    bottom->addWidget(cmdExit);
    right->addLayout(bottom);
    auto* layout = new QHBoxLayout(Body());
    layout->addWidget(lstNames_);
    layout->addLayout(right, 1);

    On(lstNames_, &QListWidget::currentRowChanged, "lstNames_Click", [this] { lstNames_Click(); });
    On(cmdNew, &QPushButton::clicked, "cmdNew_Click", [this] { cmdNew_Click(); });
    On(cmdSave, &QPushButton::clicked, "cmdSave_Click", [this] { cmdSave_Click(); });
    On(cmdDelete, &QPushButton::clicked, "cmdDelete_Click", [this] { cmdDelete_Click(); });
    On(cmdAssign_, &QPushButton::clicked, "cmdAssign_Click", [this] { cmdAssign_Click(); });
    On(cmdOpenEmail, &QPushButton::clicked, "cmdOpenEmail_Click", [this] { cmdOpenEmail_Click(); });
    On(cmdExit, &QPushButton::clicked, "cmdExit_Click", [this] { cmdExit_Click(); });
    // The window opens on the name box: a list taking the focus first would pick its first
    // person, and a name typed then would be added with that person's address.
    setTabOrder(txt_[kNoteBox], lstNames_);
    setFocusProxy(txt_[kNameBox]);
    SetExport({});
    services_.Trap("Form_Load", [this] { Form_Load(); });
}

void frmEmailList::Form_Load() {
    contacts_.ReadEmployeeInfo();
    FillList(-1);
}

void frmEmailList::SetExport(const QString& path) {
    state_.filePath = path;
    state_.exportWaiting = !path.isEmpty();
    lblFile_->setText(path.isEmpty() ? QStringLiteral("No file is waiting to be assigned.")
                                     : QStringLiteral("File to assign: ") + path);
    cmdAssign_->setEnabled(state_.exportWaiting);
}

void frmEmailList::FillList(qsizetype selected) {
    const QSignalBlocker quiet(lstNames_);
    lstNames_->clear();
    for (const Contact& person : contacts_.People())
        lstNames_->addItem(person.name);
    lstNames_->setCurrentRow(int(selected));
    ShowFields(selected >= 0 ? &contacts_.People()[selected] : nullptr);
}

void frmEmailList::ShowFields(const Contact* person) {
    showing_ = true;
    txt_[kNameBox]->setText(person ? person->name : QString());
    txt_[kAddressBox]->setText(person ? person->address : QString());
    txt_[kNoteBox]->setText(person ? person->note : QString());
    showing_ = false;
    changed_ = false;
}

void frmEmailList::lstNames_Click() {
    const int row = lstNames_->currentRow();
    ShowFields(row >= 0 ? &contacts_.People()[row] : nullptr);
}

bool frmEmailList::cmdSave_Click() {
    const Contact person{txt_[kNameBox]->text().trimmed(), txt_[kAddressBox]->text().trimmed(),
                         txt_[kNoteBox]->text()};
    if (person.name.isEmpty()) {
        services_.dialogs.MsgBox(kNoNameToAdd);
        return false;
    }
    // The name is the person's folder on the share.
    if (IllegalFileName(services_.dialogs, person.name))
        return false;
    if (person.address.contains(u':')) {
        services_.dialogs.MsgBox(kAddressWithColon);
        return false;
    }
    if (const auto problem = ContactList::Problem(person)) {
        services_.dialogs.MsgBox(*problem, kWarningStyle);
        return false;
    }
    const qsizetype index = contacts_.Put(person);
    const bool saved = contacts_.SaveEmployeeInfo();
    FillList(index);
    return saved;
}

void frmEmailList::cmdNew_Click() {
    if (changed_ &&
        services_.dialogs.MsgBox(kFieldsChanged, kQuestionStyle, kEmailListCaption) == vb::Yes &&
        !cmdSave_Click())
        return;
    FillList(-1);
    txt_[kNameBox]->setFocus();
}

void frmEmailList::cmdDelete_Click() {
    const int row = lstNames_->currentRow();
    if (row < 0)
        return;
    const QString name = contacts_.People()[row].name;
    if (services_.dialogs.MsgBox(DeleteQuestion(name), kQuestionStyle, kDeleteTitle) != vb::Yes)
        return;
    contacts_.Remove(row);
    contacts_.SaveEmployeeInfo();
    FillList(-1);
}

// Typing not saved is offered for saving before the window closes; a save refused keeps it
// open.
bool frmEmailList::Form_QueryUnload() {
    bool close = true;
    services_.Trap("Form_Unload", [this, &close] {
        if (changed_ &&
            services_.dialogs.MsgBox(kFieldsChanged, kQuestionStyle, kEmailListCaption) == vb::Yes)
            close = cmdSave_Click();
    });
    return close;
}

void frmEmailList::cmdExit_Click() {
    CloseWindow();
}

void frmEmailList::cmdAssign_Click() {
    const int row = lstNames_->currentRow();
    if (row < 0) {
        services_.dialogs.MsgBox(kNoOneSelected);
        return;
    }
    const QString name = contacts_.People()[row].name;
    QString folder;
    try {
        folder = AssignFile(prefs_.Value(prefkey::SharedDirectory), name, state_.filePath);
    } catch (const VbError&) {
        services_.dialogs.MsgBox(kAssignFailed, kWarningStyle);
        return;
    }
    services_.dialogs.MsgBox(AssignedMessage(name, folder));
}

void frmEmailList::cmdOpenEmail_Click() {
    state_.address = txt_[kAddressBox]->text().trimmed();
    state_.subject = txtSubject_->text();
    state_.body = WithCrLf(txtMessage_->toPlainText());
    if (state_.exportWaiting && !state_.filePath.isEmpty())
        services_.dialogs.MsgBox(kAttachReminder);
    txtSubject_->setText(EmailSubject(state_));
    if (!services_.platform.OpenUrl(MailtoAddress(state_)))
        services_.dialogs.MsgBox(kEmailClientFailed, kWarningStyle);
}

void frmEmailList::mnuOptPastePlanner_Click() {
    if (plannerMemory_.isEmpty()) {
        services_.dialogs.MsgBox(kNothingToPaste, vb::OKOnly, kPasteTitle);
        return;
    }
    if (!txtMessage_->toPlainText().isEmpty() &&
        services_.dialogs.MsgBox(kOverwriteMessage, kQuestionStyle, kPasteTitle) != vb::Yes)
        return;
    txtMessage_->setPlainText(QString(plannerMemory_).replace(kCrLf, QStringLiteral("\n")));
}

// A ":" would split a name or an address in the file, so it cannot be typed into them.
bool frmEmailList::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress &&
        (watched == txt_.value(kNameBox) || watched == txt_.value(kAddressBox)) &&
        static_cast<QKeyEvent*>(event)->text() == QStringLiteral(":")) {
        services_.Trap("txt_KeyPress", [this] { services_.platform.Beep(); });
        return true;
    }
    return ChildWindow::eventFilter(watched, event);
}
