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

// A pop-up for one PPD option of a panel. Shows the option's choices, follows the panel's value, and greys
// out the choices that conflict with the panel's other values, with the reason. Owned by its layout; the
// panel (its data source) is observed, not owned. Never changes the selection by itself.
class QVPopUpButton_M880 : public platform::ChoiceBox
{
    Q_OBJECT
    // Index of the selected item; null if no item is selected. An index outside the menu clears the
    // selection.
    Q_PROPERTY(QVariant selectedIndex READ selectedIndex WRITE setSelectedIndex NOTIFY selectedIndexChanged)
public:
    explicit QVPopUpButton_M880(QWidget *parent = nullptr);
    ~QVPopUpButton_M880() override;

    // Rebuilds menu, conflict set, observers and binding. A null panel results in an empty menu. Observers of
    // earlier calls remain. Nothing is greyed out before the first relevant change.
    void setDataSourceAndOptionName(QVPDE_M880 *panel, const QString &optionName);
    // Updates the enabled state of the items that this change can affect. Ignores notifications of this
    // pop-up's own option.
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
    // Looks up the numbers of the items and of the panel's current choices for options that can conflict with
    // this one. These numbers stay valid until the panel supports other options or the dialog has another
    // PPD.
    void takeNumbers();
    bool hasNumbers() const;
    void readChoice(CurrentChoice *other) const;
    void follow(CurrentChoice *other);
    void decide(int index);
    // Plain text that names the other option and its choice.
    QString reason(const CurrentChoice &obstacle) const;
    // Greys out an item that has an obstacle, and enables an item if it is null.
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
