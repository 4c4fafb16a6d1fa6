// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panelkit/ppd_popup_button.h"

#include "panelkit/obstacle_text.h"
#include "panelkit/panel_base.h"
#include "platform/binding.h"
#include "plugin/manager.h"
#include "ppd/ppd_model.h"

#include <algorithm>

namespace {

const QString selectedIndexBinding = QStringLiteral("selectedIndex");

} // namespace

QVPopUpButton_M880::QVPopUpButton_M880(QWidget *parent) : ChoiceBox(parent)
{
    connect(this, &QComboBox::currentIndexChanged, this, &QVPopUpButton_M880::selectedIndexChanged);
}

QVPopUpButton_M880::~QVPopUpButton_M880()
{
    if (m_manager && m_manager->notificationCenter())
        m_manager->notificationCenter()->removeObserver(this);
}

void QVPopUpButton_M880::setDataSourceAndOptionName(QVPDE_M880 *panel, const QString &optionName)
{
    platform::Binding::unbind(this, selectedIndexBinding);
    m_optionName = optionName;
    setOptionKeyword(optionName);
    m_manager = panel ? panel->manager() : nullptr;
    m_dataSource = panel;
    clear();
    m_conflictableOptions.clear();
    m_numberedPpd.reset();
    if (panel) {
        if (m_manager)
            setWhatsThis(panel->explanationForKey(optionName));
        for (const QVariant &choice : panel->valueForKey(optionName + QStringLiteral("Choices")).toList())
            addChoice(choice.toMap());
    }
    if (m_manager && m_manager->notificationCenter()) {
        for (const QString &option : std::as_const(m_conflictableOptions)) {
            m_manager->notificationCenter()->addObserver(
                this, option, [this](const platform::Notification &change) { ppdValueHasChanged(change); });
        }
    }
    platform::Binding::bind(this, selectedIndexBinding, panel, optionName + QStringLiteral("Choice"));
}

void QVPopUpButton_M880::addChoice(const QVariantMap &choice)
{
    addItem(choice.value(QVPPDTextKey).toString(), choice);
    setItemData(count() - 1, choice.value(QVPPDChoiceKey), choiceRole);
    if (m_manager && m_manager->ppd())
        m_conflictableOptions.unite(m_manager->ppd()->conflictableOptionsForOptionWithChoice(
            m_optionName, choice.value(QVPPDChoiceKey).toString()));
}

void QVPopUpButton_M880::ppdValueHasChanged(const platform::Notification &notification)
{
    if (notification.name == m_optionName || !m_dataSource || !m_manager || !m_manager->ppd())
        return;
    if (!hasNumbers()) {
        takeNumbers();
        for (int index = 0; index < count(); ++index)
            decide(index);
        return;
    }
    // Choices of this option may conflict with each other. A change of the option itself does not update the
    // items at once, but with the next change of another option.
    for (CurrentChoice &other : m_others) {
        if (other.option == notification.name || other.option == m_optionName)
            follow(&other);
    }
}

// Only items that the previous or the current choice forbids can have changed.
void QVPopUpButton_M880::follow(CurrentChoice *other)
{
    const constraints::Choice before = other->number;
    readChoice(other);
    if (other->number == before)
        return;
    const ConstraintTable &table = m_numberedPpd->constraintTable();
    for (int index = 0; index < count(); ++index) {
        const constraints::Choice own = m_itemNumbers[size_t(index)];
        if (table.conflicts(own, before) || table.conflicts(own, other->number))
            decide(index);
    }
}

bool QVPopUpButton_M880::hasNumbers() const
{
    return m_numberedPpd && m_numberedPpd == m_manager->ppd() &&
           m_numberedOptions == m_dataSource->supportedPPDOptionKeys();
}

void QVPopUpButton_M880::takeNumbers()
{
    m_numberedPpd = m_manager->ppd();
    m_numberedOptions = m_dataSource->supportedPPDOptionKeys();
    const ConstraintTable &table = m_numberedPpd->constraintTable();
    const constraints::Option own = table.optionNumber(m_optionName);
    m_itemNumbers.clear();
    for (int index = 0; index < count(); ++index)
        m_itemNumbers.push_back(
            table.choiceNumber(own, itemData(index).toMap().value(QVPPDChoiceKey).toString()));
    m_others.clear();
    for (const QString &option : std::as_const(m_numberedOptions)) {
        if (!m_conflictableOptions.contains(option))
            continue;
        m_others.push_back({option, {}, table.optionNumber(option), ConstraintTable::none});
        readChoice(&m_others.back());
    }
}

void QVPopUpButton_M880::readChoice(CurrentChoice *other) const
{
    other->choice = m_dataSource->valueForKey(other->option).toString();
    other->number = m_numberedPpd->constraintTable().choiceNumber(other->optionNumber, other->choice);
}

void QVPopUpButton_M880::decide(int index)
{
    const constraints::Choice own = m_itemNumbers[size_t(index)];
    const auto obstacle = std::ranges::find_if(m_others, [&](const CurrentChoice &other) {
        return m_numberedPpd->constraintTable().conflicts(own, other.number);
    });
    setItemState(index, obstacle == m_others.end() ? nullptr : &*obstacle);
}

QString QVPopUpButton_M880::reason(const CurrentChoice &obstacle) const
{
    QString text = obstacle.choice;
    for (const QVariant &choice :
         m_dataSource->valueForKey(obstacle.option + QStringLiteral("Choices")).toList()) {
        if (choice.toMap().value(QVPPDChoiceKey).toString() == obstacle.choice)
            text = choice.toMap().value(QVPPDTextKey).toString();
    }
    return QVObstacleText(*m_manager, obstacle.option, text);
}

void QVPopUpButton_M880::setItemState(int index, const CurrentChoice *obstacle)
{
    setObstacle(index, obstacle ? reason(*obstacle) : QString());
}

QVariant QVPopUpButton_M880::selectedIndex() const
{
    return currentIndex() < 0 ? QVariant() : QVariant(currentIndex());
}

void QVPopUpButton_M880::setSelectedIndex(const QVariant &index)
{
    const int position = index.isValid() ? index.toInt() : -1;
    setCurrentIndex(position < count() ? position : -1);
}
