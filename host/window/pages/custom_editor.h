// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/ppd_custom.h"

#include <QList>
#include <QWidget>

#include <functional>

class QComboBox;
class QDoubleSpinBox;
class QGridLayout;
class QLabel;

namespace host {

// Fields for the values of a custom choice: width, height and unit of a size; otherwise one field for each
// value, with its range. Keeps the input; its owner marks the choice.
class CustomEditor : public QWidget
{
    Q_OBJECT
public:
    // `option` is the display name of the option.
    CustomEditor(const CustomChoice &custom, const QString &option, QWidget *parent = nullptr);

    // Shows the values of a choice. If it is not a valid custom choice, the fields do not change.
    void setChoice(const QString &choice);
    QString choice() const;
    // The localised problem with the input; null if there is none.
    QString problem() const;
    // Shows and announces the problem until a value is edited, and moves the focus to the value.
    void showProblem();

Q_SIGNALS:
    // A value has changed, with each key that is typed.
    void edited();
    // The user has left a field, pressed Return in it, or chosen a unit.
    void editingFinished();

private:
    struct Field
    {
        QWidget *widget;
        std::function<QString()> value;
        std::function<void(const QString &)> setValue;
        bool isNumber = false;
    };
    void addSize();
    void addParameter(const CustomParameter &parameter);
    Field wholeField(const CustomParameter &parameter);
    Field numberField(const CustomParameter &parameter);
    Field textField(const CustomParameter &parameter);
    void changeUnit();
    void setRanges();
    void fieldEdited();
    qsizetype invalidField() const;
    void hideProblem();
    void colorHint(bool wrong);

    CustomChoice m_custom;
    QString m_option;
    QString m_shown; // the choice that was set, until the user types
    QGridLayout *m_grid;
    QList<Field> m_fields;
    QList<QDoubleSpinBox *> m_sides; // width and height of a size
    QComboBox *m_unit = nullptr;
    QString m_currentUnit;
    QLabel *m_hint;
    QLabel *m_problem; // replaces the hint while it is shown
};

} // namespace host
