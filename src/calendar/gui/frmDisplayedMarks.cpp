#include "calendar/gui/frmDisplayedMarks.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "calendar/MarkerColors.h"
#include "calendar/gui/MarkerSwatch.h"
#include "shell/Services.h"
#include "shell/gui/Controls.h"

frmDisplayedMarks::frmDisplayedMarks(MarkerColors& colors, Services& services,
                                     std::function<void()> changed, QWidget* parent)
    : QWidget(parent), colors_(colors), services_(services), changed_(std::move(changed)) {
    setWindowTitle(QStringLiteral("Select Markers to Display and Hide"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(
        QStringLiteral("Check the marks to show on the calendar; uncheck those to hide.")));
    auto* grid = new QGridLayout;
    for (int i = 0; i < MarkerColors::kCount; ++i) {
        auto* box = new QCheckBox;
        box->setObjectName(ArrayName(QStringLiteral("chkMarker"), i));
        connect(box, &QCheckBox::clicked, this, [this, i] { chkMarker_Click(i); });
        boxes_.append(box);
        grid->addWidget(box, i % 7, i / 7);
    }
    layout->addLayout(grid);

    auto* buttons = new QHBoxLayout;
    const auto button = [&](const QString& name, const QString& caption) {
        auto* created = new QPushButton(caption);
        created->setObjectName(name);
        buttons->addWidget(created);
        return created;
    };
    connect(button(QStringLiteral("cmdShowAll"), QStringLiteral("&Show All")),
            &QPushButton::clicked, this, [this] { SetAll(true); });
    connect(button(QStringLiteral("cmdHideAll"), QStringLiteral("&Hide All")),
            &QPushButton::clicked, this, [this] { SetAll(false); });
    buttons->addStretch(1);
    connect(button(QStringLiteral("cmdSave"), QStringLiteral("Save &Settings")),
            &QPushButton::clicked, this, [this] { colors_.SaveMarkerColors(services_); });
    connect(button(QStringLiteral("cmdClose"), QStringLiteral("&Close")), &QPushButton::clicked,
            this, [this] { parentWidget() ? parentWidget()->close() : close(); });
    layout->addLayout(buttons);
    Refresh();
}

void frmDisplayedMarks::Refresh() {
    for (int i = 0; i < boxes_.size(); ++i) {
        boxes_[i]->setText(colors_.Caption(i));
        boxes_[i]->setIcon(MarkerSwatch(colors_.Color(i)));
        boxes_[i]->setChecked(!colors_.Hidden(i));
    }
}

void frmDisplayedMarks::chkMarker_Click(int index) {
    colors_.SetHidden(index, !boxes_[index]->isChecked());
    changed_();
}

void frmDisplayedMarks::SetAll(bool shown) {
    shown ? colors_.ShowAll() : colors_.HideAll();
    Refresh();
    changed_();
}
