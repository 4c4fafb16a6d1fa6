// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panels/widgets/profile_popup.h"

#include "platform/layout_loader.h"

#include <QHelpEvent>
#include <QSignalBlocker>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QTextDocument>
#include <QToolTip>

namespace {

const bool profilePopupIsRegistered = [] {
    platform::registerLayoutWidget<QVProfilePopUp_M880>(QStringLiteral("QVProfilePopUp_M880"));
    return true;
}();

} // namespace

QVProfilePopUp_M880::QVProfilePopUp_M880(QWidget *parent) : ChoiceBox(parent)
{
    connect(this, &QComboBox::activated, this, &QVProfilePopUp_M880::choose);
}

// The width does not depend on the names, which come from the device. Space for an icon would make the pop-up
// taller than others.
QSize QVProfilePopUp_M880::sizeHint() const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    return platform::sizeForLength(*this, option, QSize(0, 0));
}

void QVProfilePopUp_M880::setProfileNames(const QVariant &names)
{
    m_names = names;
    rebuild();
}

void QVProfilePopUp_M880::setProfileRows(const QVariant &rows)
{
    m_rows = rows;
    rebuild();
}

void QVProfilePopUp_M880::setSelectedProfile(const QVariant &number)
{
    m_selected = number;
    rebuild();
}

void QVProfilePopUp_M880::setUnnamedText(const QString &text)
{
    m_unnamedText = text;
    rebuild();
}

void QVProfilePopUp_M880::choose(int index)
{
    const QVariant number = itemData(index);
    if (number == m_selected)
        return;
    m_selected = number;
    Q_EMIT profileChosen();
}

void QVProfilePopUp_M880::rebuild()
{
    const QSignalBlocker silent(this);
    clear();
    const QStringList names = m_names.toStringList();
    const QVariantList rows = m_rows.toList();
    uint number = 0;
    for (qsizetype i = 0; i < names.size(); ++i) {
        number = i < rows.size() ? rows.at(i).toUInt() : number + 1;
        addItem(names.at(i).simplified(), number);
        setItemData(count() - 1, Qt::convertFromPlainText(names.at(i), Qt::WhiteSpaceNormal),
                    Qt::ToolTipRole);
    }
    const uint selected = m_selected.toUInt();
    // The device counts from 1, so 0 before a list was read means no selection.
    if (!m_selected.isValid() || (names.isEmpty() && selected == 0)) {
        setCurrentIndex(-1);
        return;
    }
    if (findData(selected) < 0)
        addItem(m_unnamedText.arg(selected), selected);
    setCurrentIndex(findData(selected));
}

QString QVProfilePopUp_M880::elided(const QString &text) const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect field =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    constexpr int margins = 4; // margins of a style's label within the field
    return fontMetrics().elidedText(text, Qt::ElideRight, field.width() - margins);
}

bool QVProfilePopUp_M880::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || elided(currentText()) == currentText())
        return platform::ChoiceBox::event(event);
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), currentData(Qt::ToolTipRole).toString(),
                       this);
    return true;
}

void QVProfilePopUp_M880::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    option.currentText = elided(option.currentText);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}
