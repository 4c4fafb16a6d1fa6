// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/choice_box.h"

#include <QVariant>

// A pop-up of names reported by the device, each with the device's number for it. A selected number without a
// name gets a separate item and stays selected. Only the user changes the selection. A name is shown on one
// line, elided if it is too long, and in full in the tooltip.
class QVProfilePopUp_M880 : public platform::ChoiceBox
{
    Q_OBJECT
    // A list of strings, shown as plain text; null is empty.
    Q_PROPERTY(QVariant profileNames READ profileNames WRITE setProfileNames)
    // The device's numbers of the names, in the same order. Null, or a list that is too short, is continued
    // by counting.
    Q_PROPERTY(QVariant profileRows READ profileRows WRITE setProfileRows)
    // A number of the device; null if there is none.
    Q_PROPERTY(QVariant selectedProfile READ selectedProfile WRITE setSelectedProfile NOTIFY profileChosen)
    // The text for a number without a name, with "%1" for the number.
    Q_PROPERTY(QString unnamedText READ unnamedText WRITE setUnnamedText)
public:
    explicit QVProfilePopUp_M880(QWidget *parent = nullptr);

    QVariant profileNames() const { return m_names; }
    void setProfileNames(const QVariant &names);
    QVariant profileRows() const { return m_rows; }
    void setProfileRows(const QVariant &rows);
    QVariant selectedProfile() const { return m_selected; }
    void setSelectedProfile(const QVariant &number);
    QString unnamedText() const { return m_unnamedText; }
    void setUnnamedText(const QString &text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    void profileChosen();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void choose(int index);
    void rebuild();
    QString elided(const QString &text) const;

    QVariant m_names;
    QVariant m_rows;
    QVariant m_selected;
    QString m_unnamedText = QStringLiteral("%1");
};
