#include "notes_planner/UnsavedWork.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "shell/SafeSave.h"
#include "shell/Services.h"
#include "shell/VbError.h"

namespace {

const QString kNotes = QStringLiteral("notes");
const QString kPlanner = QStringLiteral("planner");

template <class Array>
QJsonArray ToJson(const Array& values) {
    QJsonArray array;
    for (const auto& value : values)
        array.append(value);
    return array;
}

template <class Array, class Convert>
void FromJson(const QJsonValue& json, Array& values, Convert convert) {
    const QJsonArray array = json.toArray();
    for (qsizetype i = 0; i < qMin<qsizetype>(array.size(), values.size()); ++i)
        values[i] = convert(array[i]);
}

QJsonObject ToJson(const UnsavedEdit& edit, bool planner) {
    QJsonObject object{{"date", edit.date.toString(Qt::ISODate)}, {"offered", edit.offered}};
    if (!edit.externalFile.isEmpty())
        object.insert("file", edit.externalFile);
    if (!planner) {
        object.insert("text", edit.noteText);
        return object;
    }
    object.insert("slots", ToJson(edit.page.slotTexts));
    object.insert("times", ToJson(edit.page.times));
    object.insert("bold", ToJson(edit.page.bold));
    object.insert("done", ToJson(edit.page.done));
    return object;
}

std::optional<UnsavedEdit> EditOf(const QJsonValue& json, bool planner) {
    const QJsonObject object = json.toObject();
    UnsavedEdit edit;
    edit.date = QDate::fromString(object.value("date").toString(), Qt::ISODate);
    if (!edit.date.isValid())
        return std::nullopt;
    edit.offered = object.value("offered").toBool();
    edit.externalFile = object.value("file").toString();
    if (!planner) {
        edit.noteText = object.value("text").toString();
        return edit;
    }
    const auto text = [](const QJsonValue& value) { return value.toString(); };
    const auto flag = [](const QJsonValue& value) { return value.toBool(); };
    FromJson(object.value("slots"), edit.page.slotTexts, text);
    FromJson(object.value("times"), edit.page.times, text);
    FromJson(object.value("bold"), edit.page.bold, flag);
    FromJson(object.value("done"), edit.page.done, flag);
    return edit;
}

}  // namespace

QByteArray FormatUnsavedEdits(const UnsavedEdits& edits) {
    QJsonObject object;
    if (edits.notes)
        object.insert(kNotes, ToJson(*edits.notes, false));
    if (edits.planner)
        object.insert(kPlanner, ToJson(*edits.planner, true));
    return QJsonDocument(object).toJson();
}

UnsavedEdits ParseUnsavedEdits(const QByteArray& bytes) {
    const QJsonObject object = QJsonDocument::fromJson(bytes).object();
    return {EditOf(object.value(kNotes), false), EditOf(object.value(kPlanner), true)};
}

UnsavedWork::UnsavedWork(Services& services) : services_(services) {
    QFile file(services_.PathOf(kTempRecordFile));
    if (file.open(QIODevice::ReadOnly))
        edits_ = ParseUnsavedEdits(file.readAll());
}

void UnsavedWork::Keep(EditorKind kind, const UnsavedEdit& edit) {
    edits_[kind] = edit;
    Write();
}

void UnsavedWork::Forget(EditorKind kind) {
    if (!edits_[kind])
        return;
    edits_[kind].reset();
    Write();
}

std::optional<UnsavedEdit> UnsavedWork::Leftover(EditorKind kind) const {
    return edits_[kind];
}

void UnsavedWork::MarkOffered(EditorKind kind) {
    if (!edits_[kind] || edits_[kind]->offered)
        return;
    edits_[kind]->offered = true;
    Write();
}

void UnsavedWork::Write() {
    const QString path = services_.PathOf(kTempRecordFile);
    if (!edits_.notes && !edits_.planner) {
        QFile::remove(path);
        return;
    }
    try {
        safesave::Replace(path, FormatUnsavedEdits(edits_));
    } catch (const VbError&) {
        // The editor still holds the text; only the safety copy is missing.
    }
}
