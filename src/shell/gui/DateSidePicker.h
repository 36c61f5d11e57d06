#pragma once

#include <QDate>
#include <QList>
#include <QWidget>

class QComboBox;
class QLineEdit;

// One end of a period, as the report and date calculator windows let the user choose it: a
// month, a day and a year list (cmbMonth_n, cmbDay_n, cmbYear_n, n the side) under a caption,
// and a box (txtInput_n) that shows the date picked or takes one typed. A pick in a list shows
// its date in the box as "mmm dd, yyyy" (a day the month lacks, such as February 31, stays as
// picked, to be refused later); leaving the box sets the lists from the date typed.
class DateSidePicker : public QWidget {
    Q_OBJECT
public:
    // years: the years listed (a year typed that the list lacks joins it); twoDigitDays: the
    // days listed as "01" ... "31" rather than "1" ... "31".
    DateSidePicker(int side, const QString& choose, const QString& below, const QList<int>& years,
                   bool twoDigitDays);

    QLineEdit* input() const { return txtInput_; }
    QComboBox* monthList() const { return cmbMonth_; }
    // The year chosen in the year list.
    int ListedYear() const;
    // The date typed in the box, a two-digit year taken nearest the listed year; invalid when
    // the text is not a date.
    QDate TypedDate() const;
    // Sets the lists from the date typed and gives it; lists unchanged when it is not a date.
    QDate TakeTypedDate();

signals:
    // The box lost the keyboard: the lists follow the date typed.
    void typedDateTaken(const QDate& date);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ShowPickedDate();
    void SelectYear(int year);

    QComboBox* cmbMonth_;
    QComboBox* cmbDay_;
    QComboBox* cmbYear_;
    QLineEdit* txtInput_;
};
