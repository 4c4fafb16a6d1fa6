// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "constraints/engine.h"
#include "platform/choice_box.h"
#include "platform/notification_center.h"

#include <QPointer>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <vector>

class QVPDEManager_M880;
class QVPDE_M880;
class QVPPD_M880;

// A pop-up for one PPD option of a panel. Shows the option's choices, follows the panel's value and greys out
// the choices that conflict with the panel's other values, saying why. Belongs to its layout;
// the panel (its data source) is watched, not owned. Never changes the selection by itself.
class QVPopUpButton_M880 : public platform::ChoiceBox
{
    Q_OBJECT
    // Index of the selected item; null when no item is selected. An index outside the menu selects none.
    Q_PROPERTY(QVariant selectedIndex READ selectedIndex WRITE setSelectedIndex NOTIFY selectedIndexChanged)
public:
    explicit QVPopUpButton_M880(QWidget *parent = nullptr);
    ~QVPopUpButton_M880() override;

    // Rebuilds menu, conflict set, observers and binding. A null panel gives an empty menu. Observers of an
    // earlier call stay. Nothing is greyed out before the first relevant change.
    void setDataSourceAndOptionName(QVPDE_M880 *panel, const QString &optionName);
    // Decides anew which items are enabled, as far as this change can affect them, unless the notification is
    // of this pop-up's own option.
    void ppdValueHasChanged(const platform::Notification &notification);

    const QString &optionName() const { return m_optionName; }
    const QSet<QString> &conflictableOptions() const { return m_conflictableOptions; }
    QVariant selectedIndex() const;
    void setSelectedIndex(const QVariant &index);

Q_SIGNALS:
    void selectedIndexChanged();

private:
    struct CurrentChoice
    {
        QString option;
        QString choice;
        constraints::Option optionNumber;
        constraints::Choice number;
    };

    void addChoice(const QVariantMap &choice);
    // Numbers the items and the panel's present choices of the options that can conflict with this one. These
    // numbers stay good until the panel serves other options or the dialog has another PPD.
    void takeNumbers();
    bool hasNumbers() const;
    void readChoice(CurrentChoice *other) const;
    void follow(CurrentChoice *other);
    void decide(int index);
    // Plain text that says which choice of which other option stands in the way.
    QString reason(const CurrentChoice &obstacle) const;
    // Greys out an item that has an obstacle, and frees one for which it is null.
    void setItemState(int index, const CurrentChoice *obstacle);

    QString m_optionName;
    QSet<QString> m_conflictableOptions;
    std::shared_ptr<const QVPPD_M880> m_numberedPpd; // null until the first change
    QStringList m_numberedOptions;
    std::vector<constraints::Choice> m_itemNumbers;
    std::vector<CurrentChoice> m_others; // in the panel's order
    std::shared_ptr<QVPDEManager_M880> m_manager;
    QPointer<QVPDE_M880> m_dataSource;
};
