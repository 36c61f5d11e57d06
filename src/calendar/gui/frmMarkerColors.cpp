#include "calendar/gui/frmMarkerColors.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "calendar/CalendarMessages.h"
#include "calendar/gui/MarkerSwatch.h"

namespace {

constexpr int kCaptionLength = 40;

QPushButton* Button(const QString& name, const QString& caption) {
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    return button;
}

}  // namespace

frmMarkerColors::frmMarkerColors(MarkerColors& colors, Services& services,
                                 std::function<void()> saved, QWidget* parent)
    : ChildWindow(services, QStringLiteral("frmMarkerColors"),
                  QStringLiteral("Select Colors and Captions for Markers"), parent),
      colors_(colors),
      saved_(std::move(saved)),
      pending_(colors.entries()) {
    auto* layout = new QVBoxLayout(Body());
    auto* grid = new QGridLayout;
    grid->addWidget(new QLabel(QStringLiteral("Caption")), 0, 1);
    grid->addWidget(new QLabel(QStringLiteral("Colour")), 0, 2);
    captions_ = MakeControlArray<QLineEdit>(QStringLiteral("txtCaption"), MarkerColors::kCount,
                                            [](int) { return new QLineEdit; });
    colorButtons_ = MakeControlArray<QPushButton>(
        QStringLiteral("cmdColor"), MarkerColors::kCount,
        [](int) { return new QPushButton(QStringLiteral("Change...")); });
    for (int i = 0; i < MarkerColors::kCount; ++i) {
        auto* number = new QLabel(QString::number(i + 1) + QLatin1Char('.'));
        number->setBuddy(captions_[i]);
        captions_[i]->setMaxLength(kCaptionLength);
        connect(captions_[i], &QLineEdit::textEdited, this,
                [this, i](const QString& text) { pending_[i].caption = text; });
        On(colorButtons_[i], &QPushButton::clicked, "cmdColor_Click",
           [this, i] { cmdColor_Click(i); });
        grid->addWidget(number, i + 1, 0);
        grid->addWidget(captions_[i], i + 1, 1);
        grid->addWidget(colorButtons_[i], i + 1, 2);
    }
    layout->addLayout(grid);
    layout->addWidget(new QLabel(kMarkedDaysKeepColourNote));

    auto* buttons = new QHBoxLayout;
    QPushButton* defaults =
        Button(QStringLiteral("cmdDefaults"), QStringLiteral("Restore &Defaults"));
    On(defaults, &QPushButton::clicked, "cmdDefaults_Click", [this] { cmdDefaults_Click(); });
    buttons->addWidget(defaults);
    buttons->addStretch(1);
    QPushButton* save = Button(QStringLiteral("cmdSave"), QStringLiteral("&Save"));
    save->setDefault(true);
    On(save, &QPushButton::clicked, "cmdSave_Click", [this] { cmdSave_Click(); });
    QPushButton* cancel = Button(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"));
    On(cancel, &QPushButton::clicked, "cmdCancel_Click", [this] { CloseWindow(); });
    buttons->addWidget(save);
    buttons->addWidget(cancel);
    layout->addLayout(buttons);
    ShowEntries();
}

void frmMarkerColors::ShowEntries() {
    for (int i = 0; i < MarkerColors::kCount; ++i) {
        captions_[i]->setText(pending_[i].caption);
        colorButtons_[i]->setIcon(MarkerSwatch(pending_[i].color));
    }
}

void frmMarkerColors::cmdColor_Click(int index) {
    const auto chosen = services_.dialogs.PickColor(
        pending_[index].color, QStringLiteral("Colour for ") + pending_[index].caption);
    if (!chosen || *chosen == pending_[index].color)
        return;
    for (int other = 0; other < MarkerColors::kCount; ++other) {
        if (other != index && pending_[other].color == *chosen) {
            services_.dialogs.MsgBox(DuplicateColorMessage(pending_[other].caption), kWarningStyle);
            return;
        }
    }
    pending_[index].color = *chosen;
    ShowEntries();
}

void frmMarkerColors::cmdDefaults_Click() {
    const MarkerColors::Entries& defaults = MarkerColors::Defaults();
    for (int i = 0; i < MarkerColors::kCount; ++i) {
        pending_[i].caption = defaults[i].caption;
        pending_[i].color = defaults[i].color;
    }
    ShowEntries();
}

void frmMarkerColors::cmdSave_Click() {
    MarkerColors::Entries edited = pending_;
    for (int i = 0; i < MarkerColors::kCount; ++i) {
        edited[i].caption = edited[i].caption.trimmed();
        edited[i].hidden = colors_.Hidden(i);
    }
    if (const auto refusal = colors_.SetCategories(edited)) {
        services_.dialogs.MsgBox(*refusal, kWarningStyle);
        return;
    }
    colors_.SaveMarkerColors(services_);
    saved_();
    CloseWindow();
}
