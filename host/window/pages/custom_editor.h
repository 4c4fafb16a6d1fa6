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

// Where the values of a custom choice are typed: width, height and unit of a size; otherwise a field for each
// value, with its range. Keeps what is typed; its owner marks the choice.
class CustomEditor : public QWidget
{
    Q_OBJECT
public:
    // `option` is what the user knows the option as.
    CustomEditor(const CustomChoice &custom, const QString &option, QWidget *parent = nullptr);

    // Shows the values of a choice; what is no choice of this kind leaves the fields as they are.
    void setChoice(const QString &choice);
    QString choice() const;
    // What is wrong with what was typed, in a user's words; null when nothing is.
    QString problem() const;
    // Marks what is asked for as missing, until the next key, and puts the cursor there.
    void showProblem();

Q_SIGNALS:
    void edited();

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
    void colourHint(bool wrong);

    CustomChoice m_custom;
    QString m_option;
    QString m_shown; // the choice that was set, while nothing has been typed since
    QGridLayout *m_grid;
    QList<Field> m_fields;
    QList<QDoubleSpinBox *> m_sides; // of a size
    QComboBox *m_unit = nullptr;
    QString m_currentUnit;
    QLabel *m_hint;
};

} // namespace host
