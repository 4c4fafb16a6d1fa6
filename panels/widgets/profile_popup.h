// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/choice_box.h"

#include <QVariant>

// A pop-up of names that the device told, each with the number by which the device knows it. A selected
// number that no name belongs to gets an item of its own and stays selected; showing, listing anew or looking
// never changes the selection, only the user does. A name is shown on one line, cut with an ellipsis where it
// is too long, and whole in the tooltip.
class QVProfilePopUp_M880 : public platform::ChoiceBox
{
    Q_OBJECT
    // A list of strings, shown as plain text; null is empty.
    Q_PROPERTY(QVariant profileNames READ profileNames WRITE setProfileNames)
    // The device's numbers of the names, in the same order; null or a shorter list goes on counting from
    // there.
    Q_PROPERTY(QVariant profileRows READ profileRows WRITE setProfileRows)
    // A number of the device; null when there is none to show.
    Q_PROPERTY(QVariant selectedProfile READ selectedProfile WRITE setSelectedProfile NOTIFY profileChosen)
    // How a number without a name is shown, with "%1" for the number.
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
