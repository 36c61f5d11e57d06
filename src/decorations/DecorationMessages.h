#pragma once

#include <QString>

#include "shell/Dialogs.h"

// The messages and captions of the icon library, the monthly icons and the calendar template.

// ---- the icon library ----------------------------------------------------------------------
inline const QString kIconTagsFile = QStringLiteral("Icon Tags.dat");
inline const QString kImagesFolder = QStringLiteral("Images");
inline const QString kIconsCaption = QStringLiteral("Insertable Icons");
inline const QString kInsertIconsCaption = QStringLiteral("View Insertable Icons");
inline const QString kIconsSaved = QStringLiteral("Icon List Saved.");
inline const QString kNewIconCaptionPrompt =
    QStringLiteral("Enter a caption for the new icon. It is shown when the mouse rests on it.");
inline const QString kNewIconCaptionTitle = QStringLiteral("Adding an Icon");
inline const QString kPickPictureCaption = QStringLiteral("Choose a Picture for the New Icon");
inline const QString kPictureFilter =
    QStringLiteral("Pictures (*.png *.ico *.svg *.PNG *.ICO *.SVG);;All Files (*)");
inline const QString kPictureUnreadable =
    QStringLiteral("The picture could not be read. Choose a PNG, ICO or SVG file.");
inline const QString kEmptyCaption = QStringLiteral("Type a caption for the icon first.");
inline const QString kChooseListedIcon = QStringLiteral("Select an icon in the list first.");
inline const QString kRemoveIconTitle = QStringLiteral("Removing an Icon");
inline QString RemoveIconQuestion(const QString& caption) {
    return QStringLiteral("Remove the icon \"") + caption +
           QStringLiteral(
               "\" from the list of insertable icons? Days that already show it keep "
               "it.");
}

// ---- the monthly icons and the template ------------------------------------------------------
inline const QString kTemplateFile = QStringLiteral("Template.dat");
inline const QString kMonthIconsSuffix = QStringLiteral("_Icons.dat");
inline const QString kTemplateStandard = QStringLiteral("Template = Standard");
inline const QString kTemplateModifying = QStringLiteral("Template = Modifying Template");
inline const QString kMonthIconsSaved = QStringLiteral("This Month's Icons Saved.");
inline const QString kTemplateSaved = QStringLiteral("Calendar Template Saved.");
inline const QString kRemoveIconsQuestion = QStringLiteral(
    "Proceeding with this action will remove all icons for the entire month. Continue?");
inline const QString kRemoveIconsTitle = QStringLiteral("Preparing to remove all Icons");
inline const QString kNoIconSelected =
    QStringLiteral("Click an icon on the 1 month calendar first, then remove it.");
inline const QString kTemplateIconMessage = QStringLiteral(
    "This icon belongs to the calendar template. Use Create/Modify 1 Month Calendar Template "
    "to remove it.");
