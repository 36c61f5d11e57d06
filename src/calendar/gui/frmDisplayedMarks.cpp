#include "calendar/gui/frmDisplayedMarks.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "calendar/MarkerColors.h"
#include "calendar/gui/MarkerSwatch.h"

frmDisplayedMarks::frmDisplayedMarks(MarkerColors& colors, Services& services,
                                     std::function<void()> changed, QWidget* parent)
    : ChildWindow(services, QStringLiteral("frmDisplayedMarks"),
                  QStringLiteral("Select Markers to Display and Hide"), parent),
      colors_(colors),
      changed_(std::move(changed)) {
    auto* layout = new QVBoxLayout(Body());
    layout->addWidget(new QLabel(
        QStringLiteral("Check the marks to show on the calendar; uncheck those to hide.")));
    auto* grid = new QGridLayout;
    boxes_ = MakeControlArray<QCheckBox>(QStringLiteral("chkMarker"), MarkerColors::kCount,
                                         [](int) { return new QCheckBox; });
    for (int i = 0; i < boxes_.size(); ++i) {
        On(boxes_[i], &QCheckBox::clicked, "chkMarker_Click", [this, i] { chkMarker_Click(i); });
        grid->addWidget(boxes_[i], i % 7, i / 7);
    }
    layout->addLayout(grid);

    auto* buttons = new QHBoxLayout;
    const auto button = [&](const QString& name, const QString& caption) {
        auto* created = new QPushButton(caption);
        created->setObjectName(name);
        buttons->addWidget(created);
        return created;
    };
    On(button(QStringLiteral("cmdShowAll"), QStringLiteral("&Show All")), &QPushButton::clicked,
       "cmdShowAll_Click", [this] { SetAll(true); });
    On(button(QStringLiteral("cmdHideAll"), QStringLiteral("&Hide All")), &QPushButton::clicked,
       "cmdHideAll_Click", [this] { SetAll(false); });
    buttons->addStretch(1);
    On(button(QStringLiteral("cmdSave"), QStringLiteral("Save &Settings")), &QPushButton::clicked,
       "cmdSave_Click", [this] { colors_.SaveMarkerColors(services_); });
    On(button(QStringLiteral("cmdClose"), QStringLiteral("&Close")), &QPushButton::clicked,
       "cmdClose_Click", [this] { CloseWindow(); });
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
