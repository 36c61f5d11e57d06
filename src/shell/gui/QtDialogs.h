#pragma once

#include "shell/Dialogs.h"

class QWidget;

// The real boxes: QMessageBox, QInputDialog, QFileDialog and QColorDialog.
class QtDialogs final : public Dialogs {
public:
    // parent: the window the boxes are centred on (may be set later).
    explicit QtDialogs(QWidget* parent = nullptr) : parent_(parent) {}
    void SetParent(QWidget* parent) { parent_ = parent; }

    int MsgBox(const QString& text, int style, const QString& title) override;
    QString InputBox(const QString& prompt, const QString& title,
                     const QString& defaultText) override;
    QString OpenFileName(const QString& caption, const QString& folder,
                         const QString& filter) override;
    QString SaveFileName(const QString& caption, const QString& folder,
                         const QString& filter) override;
    QString FolderName(const QString& caption, const QString& folder) override;
    std::optional<quint32> PickColor(quint32 initial, const QString& title) override;

private:
    QWidget* parent_;
};

// The title a box gets when its caller gives none.
inline const QString kProgramName = QStringLiteral("Orvanta");
