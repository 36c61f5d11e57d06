#include "calendar/gui/frmMarkerColors.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "calendar/gui/MarkerSwatch.h"
#include "shell/Services.h"
#include "shell/gui/Controls.h"

namespace {

constexpr int kCaptionLength = 40;

}  // namespace

frmMarkerColors::frmMarkerColors(MarkerColors& colors, Services& services,
                                 std::function<void()> saved, QWidget* parent)
    : QWidget(parent),
      colors_(colors),
      services_(services),
      saved_(std::move(saved)),
      pending_(colors.entries()) {
    setWindowTitle(QStringLiteral("Select Colors and Captions for Markers"));
    auto* layout = new QVBoxLayout(this);
    auto* grid = new QGridLayout;
    grid->addWidget(new QLabel(QStringLiteral("Caption")), 0, 1);
    grid->addWidget(new QLabel(QStringLiteral("Colour")), 0, 2);
    for (int i = 0; i < MarkerColors::kCount; ++i) {
        grid->addWidget(new QLabel(QString::number(i + 1) + QLatin1Char('.')), i + 1, 0);
        auto* caption = new QLineEdit;
        caption->setObjectName(ArrayName(QStringLiteral("txtCaption"), i));
        caption->setMaxLength(kCaptionLength);
        connect(caption, &QLineEdit::textEdited, this,
                [this, i](const QString& text) { pending_[i].caption = text; });
        auto* color = new QPushButton(QStringLiteral("Change..."));
        color->setObjectName(ArrayName(QStringLiteral("cmdColor"), i));
        connect(color, &QPushButton::clicked, this, [this, i] { cmdColor_Click(i); });
        captions_.append(caption);
        colorButtons_.append(color);
        grid->addWidget(caption, i + 1, 1);
        grid->addWidget(color, i + 1, 2);
    }
    layout->addLayout(grid);
    layout->addWidget(new QLabel(kMarkedDaysKeepColourNote));

    auto* buttons = new QHBoxLayout;
    auto* defaults = new QPushButton(QStringLiteral("Restore &Defaults"));
    defaults->setObjectName(QStringLiteral("cmdDefaults"));
    connect(defaults, &QPushButton::clicked, this, &frmMarkerColors::cmdDefaults_Click);
    buttons->addWidget(defaults);
    buttons->addStretch(1);
    auto* save = new QPushButton(QStringLiteral("&Save"));
    save->setObjectName(QStringLiteral("cmdSave"));
    save->setDefault(true);
    connect(save, &QPushButton::clicked, this, &frmMarkerColors::cmdSave_Click);
    auto* cancel = new QPushButton(QStringLiteral("Cancel"));
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    connect(cancel, &QPushButton::clicked, this, &frmMarkerColors::CloseWindow);
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
            services_.dialogs.MsgBox(DuplicateColorMessage(pending_[other].caption),
                                     vb::OKOnly | vb::Exclamation);
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
        services_.dialogs.MsgBox(*refusal, vb::OKOnly | vb::Exclamation);
        return;
    }
    colors_.SaveMarkerColors(services_);
    saved_();
    CloseWindow();
}

void frmMarkerColors::CloseWindow() {
    if (parentWidget())
        parentWidget()->close();
    else
        close();
}
