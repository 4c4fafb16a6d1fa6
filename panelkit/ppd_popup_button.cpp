// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panelkit/ppd_popup_button.h"

#include "panelkit/panel_base.h"
#include "platform/binding.h"
#include "platform/bundle.h"
#include "plugin/manager.h"
#include "ppd/ppd_model.h"

#include <algorithm>

namespace {

const QString selectedIndexBinding = QStringLiteral("selectedIndex");
constexpr const char *conflictText =
    QT_TRANSLATE_NOOP("QVPopUpButton_M880", "Not available while \"%1\" is \"%2\".");

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
    m_manager = panel ? panel->manager() : nullptr;
    m_dataSource = panel;
    clear();
    m_conflictableOptions.clear();
    if (panel) {
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
    if (m_manager && m_manager->ppd())
        m_conflictableOptions.unite(m_manager->ppd()->conflictableOptionsForOptionWithChoice(
            m_optionName, choice.value(QVPPDChoiceKey).toString()));
}

void QVPopUpButton_M880::ppdValueHasChanged(const platform::Notification &notification)
{
    if (notification.name == m_optionName || !m_dataSource || !m_manager || !m_manager->ppd())
        return;
    const auto others = currentChoices();
    const QVPPD_M880 &ppd = *m_manager->ppd();
    for (int index = 0; index < count(); ++index) {
        const QString choice = itemData(index).toMap().value(QVPPDChoiceKey).toString();
        const auto obstacle = std::ranges::find_if(others, [&](const CurrentChoice &other) {
            return ppd.optionWithChoiceConflictsWithOptionWithChoice(m_optionName, choice, other.option,
                                                                     other.choice);
        });
        setItemState(index, obstacle == others.end() ? nullptr : &*obstacle);
    }
}

std::vector<QVPopUpButton_M880::CurrentChoice> QVPopUpButton_M880::currentChoices() const
{
    std::vector<CurrentChoice> choices;
    for (const QString &option : m_dataSource->supportedPPDOptionKeys()) {
        if (!m_conflictableOptions.contains(option))
            continue;
        const QVariant value = m_dataSource->valueForKey(option);
        if (value.isValid())
            choices.push_back({option, value.toString()});
    }
    return choices;
}

QString QVPopUpButton_M880::reason(const CurrentChoice &obstacle) const
{
    const auto &bundle = m_manager->bundle();
    const QString name = m_manager->ppd()->localizedOptionNameWithBundle(obstacle.option, bundle.get());
    QString text = obstacle.choice;
    for (const QVariant &choice :
         m_dataSource->valueForKey(obstacle.option + QStringLiteral("Choices")).toList()) {
        if (choice.toMap().value(QVPPDChoiceKey).toString() == obstacle.choice)
            text = choice.toMap().value(QVPPDTextKey).toString();
    }
    const QString sentence =
        bundle ? bundle->translate("QVPopUpButton_M880", conflictText) : QString::fromUtf8(conflictText);
    return sentence.arg(name, text);
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
