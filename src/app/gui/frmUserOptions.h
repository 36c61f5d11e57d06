#pragma once

#include <QHash>
#include <QStringList>
#include <functional>

#include "shell/gui/ChildWindow.h"

class QComboBox;
class QFormLayout;
class UserPreferences;
class frmMain;
class modFUT;
struct ProgramState;

// The user's settings, one control for each setting of "UserPreferences.txt" that a user sets
// by hand: the company's details, the shared directory, the default printer, the term
// options, the network share drive, the mileage rate and the calendar time zone. OK checks
// and saves them and closes; Cancel (or Esc) closes, asking first about changes. Only the
// settings whose control was changed are written, so a setting shown as its default stays as
// it was in the file, and lines the window does not know are kept.
class frmUserOptions : public ChildWindow {
    Q_OBJECT
public:
    static constexpr const char* kName = "frmUserOptions";

    // saved: told which settings were written, after they were.
    frmUserOptions(Services& services, UserPreferences& prefs, const modFUT& terms,
                   std::function<void(const QStringList&)> saved = {});

    // The control that edits key, and the value the window would save for it.
    QWidget* ControlOf(const QString& key) const;
    QString ValueOf(const QString& key) const;
    bool IsChanged() const;

    // Checks the values and saves them; false (with its message, nothing written) when one is
    // refused.
    bool cmdOK_Click();
    void cmdBrowse_Click();

protected:
    bool Form_QueryUnload() override;
    bool AsksWhenProgramCloses() const override { return true; }

private:
    void AddField(QFormLayout* form, const QString& key, const QString& caption, QWidget* control,
                  QWidget* extra = nullptr);
    QComboBox* PrinterList() const;
    QComboBox* TermFileList(const modFUT& terms) const;
    QComboBox* TimeZoneList() const;
    // Puts the saved values into the controls and remembers them as the unchanged ones.
    void ShowValues();
    void SetValue(const QString& key, const QString& value);
    // The message refusing the values, or empty when they may be saved.
    QString Refusal() const;

    UserPreferences& prefs_;
    QHash<QString, QWidget*> controls_;
    QStringList keys_;
    QHash<QString, QString> shown_;
    bool saved_ = false;
    std::function<void(const QStringList&)> afterSave_;
};

// Opens the window from the Options menu's "User Options"; saved is told which settings a save
// wrote.
void ConnectUserOptions(frmMain& frame, ProgramState& state,
                        std::function<void(const QStringList&)> saved);
